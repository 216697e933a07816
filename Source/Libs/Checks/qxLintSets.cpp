#include "qxLintParts.h"
#include "qxLinter.h"

#include <QCryptographicHash>

namespace {

struct ListRule {
    qxFindingPlace::Sort sort;
    const char *tag;
    const char *word;
    qxCode missing;
    bool (qxSceneLookup::*has)(const QString &name) const;
};

const ListRule listRules[qxNameLists] = {
    {qxFindingPlace::Viewpoint, "ViewpointRef", "viewpoint", qxCode::NoSuchViewpoint,
     &qxSceneLookup::hasViewpoint},
    {qxFindingPlace::Animation, "AnimationRef", "animation", qxCode::NoSuchAnimation,
     &qxSceneLookup::hasClip},
    {qxFindingPlace::Geometry, "GeometryRef", "geometry", qxCode::NoSuchGeometry,
     &qxSceneLookup::hasNode},
    {qxFindingPlace::Target, "TargetName", "target node", qxCode::NoSuchTarget,
     &qxSceneLookup::hasNode},
};

/// An entry of a set that changes something of the scene: a reference or, without one, a target.
struct Entry {
    qxLintVariant::Change change;
    const qxDocumentReference *reference;
    const qxVariantKind *kind;
    QString name; ///< of the variant or of the target
};

QString textOf(const Entry &entry)
{
    return entry.reference ? QStringLiteral("\"%1\" of the %2 variant \"%3\"")
                                 .arg(entry.reference->state, entry.kind->word, entry.name)
                           : QStringLiteral("the target \"%1\", which is shown").arg(entry.name);
}

/// Whether a reference to the overlay variant may lack its state: older documents list so which
/// overlays are shown. Their overlay variants know showing, hiding and toggling at most.
bool isOfOldForm(const qxLintVariant *variant)
{
    return !variant || variant->element().options.size() <= 3;
}

/// The findings of one set.
class SetLint {
public:
    SetLint(qxLintContext &context, const qxDocumentSet &set) : m_context(context), m_set(set) {}

    void run(const qxLinter::Compile &compile);

private:
    void noteTargets();
    void lintReferences(const qxVariantKind *kind);
    void lintState(const qxVariantKind *kind, const qxDocumentReference &reference,
                   qxLintVariant &variant);
    void noteFight(const qxVariantKind *kind, const qxDocumentReference &reference,
                   const qxLintVariant::Reach &reach);
    void lintNames(qxNameList list);
    void lintSnapshots();
    void lintRest(const qxLinter::Compile &compile);
    void add(qxCode code, const qxVariantKind *kind, const qxDocumentReference &reference,
             const QString &what);

    qxLintContext &m_context;
    const qxDocumentSet &m_set;
    QHash<qxForecast::Key, Entry> m_changed; ///< who changes what
};

void SetLint::run(const qxLinter::Compile &compile)
{
    noteTargets();
    for (const qxVariantKind *kind : qxVariantKinds::selectionOrder().all())
        lintReferences(kind);
    for (int list = 0; list < qxNameLists; ++list)
        lintNames(qxNameList(list));
    lintSnapshots();
    lintRest(compile);
}

void SetLint::add(qxCode code, const qxVariantKind *kind, const qxDocumentReference &reference,
                  const QString &what)
{
    const QString message = QStringLiteral("set \"%1\", %2 variant \"%3\": %4")
                                .arg(m_set.name, kind->word, reference.variant, what);
    m_context.add(code,
                  {qxFindingPlace::Reference, m_set.name, kind, reference.variant, reference.state},
                  message, m_set.path, kind->referenceTag, reference.location);
}

/// A selection shows targets before all else, up to the first that is missing.
void SetLint::noteTargets()
{
    if (!m_set.includes(qxInclusion::Nodes))
        return;
    for (const qxDocumentText &target : m_set.of(qxNameList::Targets)) {
        const auto nodes = m_context.scene.nodes(target.text);
        if (nodes.empty())
            return;
        const qxForecast::Key key =
            qxForecast::keyOf(qxSceneObject(nodes.front()), qxAspect::Visibility);
        m_changed.insert(key, {{key, true, 1}, nullptr, &qxVariantKinds::node, target.text});
    }
}

void SetLint::lintReferences(const qxVariantKind *kind)
{
    QSet<QString> known;
    for (const qxDocumentReference &each : m_set.references) {
        if (each.kind != kind)
            continue;
        if (known.contains(each.variant))
            add(qxCode::ReferenceTwice, kind, each,
                QStringLiteral("a second entry; only the last state counts"));
        known.insert(each.variant);
        qxLintVariant *const variant = m_context.variants.find(kind, each.variant);
        const bool isOldForm =
            kind == &qxVariantKinds::overlay && each.state.isEmpty() && isOfOldForm(variant);
        if (variant && isOldForm)
            variant->use(each.state);
        else if (variant)
            lintState(kind, each, *variant);
        else if (!isOldForm)
            add(qxCode::NoSuchVariant, kind, each, QStringLiteral("it does not exist"));
    }
}

void SetLint::lintState(const qxVariantKind *kind, const qxDocumentReference &reference,
                        qxLintVariant &variant)
{
    variant.use(reference.state);
    if (!variant.hasOption(reference.state))
        add(qxCode::NoSuchOption, kind, reference,
            QStringLiteral("\"%1\" is none of its options").arg(reference.state));
    if (!variant.hasFittingObject())
        return; // It is said once, of the variant.
    const qxLintVariant::Reach &reach = variant.reach(reference.state);
    if (!reach.isTaken)
        add(qxCode::StateUnknownToScene, kind, reference,
            QStringLiteral("\"%1\" in the scene does not take the state \"%2\"")
                .arg(variant.element().base, reference.state));
    noteFight(kind, reference, reach);
}

void SetLint::noteFight(const qxVariantKind *kind, const qxDocumentReference &reference,
                        const qxLintVariant::Reach &reach)
{
    bool isSaid = false;
    for (const qxLintVariant::Change &change : reach.changes) {
        const auto other = m_changed.constFind(change.key);
        if (other == m_changed.constEnd()) {
            m_changed.insert(change.key, {change, &reference, kind, reference.variant});
            continue;
        }
        const bool isSameVariant =
            other->reference && other->kind == kind && other->name == reference.variant;
        // Two toggles are no agreement, nor are two steps: the second goes on from the first.
        const bool isAgreed =
            change.isPut && other->change.isPut && change.value == other->change.value;
        if (isSaid || isSameVariant || isAgreed)
            continue;
        add(qxCode::FightingEntries, kind, reference,
            QStringLiteral("\"%1\" goes against %2").arg(reference.state, textOf(*other)));
        isSaid = true;
    }
}

void SetLint::lintNames(qxNameList list)
{
    const ListRule &rule = listRules[int(list)];
    QSet<QString> known;
    const auto say = [&](qxCode code, const qxDocumentText &name, const char *what) {
        const QString message =
            QStringLiteral("set \"%1\", %2 \"%3\": %4")
                .arg(m_set.name, QLatin1String(rule.word), name.text, QLatin1String(what));
        m_context.add(code, {rule.sort, m_set.name, nullptr, name.text, QString()}, message,
                      m_set.path, QString::fromLatin1(rule.tag), name.location);
    };
    for (const qxDocumentText &each : m_set.of(list)) {
        if (known.contains(each.text))
            say(qxCode::NameTwice, each, "it is listed already");
        else if (!(m_context.scene.*rule.has)(each.text))
            say(rule.missing, each, "the scene does not have it");
        known.insert(each.text);
    }
}

void SetLint::lintSnapshots()
{
    const QString tag = QStringLiteral("MaterialSnapshot");
    QSet<QString> known;
    for (const qxDocumentText &each : m_set.snapshots) {
        const qxFindingPlace place{qxFindingPlace::Snapshot, m_set.name, nullptr, each.text,
                                   QString()};
        const QString what = QStringLiteral("set \"%1\", snapshot of \"%2\": %3");
        if (known.contains(each.text))
            m_context.add(qxCode::NameTwice, place,
                          what.arg(m_set.name, each.text,
                                   QStringLiteral("a second one; only the last counts")),
                          m_set.path, tag, each.location);
        known.insert(each.text);
        if (!m_context.scene.hasPath(each.text))
            m_context.add(qxCode::NoSuchSnapshotPath, place,
                          what.arg(m_set.name, each.text, QStringLiteral("no node has that path")),
                          m_set.path, tag, each.location);
        if (!m_context.scene.hasMaterial(each.more))
            m_context.add(qxCode::NoSuchSnapshotMaterial, place,
                          what.arg(m_set.name, each.text,
                                   QStringLiteral("there is no material \"%1\"").arg(each.more)),
                          m_set.path, tag, each.location);
    }
}

void SetLint::lintRest(const qxLinter::Compile &compile)
{
    const QString &viewpoint = m_set.defaultViewpoint;
    if (!viewpoint.isEmpty() && !m_context.scene.hasViewpoint(viewpoint))
        m_context.add(qxCode::NoSuchDefaultViewpoint, qxLintContext::placeOf(m_set),
                      QStringLiteral("set \"%1\": there is no viewpoint \"%2\" to end at")
                          .arg(m_set.name, viewpoint),
                      m_set.path, m_set.location);
    if (m_set.isEmpty())
        m_context.add(
            qxCode::EmptySet, qxLintContext::placeOf(m_set),
            QStringLiteral("set \"%1\" holds nothing that a selection applies").arg(m_set.name),
            m_set.path, m_set.location);
    const QString error = m_set.script.text.isEmpty() ? QString() : compile(m_set.script.text);
    if (!error.isEmpty())
        m_context.add(qxCode::ScriptDoesNotCompile,
                      {qxFindingPlace::Script, m_set.name, nullptr, QString(), QString()},
                      QStringLiteral("set \"%1\": %2").arg(m_set.name, error), m_set.script.more,
                      m_set.script.location);
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

/// Sets of one name, and sets that do the same.
void compare(qxLintContext &context)
{
    context.addTwins(qxCode::SetTwice, QStringLiteral("set"), context.tree.sets);
    QHash<QByteArray, const qxDocumentSet *> first;
    for (const qxDocumentSet &set : context.tree.sets) {
        if (set.isEmpty())
            continue;
        const qxDocumentSet *&other = first[Digest().of(set)];
        if (other)
            context.add(
                qxCode::EqualSets, qxLintContext::placeOf(set),
                QStringLiteral("set \"%1\" does what set \"%2\" does").arg(set.name, other->name),
                set.path, set.location);
        else
            other = &set;
    }
}

} // namespace

void qxLintParts::lintSets(qxLintContext &context, const qxLinter::Compile &compile)
{
    for (const qxDocumentSet &set : context.tree.sets)
        SetLint(context, set).run(compile);
    compare(context);
}
