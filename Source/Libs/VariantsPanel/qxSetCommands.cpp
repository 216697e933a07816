#include "qxSetCommands.h"

#include "qxVariantGroup.h"
#include "qxVariants.h"

#include "qxPanelEvents.h"

#include <algorithm>

qxSetPlace qxSetPlace::of(const qxVariantSet &set)
{
    if (!set.group)
        return qxSetPlace();
    const qxVariantGroup::Sets &sets = set.group->sets;
    return {set.group->name, int(std::find(sets.begin(), sets.end(), &set) - sets.begin())};
}

void qxSetPlace::take(qxVariantSet &set) const
{
    if (set.group)
        set.group->remove(&set);
    qxVariantGroup *const target = qxVariants::findVariantGroup(group);
    if (!target)
        return;
    const int count = int(target->sets.size());
    target->insert(target->sets.begin() + (row < 0 ? count : std::min(row, count)), &set);
}

qxSetPresence::qxSetPresence(const QString &text, Way way, const qxSetMemento &contents,
                             const qxSetPlace &place)
    : QUndoCommand(text), m_way(way), m_contents(contents), m_place(place)
{
}

void qxSetPresence::redo()
{
    if (m_way == IsThere)
        m_way = Comes;
    else
        m_way == Comes ? appear() : vanish();
}

void qxSetPresence::undo()
{
    m_way == Comes ? vanish() : appear();
}

void qxSetPresence::appear()
{
    qxVariantSet *const set = qxVariants::createVariantSet(m_contents.name, false, nullptr);
    if (!set)
        return setObsolete(true);
    m_contents.applyTo(*set);
    m_place.take(*set);
    qxPanelEvents::announceEditedSets();
}

void qxSetPresence::vanish()
{
    const qxVariantSet *const set = qxVariants::findVariantSet(m_contents.name);
    if (!set)
        return setObsolete(true);
    m_contents = qxSetMemento::of(*set);
    m_place = qxSetPlace::of(*set);
    qxVariants::removeVariantSet(m_contents.name);
}

qxSetEdit::qxSetEdit(const QString &text, const qxSetMemento &before, const qxSetMemento &after)
    : QUndoCommand(text), m_before(before), m_after(after)
{
}

void qxSetEdit::change(const qxSetMemento &from, const qxSetMemento &to)
{
    qxVariantSet *const set = qxVariants::findVariantSet(from.name);
    if (!set || (from.name != to.name && qxVariants::findVariantSet(to.name)))
        return setObsolete(true);
    to.applyTo(*set);
    qxPanelEvents::announceEditedSets();
}

qxSetMove::qxSetMove(const QString &text, const QString &set, const qxSetPlace &from,
                     const qxSetPlace &to)
    : QUndoCommand(text), m_set(set), m_from(from), m_to(to)
{
}

void qxSetMove::move(const qxSetPlace &place)
{
    qxVariantSet *const set = qxVariants::findVariantSet(m_set);
    if (!set)
        return setObsolete(true);
    place.take(*set);
    qxPanelEvents::announceEditedSets();
}

qxGroupPresence::qxGroupPresence(const QString &text, bool comes, const QString &name,
                                 const QString &comment)
    : QUndoCommand(text), m_comes(comes), m_name(name), m_comment(comment)
{
}

void qxGroupPresence::appear()
{
    qxVariantGroup *const group = qxVariants::createVariantGroup(m_name, false, true);
    if (!group)
        return setObsolete(true);
    group->comment = m_comment;
    qxPanelEvents::announceEditedSets();
}

void qxGroupPresence::vanish()
{
    const qxVariantGroup *const group = qxVariants::findVariantGroup(m_name);
    if (!group)
        return setObsolete(true);
    m_comment = group->comment;
    qxVariants::removeVariantGroup(m_name);
}

qxGroupEdit::qxGroupEdit(const QString &text, const Texts &before, const Texts &after)
    : QUndoCommand(text), m_before(before), m_after(after)
{
}

void qxGroupEdit::change(const Texts &from, const Texts &to)
{
    qxVariantGroup *const group = qxVariants::findVariantGroup(from.name);
    if (!group || (from.name != to.name && qxVariants::findVariantGroup(to.name)))
        return setObsolete(true);
    group->name = to.name;
    group->comment = to.comment;
    qxPanelEvents::announceEditedSets();
}
