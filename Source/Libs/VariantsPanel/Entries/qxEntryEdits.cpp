#include "qxEntryEdits.h"

#include "qxVariant.h"
#include "qxVariantKinds.h"
#include "qxVariantSet.h"

#include "Undo/qxSetEdits.h"
#include "Undo/qxVariantEdits.h"
#include "qxFindCache.h"
#include "qxNameLookUp.h"
#include "qxNames.h"

#include <QCoreApplication>
#include <QHash>
#include <QUndoStack>

#include <algorithm>

namespace {

/// The texts of the steps.
struct EntryTexts {
    Q_DECLARE_TR_FUNCTIONS(qxEntryEdits)
};

/// For a text about one entry; empty for one about several.
QString oneOf(const qxEntryEdits::Entries &entries)
{
    return entries.size() == 1 ? qxSetEntries::nameOf(entries.front()) : QString();
}

void putAll(qxSetEdits &edits, const QString &set, const QString &what,
            const qxEntryEdits::Entries &entries)
{
    edits.editSet(set, what, [&](qxVariantSet &edited) {
        const qxUnchangedNames unchanged;
        for (const qxSetEntry &each : entries)
            qxSetEntries::put(edited, each);
    });
}

void addStates(QUndoStack &steps, const QString &set, const qxVariantEdits::States &states)
{
    const qxFindCache cache(states.size() > 1);
    qxVariantEdits::addToSet(steps, set, states);
}

/// Variants by kind and by the name of what they drive.
class Drivers {
public:
    std::vector<qxVariantName> of(const qxVariantKind &kind, const QString &sceneName)
    {
        Known &known = m_known[&kind];
        if (!known.isRead) {
            kind.visit([&](qxVariant &each) {
                known.names[each.*kind.sceneName].push_back({&kind, each.name});
            });
            known.isRead = true;
        }
        return known.names.value(sceneName);
    }

private:
    struct Known {
        bool isRead = false;
        QHash<QString, std::vector<qxVariantName>> names;
    };
    QHash<const qxVariantKind *, Known> m_known;
};

QString sceneNameOf(const qxVariantKind &kind, const osg::NodePtr &node)
{
    return &kind == &qxVariantKinds::material ? qxNames::nameOf(qxNodeUtils::getMaterial(node))
                                              : qxNames::nameOf(node);
}

/// What is to be done with nodes.
struct NodePlan {
    std::vector<qxVariantName> variants; ///< that drive them
    std::vector<std::pair<const qxVariantKind *, std::vector<osg::NodePtr>>> missing;
    QStringList notes; ///< what to tell
};

void planToMake(NodePlan &plan, const qxVariantKind &kind, const osg::NodePtr &node)
{
    const auto found = std::find_if(plan.missing.begin(), plan.missing.end(),
                                    [&](const auto &each) { return each.first == &kind; });
    if (found == plan.missing.end())
        plan.missing.push_back({&kind, {node}});
    else
        found->second.push_back(node);
}

NodePlan planOf(const std::vector<qxNodePtr> &nodes)
{
    NodePlan plan;
    Drivers drivers;
    for (const qxNodePtr &node : nodes) {
        const qxVariantEdits::Kinds kinds = qxVariantEdits::kindsOf(node);
        const std::size_t before = plan.variants.size();
        for (const qxVariantKind *kind : kinds) {
            const auto known = drivers.of(*kind, sceneNameOf(*kind, node));
            plan.variants.insert(plan.variants.end(), known.begin(), known.end());
        }
        if (plan.variants.size() > before)
            continue;
        if (kinds.empty())
            plan.notes << EntryTexts::tr("No variant can drive \"%1\".").arg(qxNames::nameOf(node));
        else
            planToMake(plan, *kinds.front(), node);
    }
    return plan;
}

/// Makes what is missing; says how many variants are new.
int make(NodePlan &plan, QUndoStack &steps)
{
    int count = 0;
    for (const auto &[kind, nodes] : plan.missing) {
        const qxVariantEdits::Created created = qxVariantEdits::createOf(steps, *kind, nodes);
        plan.notes << created.notes;
        plan.variants.insert(plan.variants.end(), created.made.begin(), created.made.end());
        plan.variants.insert(plan.variants.end(), created.known.begin(), created.known.end());
        count += int(created.made.size());
    }
    return count;
}

/// Ends what was begun as one step; without a part there is none.
void endMacro(QUndoStack &steps)
{
    steps.endMacro();
    const QUndoCommand *const last = steps.command(steps.index() - 1);
    if (last->childCount() > 0)
        return;
    const_cast<QUndoCommand *>(last)->setObsolete(true);
    steps.undo();
}

} // namespace

void qxEntryEdits::setState(qxSetEdits &edits, const QString &set, const Entries &entries,
                            const QString &state)
{
    Entries others = entries;
    for (qxSetEntry &each : others)
        each.state = state;
    const QString name = oneOf(entries);
    putAll(
        edits, set,
        name.isEmpty()
            ? EntryTexts::tr("State of %n entries of \"%1\"", nullptr, int(entries.size())).arg(set)
            : EntryTexts::tr("State of \"%1\" in \"%2\"").arg(name, set),
        others);
}

void qxEntryEdits::takeShown(qxSetEdits &edits, const QString &set, const Entries &entries)
{
    const qxFindCache cache(true);
    Entries taken;
    for (qxSetEntry entry : entries) {
        entry.state =
            entry.kind ? qxVariantEdits::presentState(*entry.kind, entry.name) : QString();
        if (!entry.state.isEmpty())
            taken.push_back(entry);
    }
    const QString name = oneOf(taken);
    putAll(edits, set,
           name.isEmpty()
               ? EntryTexts::tr("Shown state of %n entries of \"%1\"", nullptr, int(taken.size()))
                     .arg(set)
               : EntryTexts::tr("Shown state of \"%1\" in \"%2\"").arg(name, set),
           taken);
}

void qxEntryEdits::remove(qxSetEdits &edits, const QString &set, const Entries &entries)
{
    const QString name = oneOf(entries);
    const QString what = name.isEmpty()
        ? EntryTexts::tr("Remove %n entries from \"%1\"", nullptr, int(entries.size())).arg(set)
        : EntryTexts::tr("Remove \"%1\" from \"%2\"").arg(name, set);
    edits.editSet(set, what, [&](qxVariantSet &edited) {
        for (const qxSetEntry &each : entries)
            qxSetEntries::remove(edited, each);
    });
}

void qxEntryEdits::add(qxSetEdits &edits, const QString &set, const Entries &entries)
{
    qxVariantEdits::States states;
    Entries others;
    for (const qxSetEntry &each : entries) {
        if (each.kind)
            states.push_back({each.kind, each.name, each.state});
        else
            others.push_back(each);
    }
    addStates(*edits.stack(), set, states);
    const QString name = oneOf(others);
    putAll(edits, set,
           name.isEmpty()
               ? EntryTexts::tr("Add %n entries to \"%1\"", nullptr, int(others.size())).arg(set)
               : EntryTexts::tr("Add \"%1\" to \"%2\"").arg(name, set),
           others);
}

QString qxEntryEdits::addNodes(qxSetEdits &edits, const QString &set,
                               const std::vector<qxNodePtr> &nodes)
{
    QUndoStack &steps = *edits.stack();
    NodePlan plan = planOf(nodes);
    steps.beginMacro(
        EntryTexts::tr("Add what %n nodes show to \"%1\"", nullptr, int(nodes.size())).arg(set));
    const int made = make(plan, steps);
    qxVariantEdits::States states;
    for (const qxVariantName &each : plan.variants)
        states.push_back({each.kind, each.name, QString()});
    addStates(steps, set, states);
    endMacro(steps);
    if (made > 0)
        plan.notes.prepend(EntryTexts::tr("%n variants were made for it.", nullptr, made));
    return plan.notes.join('\n');
}
