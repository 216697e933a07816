#include "qxSetEdits.h"

#include "qxVariantGroup.h"
#include "qxVariants.h"

#include "qxSetCommands.h"

namespace {

/// The steps pushed while it lives are one step of the user.
class MacroStep {
public:
    MacroStep(QUndoStack &stack, const QString &text) : m_stack(stack) { stack.beginMacro(text); }
    MacroStep(const MacroStep &) = delete;
    ~MacroStep() { m_stack.endMacro(); }

private:
    QUndoStack &m_stack;
};

qxSetMemento emptyContents(const QString &name)
{
    return qxSetMemento::of(qxVariantSet(name));
}

} // namespace

qxSetEdits::qxSetEdits(QObject *parent) : QObject(parent) {}

QString qxSetEdits::addSet(const QString &group)
{
    const QString name = qxVariants::getUniqueVariantSetName(tr("New Variant Set"));
    m_stack.push(new qxSetPresence(tr("Add \"%1\"").arg(name), qxSetPresence::Comes,
                                   emptyContents(name), {group, -1}));
    return name;
}

void qxSetEdits::tookSet(const QString &set)
{
    const qxVariantSet *const found = qxVariants::findVariantSet(set);
    if (found)
        m_stack.push(new qxSetPresence(tr("Capture \"%1\"").arg(set), qxSetPresence::IsThere,
                                       qxSetMemento::of(*found), qxSetPlace::of(*found)));
}

QString qxSetEdits::duplicateSet(const QString &set)
{
    const qxVariantSet *const found = qxVariants::findVariantSet(set);
    if (!found)
        return QString();
    qxSetMemento copy = qxSetMemento::of(*found);
    copy.name = qxVariants::getUniqueVariantSetName(set);
    copy.hotkey.clear(); // A key selects one set.
    qxSetPlace place = qxSetPlace::of(*found);
    place.row += place.row < 0 ? 0 : 1;
    m_stack.push(
        new qxSetPresence(tr("Duplicate \"%1\"").arg(set), qxSetPresence::Comes, copy, place));
    return copy.name;
}

void qxSetEdits::removeSets(const QStringList &sets)
{
    const QString what = sets.size() == 1 ? tr("Delete \"%1\"").arg(sets.first())
                                          : tr("Delete %n sets", nullptr, sets.size());
    const MacroStep step(m_stack, what);
    // From the last to the first: undoing brings each back to a place that is there again.
    for (auto name = sets.rbegin(); name != sets.rend(); ++name) {
        if (const qxVariantSet *const set = qxVariants::findVariantSet(*name))
            m_stack.push(new qxSetPresence(what, qxSetPresence::Goes, qxSetMemento::of(*set),
                                           qxSetPlace::of(*set)));
    }
}

void qxSetEdits::renameSet(const QString &set, const QString &name)
{
    if (name.trimmed().isEmpty() || name == set)
        return;
    const QString given = qxVariants::getUniqueVariantSetName(name);
    editSet(set, tr("Rename \"%1\"").arg(set),
            [&given](qxVariantSet &edited) { edited.name = given; });
}

void qxSetEdits::editSet(const QString &set, const QString &what,
                         const std::function<void(qxVariantSet &)> &change)
{
    qxVariantSet *const found = qxVariants::findVariantSet(set);
    if (!found)
        return;
    const qxSetMemento before = qxSetMemento::of(*found);
    change(*found);
    const qxSetMemento after = qxSetMemento::of(*found);
    before.applyTo(*found); // The command makes the change, so that it is announced once.
    m_stack.push(new qxSetEdit(what, before, after));
}

void qxSetEdits::moveSets(const QStringList &sets, const QString &group, int row)
{
    const MacroStep step(m_stack,
                         sets.size() == 1 ? tr("Move \"%1\"").arg(sets.first())
                                          : tr("Move %n sets", nullptr, sets.size()));
    for (const QString &name : sets) {
        const qxVariantSet *const set = qxVariants::findVariantSet(name);
        if (!set)
            continue;
        const qxSetPlace from = qxSetPlace::of(*set);
        // Taken out first, a set that stood before the place moves it by one.
        if (row > 0 && from.group == group && from.row >= 0 && from.row < row)
            --row;
        m_stack.push(new qxSetMove(tr("Move \"%1\"").arg(name), name, from, {group, row}));
        if (row >= 0)
            ++row;
    }
}

QString qxSetEdits::addGroup()
{
    const QString name = qxVariants::getUniqueVariantGroupName(tr("New Group"));
    m_stack.push(new qxGroupPresence(tr("Add group \"%1\"").arg(name), true, name, QString()));
    return name;
}

void qxSetEdits::renameGroup(const QString &group, const QString &name)
{
    const qxVariantGroup *const found = qxVariants::findVariantGroup(group);
    if (!found || name.trimmed().isEmpty() || name == group)
        return;
    const QString given = qxVariants::getUniqueVariantGroupName(name);
    m_stack.push(new qxGroupEdit(tr("Rename group \"%1\"").arg(group), {group, found->comment},
                                 {given, found->comment}));
}

void qxSetEdits::commentGroup(const QString &group, const QString &comment)
{
    const qxVariantGroup *const found = qxVariants::findVariantGroup(group);
    if (found && found->comment != comment)
        m_stack.push(new qxGroupEdit(tr("Comment group \"%1\"").arg(group), {group, found->comment},
                                     {group, comment}));
}

void qxSetEdits::removeGroup(const QString &group, bool withSets)
{
    const qxVariantGroup *const found = qxVariants::findVariantGroup(group);
    if (!found)
        return;
    const MacroStep step(m_stack, tr("Delete group \"%1\"").arg(group));
    QStringList sets;
    for (const qxVariantSet *set : found->sets)
        sets.append(set->name);
    if (withSets)
        removeSets(sets);
    else
        moveSets(sets, QString(), -1);
    m_stack.push(
        new qxGroupPresence(tr("Delete group \"%1\"").arg(group), false, group, found->comment));
}
