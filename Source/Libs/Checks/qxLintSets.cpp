#include "qxVariantKinds.h"

#include "qxLintParts.h"

#include <QCryptographicHash>

namespace {

struct ListRule {
    qxFindingPlace::Sort place;
    const char *tag;
    const char *word;
    qxCode missing;
    qxLintScene::Sort sort;
};

const ListRule listRules[qxNameLists] = {
    {qxFindingPlace::Viewpoint, "ViewpointRef", "viewpoint", qxCode::NoSuchViewpoint,
     qxLintScene::Viewpoint},
    {qxFindingPlace::Animation, "AnimationRef", "animation", qxCode::NoSuchAnimation,
     qxLintScene::Animation},
    {qxFindingPlace::Geometry, "GeometryRef", "geometry", qxCode::NoSuchGeometry,
     qxLintScene::Node},
    {qxFindingPlace::Target, "TargetName", "target node", qxCode::NoSuchTarget, qxLintScene::Node},
};

/// An entry of a set that changes something of the scene: a reference or, without one, a target.
struct Entry {
    qxLintBase::Change change;
    const qxDocumentReference *reference;
    QString name; ///< of the variant or of the target
};

QString textOf(const Entry &entry)
{
    return entry.reference
        ? QStringLiteral("\"%1\" of the %2 variant \"%3\"")
              .arg(entry.reference->state, entry.reference->kind->word, entry.name)
        : QStringLiteral("the target \"%1\", which is shown").arg(entry.name);
}

/// Whether a reference to the overlay variant may lack its state: older documents list so which
/// overlays are shown. Their overlay variants know showing, hiding and toggling at most.
bool isOfOldForm(const qxLintVariant *variant)
{
    return !variant || variant->element->options.size() <= 3;
}

/// The findings of one set.
class SetLint {
public:
    SetLint(qxLintContext &context, const qxDocumentSet &set)
        : m_context(context), m_set(set), m_spot(qxLintSpot::of(set))
    {
    }

    void run();

private:
    void noteTargets();
    void lintReferences(const qxVariantKind *kind);
    void lintState(const qxDocumentReference &reference, const qxLintVariant &variant);
    void noteFight(const qxDocumentReference &reference, const qxLintBase::Reach &reach);
    void lintNames(qxNameList list);
    void lintSnapshots();
    void lintRest();
    void add(qxCode code, const qxDocumentReference &reference, const QString &what,
             const QString &detail = QString());
    qxFindingPlace placeOf(qxFindingPlace::Sort sort, const QString &name = QString()) const
    {
        return {sort, m_set.name, nullptr, name, QString()};
    }

    qxLintContext &m_context;
    const qxDocumentSet &m_set;
    const qxLintSpot m_spot;
    QHash<qxForecast::Key, Entry> m_changed; ///< who changes what
};

void SetLint::run()
{
    noteTargets();
    for (const qxVariantKind *kind : qxVariantKinds::selectionOrder().all())
        lintReferences(kind);
    for (int list = 0; list < qxNameLists; ++list)
        lintNames(qxNameList(list));
    lintSnapshots();
    lintRest();
}

void SetLint::add(qxCode code, const qxDocumentReference &reference, const QString &what,
                  const QString &detail)
{
    const qxFindingPlace place{qxFindingPlace::Reference, m_set.name, reference.kind,
                               reference.variant, reference.state};
    m_context.add(code, m_spot.within(reference.kind->referenceTag, reference.location, place),
                  QStringLiteral("set \"%1\", %2 variant \"%3\": %4")
                      .arg(m_set.name, reference.kind->word, reference.variant, what),
                  detail);
}

/// A selection shows targets before all else, up to the first that is missing.
void SetLint::noteTargets()
{
    if (!m_set.includes(qxInclusion::Nodes))
        return;
    for (const qxDocumentText &target : m_set.of(qxNameList::Targets)) {
        const auto key = m_context.scene.visibilityOf(target.text);
        if (!key)
            return;
        m_changed.insert(*key, {{*key, true, 1}, nullptr, target.text});
    }
}

void SetLint::lintReferences(const qxVariantKind *kind)
{
    QSet<QString> known;
    for (const qxDocumentReference &each : m_set.references) {
        if (each.kind != kind)
            continue;
        if (known.contains(each.variant))
            add(qxCode::ReferenceTwice, each,
                QStringLiteral("a second entry; only the last state counts"));
        known.insert(each.variant);
        const qxLintVariant *const variant = m_context.variants.find(kind, each.variant);
        (variant ? *variant->use : m_context.variants.use(kind, each.variant)).add(each.state, 1);
        const bool isOldForm =
            kind == &qxVariantKinds::overlay && each.state.isEmpty() && isOfOldForm(variant);
        if (isOldForm)
            continue;
        if (variant)
            lintState(each, *variant);
        else
            add(qxCode::NoSuchVariant, each, QStringLiteral("it does not exist"));
    }
}

void SetLint::lintState(const qxDocumentReference &reference, const qxLintVariant &variant)
{
    if (!variant.hasOption(reference.state))
        add(qxCode::NoSuchOption, reference,
            QStringLiteral("\"%1\" is none of its options").arg(reference.state));
    if (!variant.base->hasFittingObject)
        return; // It is said once, of the variant.
    const qxLintBase::Reach &reach = m_context.scene.reach(*variant.base, reference.state);
    if (!reach.isTaken)
        add(qxCode::StateUnknownToScene, reference,
            QStringLiteral("\"%1\" in the scene does not take the state \"%2\"")
                .arg(variant.element->base, reference.state),
            variant.element->base);
    noteFight(reference, reach);
}

void SetLint::noteFight(const qxDocumentReference &reference, const qxLintBase::Reach &reach)
{
    bool isSaid = false;
    for (const qxLintBase::Change &change : reach.changes) {
        const auto other = m_changed.constFind(change.key);
        if (other == m_changed.constEnd()) {
            m_changed.insert(change.key, {change, &reference, reference.variant});
            continue;
        }
        const bool isSameVariant = other->reference && other->reference->kind == reference.kind
            && other->name == reference.variant;
        // Two toggles are no agreement, nor are two steps: the second goes on from the first.
        const bool isAgreed =
            change.isPut && other->change.isPut && change.value == other->change.value;
        if (isSaid || isSameVariant || isAgreed)
            continue;
        add(qxCode::FightingEntries, reference,
            QStringLiteral("\"%1\" goes against %2").arg(reference.state, textOf(*other)),
            other->name);
        isSaid = true;
    }
}

void SetLint::lintNames(qxNameList list)
{
    const ListRule &rule = listRules[int(list)];
    QSet<QString> known;
    const auto say = [&](qxCode code, const qxDocumentText &name, const char *what) {
        m_context.add(
            code,
            m_spot.within(QString::fromLatin1(rule.tag), name.location,
                          placeOf(rule.place, name.text)),
            QStringLiteral("set \"%1\", %2 \"%3\": %4")
                .arg(m_set.name, QLatin1String(rule.word), name.text, QLatin1String(what)));
    };
    for (const qxDocumentText &each : m_set.of(list)) {
        if (known.contains(each.text))
            say(qxCode::NameTwice, each, "it is listed already");
        else if (!m_context.scene.has(rule.sort, each.text))
            say(rule.missing, each, "the scene does not have it");
        known.insert(each.text);
    }
}

void SetLint::lintSnapshots()
{
    QSet<QString> known;
    for (const qxDocumentText &each : m_set.snapshots) {
        const auto say = [&](qxCode code, const QString &what, const QString &detail = QString()) {
            m_context.add(code,
                          m_spot.within(QStringLiteral("MaterialSnapshot"), each.location,
                                        placeOf(qxFindingPlace::Snapshot, each.text)),
                          QStringLiteral("set \"%1\", snapshot of \"%2\": %3")
                              .arg(m_set.name, each.text, what),
                          detail);
        };
        if (known.contains(each.text))
            say(qxCode::NameTwice, QStringLiteral("a second one; only the last counts"));
        known.insert(each.text);
        if (!m_context.scene.has(qxLintScene::Path, each.text))
            say(qxCode::NoSuchSnapshotPath, QStringLiteral("no node has that path"));
        if (!m_context.scene.has(qxLintScene::Material, each.more))
            say(qxCode::NoSuchSnapshotMaterial,
                QStringLiteral("there is no material \"%1\"").arg(each.more), each.more);
    }
}

void SetLint::lintRest()
{
    const QString &viewpoint = m_set.defaultViewpoint;
    if (!viewpoint.isEmpty() && !m_context.scene.has(qxLintScene::Viewpoint, viewpoint))
        m_context.add(qxCode::NoSuchDefaultViewpoint, m_spot,
                      QStringLiteral("set \"%1\": there is no viewpoint \"%2\" to end at")
                          .arg(m_set.name, viewpoint),
                      viewpoint);
    if (m_set.isEmpty())
        m_context.add(
            qxCode::EmptySet, m_spot,
            QStringLiteral("set \"%1\" holds nothing that a selection applies").arg(m_set.name));
    const QString error =
        m_set.script.text.isEmpty() ? QString() : m_context.compile(m_set.script.text);
    if (!error.isEmpty())
        m_context.add(qxCode::ScriptDoesNotCompile,
                      {placeOf(qxFindingPlace::Script), m_set.script.more, m_set.script.location},
                      QStringLiteral("set \"%1\": %2").arg(m_set.name, error), error);
}

/// A short stand-in for everything of a set but its name, its comment, its hotkey and its preview.
class Digest {
public:
    QByteArray of(const qxDocumentSet &set);

private:
    void add(const QString &text);
    void add(const std::vector<qxDocumentText> &texts);

    QCryptographicHash m_hash{QCryptographicHash::Md5};
};

QByteArray Digest::of(const qxDocumentSet &set)
{
    add(set.defaultViewpoint);
    add(set.script.text);
    for (const qxDocumentReference &each : set.references) {
        add(each.kind->word);
        add(each.variant);
        add(each.state);
    }
    for (const auto &list : set.names)
        add(list);
    add(set.snapshots);
    add(set.values);
    for (const bool isTaken : set.inclusions)
        add(QString::number(int(isTaken)));
    for (const qxClippingField &field : qxClippingField::all())
        add(field.text(set.clipping));
    add(QString::number(int(set.isSequential)));
    return m_hash.result();
}

void Digest::add(const QString &text)
{
    const int size = text.size();
    m_hash.addData(reinterpret_cast<const char *>(&size), sizeof size);
    m_hash.addData(reinterpret_cast<const char *>(text.constData()), size * int(sizeof(QChar)));
}

void Digest::add(const std::vector<qxDocumentText> &texts)
{
    add(QString::number(texts.size()));
    for (const qxDocumentText &each : texts) {
        add(each.text);
        add(each.more);
    }
}

} // namespace

void qxLintParts::lintSet(qxLintContext &context, const qxDocumentSet &set)
{
    SetLint(context, set).run();
}

void qxLintParts::noteUses(qxLintContext &context, const qxDocumentSet &set)
{
    for (const qxDocumentReference &each : set.references)
        context.variants.use(each.kind, each.variant).add(each.state, 1);
}

void qxLintParts::forgetUses(qxLintContext &context, const qxDocumentSet &set)
{
    for (const qxDocumentReference &each : set.references)
        context.variants.use(each.kind, each.variant).add(each.state, -1);
}

QByteArray qxLintParts::digestOf(const qxDocumentSet &set)
{
    return set.isEmpty() ? QByteArray() : Digest().of(set);
}

/// Sets of one name, and sets that do the same.
void qxLintParts::compareSets(qxLintContext &context, const std::vector<qxLintedSet> &sets)
{
    qxTwinLint twins(context, qxCode::SetTwice);
    for (const qxLintedSet &each : sets)
        twins.note(
            each.set->name, each.set->location.line, [&] { return qxLintSpot::of(*each.set); },
            [&] { return QStringLiteral("set \"%1\" replaces").arg(each.set->name); });
    QHash<QByteArray, const qxDocumentSet *> first;
    for (const qxLintedSet &each : sets) {
        if (each.digest.isEmpty())
            continue;
        const qxDocumentSet *&other = first[each.digest];
        if (other)
            context.add(qxCode::EqualSets, qxLintSpot::of(*each.set),
                        QStringLiteral("set \"%1\" does what set \"%2\" does")
                            .arg(each.set->name, other->name),
                        other->name);
        else
            other = each.set;
    }
}
