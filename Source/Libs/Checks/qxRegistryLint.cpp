#include "qxRegistryLint.h"

#include "qxVariantGroup.h"
#include "qxVariantLists.h"
#include "qxVariantSet.h"

#include "qxRegistryDocument.h"

#include <QCache>
#include <QElapsedTimer>

#include <algorithm>
#include <tuple>

namespace {

constexpr int rememberedScripts = 1000;

/// The same, but each script is compiled once.
qxLintContext::Compile remembering(const qxLintContext::Compile &compile)
{
    const auto flaws = std::make_shared<QCache<QString, QString>>(rememberedScripts);
    return [compile, flaws](const QString &script) {
        if (const QString *known = flaws->object(script))
            return *known;
        const QString flaw = compile(script);
        flaws->insert(script, new QString(flaw));
        return flaw;
    };
}

bool isSame(const qxDocumentText &one, const qxDocumentText &other)
{
    return one.text == other.text && one.more == other.more;
}

bool isSame(const qxDocumentOption &one, const qxDocumentOption &other)
{
    return one.name == other.name && isSame(one.hotkey, other.hotkey);
}

bool isSame(const qxDocumentVariant &one, const qxDocumentVariant &other);

template <class Value>
bool isSame(const std::vector<Value> &one, const std::vector<Value> &other)
{
    return std::equal(one.begin(), one.end(), other.begin(), other.end(),
                      [](const Value &each, const Value &second) { return isSame(each, second); });
}

auto fieldsOf(const qxAnalyzerVariant &clipping)
{
    return std::tie(clipping.clipState, clipping.clipPlanePosition, clipping.clipPlaneNormal,
                    clipping.clipPlaneShow, clipping.clipPlaneColor, clipping.clipPlaneInvert,
                    clipping.clipPlaneHideScene, clipping.clipGridShow, clipping.clipGridColor,
                    clipping.clipContourShow, clipping.clipContourColor, clipping.clipContourWidth);
}

/// References are compared otherwise; comment and preview do not matter here.
bool isSame(const qxDocumentSet &one, const qxDocumentSet &other)
{
    for (std::size_t list = 0; list < one.names.size(); ++list) {
        if (!isSame(one.names[list], other.names[list]))
            return false;
    }
    return one.name == other.name && one.defaultViewpoint == other.defaultViewpoint
        && isSame(one.hotkey, other.hotkey) && one.isSequential == other.isSequential
        && isSame(one.script, other.script) && one.inclusions == other.inclusions
        && isSame(one.snapshots, other.snapshots) && isSame(one.values, other.values)
        && fieldsOf(one.clipping) == fieldsOf(other.clipping);
}

bool isSame(const qxDocumentVariant &one, const qxDocumentVariant &other)
{
    return one.kind == other.kind && one.name == other.name && one.base == other.base
        && isSame(one.standard, other.standard) && isSame(one.options, other.options);
}

bool isSame(const qxFinding &one, const qxFinding &other)
{
    return one.code == other.code && one.message == other.message && one.place == other.place;
}

std::vector<const qxVariantSet *> setsOfRegistry()
{
    std::vector<const qxVariantSet *> sets;
    for (const qxVariantGroup *group : qxVariantLists::_variantGroups)
        sets.insert(sets.end(), group->sets.begin(), group->sets.end());
    for (const qxVariantSet *set : qxVariantLists::_variantSets) {
        if (!set->group)
            sets.push_back(set);
    }
    return sets;
}

std::vector<qxDocumentGroup> groupsOfRegistry()
{
    std::vector<qxDocumentGroup> groups;
    for (const qxVariantGroup *group : qxVariantLists::_variantGroups) {
        groups.push_back(qxRegistryDocument::of(*group));
        groups.back().sets = int(group->sets.size());
    }
    return groups;
}

} // namespace

/// When a bit of work ends.
class qxRegistryLint::Deadline {
public:
    explicit Deadline(int milliseconds) : m_milliseconds(milliseconds) { m_timer.start(); }
    bool isOver() const { return m_timer.elapsed() >= m_milliseconds; }

private:
    const int m_milliseconds;
    QElapsedTimer m_timer;
};

qxRegistryLint::qxRegistryLint(const qxLintContext::Compile &compile)
    : m_context(remembering(compile), true)
{
}

void qxRegistryLint::begin(Step step)
{
    m_step = step;
    m_next = 0;
}

void qxRegistryLint::lookAgain()
{
    begin(Scene);
    ++m_round;
}

void qxRegistryLint::lookAtScene()
{
    m_isSceneDue = true;
    lookAgain();
}

bool qxRegistryLint::work(int milliseconds)
{
    const Deadline deadline(milliseconds);
    do {
        switch (m_step) {
        case Scene:
            checkScene();
            break;
        case Variants:
            readVariants();
            break;
        case Sets:
            lintSets(deadline);
            break;
        case UsedVariants:
            lintVariants(deadline);
            break;
        case Together:
            lintTogether();
            break;
        case Done:
            break;
        }
    } while (m_step != Done && !deadline.isOver());
    m_context.scene.rest();
    return m_step == Done;
}

/// When the scene answers otherwise, everything is due.
void qxRegistryLint::checkScene()
{
    if (std::exchange(m_isSceneDue, false) && !m_context.scene.isStillSo()) {
        for (auto &each : m_sets)
            each.second.isDue = true;
        for (Piece &piece : m_variantPieces)
            piece.isDue = true;
        m_context.variants.set(m_variants);
    }
    begin(Variants);
}

void qxRegistryLint::readVariants()
{
    std::vector<qxDocumentVariant> variants;
    variants.reserve(m_variants.size());
    qxVariantKinds::visit([&variants](const qxVariantKind &kind, const qxVariant &variant) {
        variants.push_back(qxRegistryDocument::of(kind, variant));
    });
    if (!isSame(variants, m_variants))
        takeVariants(std::move(variants));
    begin(Sets);
}

/// What was found of those that are as they were, and alone of their name, stays.
void qxRegistryLint::takeVariants(std::vector<qxDocumentVariant> variants)
{
    QHash<VariantName, int> counts;
    for (const qxDocumentVariant &each : variants)
        ++counts[{each.kind, each.name}];
    QHash<VariantName, std::size_t> before;
    for (std::size_t i = 0; i < m_variants.size(); ++i)
        before.insert({m_variants[i].kind, m_variants[i].name}, i);
    std::vector<Piece> pieces(variants.size());
    for (std::size_t i = 0; i < variants.size(); ++i) {
        const VariantName name(variants[i].kind, variants[i].name);
        const auto known = before.find(name);
        const bool stays = known != before.end() && counts.value(name) == 1
            && isSame(variants[i], m_variants[*known]);
        if (stays)
            pieces[i] = std::exchange(m_variantPieces[*known], Piece());
        else
            m_changedVariants.insert(name);
        if (stays)
            before.erase(known);
    }
    for (auto gone = before.keyBegin(); gone != before.keyEnd(); ++gone)
        m_changedVariants.insert(*gone);
    for (const Piece &gone : m_variantPieces)
        drop(gone);
    m_variants = std::move(variants);
    m_variantPieces = std::move(pieces);
    m_context.variants.set(m_variants);
}

void qxRegistryLint::lintSets(const Deadline &deadline)
{
    const SetList sets = setsOfRegistry();
    while (m_next < sets.size()) {
        look(*sets[m_next++]);
        if (deadline.isOver())
            return;
    }
    m_order = sets;
    dropSets();
    m_changedVariants.clear();
    begin(UsedVariants);
}

void qxRegistryLint::look(const qxVariantSet &set)
{
    SetPiece &piece = m_sets[&set];
    qxDocumentSet now = qxRegistryDocument::headOf(set);
    const bool isNew = piece.round == 0;
    piece.round = m_round;
    const auto refersToChanged = [this, &piece] {
        const auto &references = piece.set.references;
        return !m_changedVariants.isEmpty()
            && std::any_of(references.begin(), references.end(),
                           [this](const qxDocumentReference &each) {
                               return m_changedVariants.contains({each.kind, each.variant});
                           });
    };
    if (!piece.isDue && isSame(piece.set, now)
        && qxRegistryDocument::hasStill(set, piece.set.references) && !refersToChanged())
        return;
    if (!isNew)
        qxLintParts::forgetUses(m_context, piece.set);
    piece.set = std::move(now);
    piece.set.references = qxRegistryDocument::referencesOf(set);
    piece.digest = qxLintParts::digestOf(piece.set);
    lint(piece, [&] { qxLintParts::lintSet(m_context, piece.set); });
}

/// Forgets those that were not seen in this round.
void qxRegistryLint::dropSets()
{
    for (auto each = m_sets.begin(); each != m_sets.end();) {
        if (each->second.round == m_round) {
            ++each;
            continue;
        }
        qxLintParts::forgetUses(m_context, each->second.set);
        drop(each->second);
        each = m_sets.erase(each);
    }
}

void qxRegistryLint::lintVariants(const Deadline &deadline)
{
    const std::vector<qxLintVariant> &variants = m_context.variants.all();
    while (m_next < variants.size()) {
        const qxLintVariant &variant = variants[m_next];
        Piece &piece = m_variantPieces[m_next++];
        if (variant.use->takeChange() || piece.isDue)
            lint(piece, [&] { qxLintParts::lintVariant(m_context, variant); });
        if (deadline.isOver())
            return;
    }
    begin(Together);
}

void qxRegistryLint::lintTogether()
{
    std::vector<qxLintedSet> sets;
    for (const qxVariantSet *set : m_order) {
        const SetPiece &piece = m_sets.at(set);
        sets.push_back({&piece.set, piece.digest});
    }
    lint(m_together, [&] {
        qxLintParts::compareSets(m_context, sets);
        qxLintParts::compareHotkeys(m_context, sets);
        qxLintParts::lintGroups(m_context, groupsOfRegistry());
        qxLintParts::compareVariants(m_context);
    });
    begin(isRoomForMore() ? Sets : Done);
}

bool qxRegistryLint::isRoomForMore()
{
    bool isRoom = false;
    for (auto code = m_counts.begin(); code != m_counts.end(); ++code) {
        const int kept = m_kept.value(code.key());
        int room = std::min(code.value(), qxFindingList::Limit) - kept;
        const auto ask = [&](Piece &piece) {
            const int more = piece.findings.counts().value(code.key())
                - piece.findings.keptCounts().value(code.key());
            if (room <= 0 || more <= 0)
                return;
            piece.isDue = isRoom = true;
            room -= more;
        };
        for (const qxVariantSet *set : m_order)
            ask(m_sets.at(set));
        for (Piece &piece : m_variantPieces)
            ask(piece);
    }
    return isRoom;
}

void qxRegistryLint::drop(const Piece &piece)
{
    const auto subtract = [](qxFindingList::Counts &counts, const qxFindingList::Counts &less) {
        for (auto each = less.begin(); each != less.end(); ++each)
            counts[each.key()] -= each.value();
    };
    subtract(m_counts, piece.findings.counts());
    subtract(m_kept, piece.findings.keptCounts());
    m_isChanged = m_isChanged || !piece.findings.counts().isEmpty();
}

template <class Lint>
void qxRegistryLint::lint(Piece &piece, const Lint &lint)
{
    const qxFindingList before = piece.findings;
    const bool wasChanged = m_isChanged;
    drop(piece);
    m_context.findings = qxFindingList(m_kept);
    lint();
    piece.findings = std::exchange(m_context.findings, qxFindingList());
    piece.isDue = false;
    const qxFindingList::Counts &counts = piece.findings.counts();
    for (auto each = counts.begin(); each != counts.end(); ++each) {
        m_counts[each.key()] += each.value();
        m_kept[each.key()] += piece.findings.keptCounts().value(each.key());
    }
    const qxFindings &kept = piece.findings.kept();
    m_isChanged = wasChanged || counts != before.counts()
        || !std::equal(kept.begin(), kept.end(), before.kept().begin(), before.kept().end(),
                       [](const qxFinding &one, const qxFinding &other) {
                           return isSame(one, other);
                       });
}

template <class Visit>
void qxRegistryLint::visitPieces(const Visit &visit) const
{
    for (const qxVariantSet *set : m_order) {
        const auto piece = m_sets.find(set);
        if (piece != m_sets.end())
            visit(piece->second);
    }
    for (const Piece &piece : m_variantPieces)
        visit(piece);
    visit(m_together);
}

qxFindings qxRegistryLint::all() const
{
    qxFindings findings;
    visitPieces([&findings](const Piece &piece) { findings += piece.findings.kept(); });
    qxFindingList::Counts counts = m_counts;
    for (auto each = findings.rbegin(); each != findings.rend(); ++each) {
        const int code = int(each->code);
        each->more = std::max(counts.take(code) - m_kept.value(code), 0);
    }
    return findings;
}

/// All that there is to find, and what the comparison of all has found.
template <class Lint>
qxFindings qxRegistryLint::whole(const Piece &piece, const Lint &lint)
{
    if (piece.findings.counts() == piece.findings.keptCounts())
        return piece.findings.kept();
    m_context.findings = qxFindingList();
    lint();
    m_context.scene.rest();
    return std::exchange(m_context.findings, qxFindingList()).kept();
}

qxFindings qxRegistryLint::ofSet(const QString &name)
{
    qxFindings findings;
    for (const qxVariantSet *set : m_order) {
        const auto piece = m_sets.find(set);
        if (piece == m_sets.end() || piece->second.set.name != name)
            continue;
        findings += whole(piece->second, [&] {
            qxLintParts::lintSet(m_context, piece->second.set);
            qxLintParts::forgetUses(m_context, piece->second.set);
        });
    }
    for (const qxFinding &each : m_together.findings.kept()) {
        if (each.place.set == name)
            findings += each;
    }
    return findings;
}

qxFindings qxRegistryLint::ofVariant(const qxVariantKind &kind, const QString &name)
{
    qxFindings findings;
    for (std::size_t i = 0; i < m_variants.size(); ++i) {
        if (m_variants[i].kind == &kind && m_variants[i].name == name)
            findings += whole(m_variantPieces[i], [&] {
                qxLintParts::lintVariant(m_context, m_context.variants.all()[i]);
            });
    }
    for (const qxFinding &each : m_together.findings.kept()) {
        if (each.place.sort >= qxFindingPlace::Variant && each.place.kind == &kind
            && each.place.name == name)
            findings += each;
    }
    return findings;
}
