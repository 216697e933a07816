#include "qxSetUndoSteps.h"

#include "qxVariantGroup.h"
#include "qxVariants.h"

#include "qxPanelChanges.h"

#include <QCoreApplication>

namespace {

///@{
/// Of steps that may become one.
const int editId = 1;
const int previewsId = 2;
///@}

QString groupOf(const qxVariantSet &set)
{
    return set.group ? QString(set.group->name) : QString();
}

} // namespace

qxSetsPresence::qxSetsPresence(const QString &text, Way way, std::vector<Part> parts)
    : qxEditStep(text), m_comes(way == Come), m_parts(std::move(parts))
{
}

bool qxSetsPresence::perform(bool forward)
{
    return forward == m_comes ? appear() : vanish();
}

bool qxSetsPresence::appear()
{
    std::vector<qxPlaces::Placed> placed;
    for (Part &part : m_parts) {
        // Others may have taken the name meanwhile: the set comes back all the same.
        if (qxVariants::findVariantSet(part.contents.name))
            part.contents.name = qxVariants::getUniqueVariantSetName(part.contents.name);
        qxVariantSet *const set = qxVariants::createVariantSet(part.contents.name, false, nullptr);
        part.contents.applyTo(*set);
        placed.push_back({set, part.place});
    }
    qxPlaces::put(std::move(placed));
    Q_EMIT qxPanelChanges::the().setsEdited();
    return true;
}

bool qxSetsPresence::vanish()
{
    const auto places = qxPlaces::now();
    std::vector<Part> found;
    for (const Part &part : m_parts) {
        if (const qxVariantSet *set = qxVariants::findVariantSet(part.contents.name))
            found.push_back({qxSetMemento::of(*set), places.value(set)});
    }
    if (found.empty())
        return false;
    for (const Part &part : found)
        qxVariants::removeVariantSet(part.contents.name);
    m_parts = std::move(found);
    return true;
}

qxSetEdit::qxSetEdit(const QString &text, const qxSetMemento &before, const qxSetMemento &after,
                     const QString &field)
    : qxEditStep(text), m_before(before), m_after(after), m_field(field)
{
}

static qxSetMemento changed(qxVariantSet &set, const std::function<void(qxVariantSet &)> &change)
{
    change(set);
    return qxSetMemento::of(set);
}

qxSetEdit::qxSetEdit(qxVariantSet &set, const std::function<void(qxVariantSet &)> &change)
    : qxEditStep(QString(), true), m_before(qxSetMemento::of(set)), m_after(changed(set, change))
{
}

int qxSetEdit::id() const
{
    return m_field.isEmpty() ? -1 : editId;
}

bool qxSetEdit::mergeWith(const QUndoCommand *next)
{
    const auto &edit = static_cast<const qxSetEdit &>(*next);
    if (edit.m_field != m_field || edit.m_before.name != m_after.name)
        return false;
    m_after = edit.m_after;
    setObsolete(!qxSetMemento::differ(m_before, m_after));
    return true;
}

bool qxSetEdit::perform(bool forward)
{
    const qxSetMemento &from = forward ? m_before : m_after;
    const qxSetMemento &to = forward ? m_after : m_before;
    qxVariantSet *const set = qxVariants::findVariantSet(from.name);
    const bool isNameFree = from.name == to.name || !qxVariants::findVariantSet(to.name);
    if (!set || !isNameFree || !qxSetMemento::edit(*set, from, to))
        return false;
    Q_EMIT qxPanelChanges::the().setsEdited();
    return true;
}

qxPreviewsEdit::qxPreviewsEdit(const Previews &before, const Previews &after, int run)
    : qxEditStep(textOf(after)), m_before(before), m_after(after), m_run(run)
{
}

QString qxPreviewsEdit::textOf(const Previews &previews)
{
    return previews.size() == 1
        ? QCoreApplication::translate("qxSetEdits", "Preview of \"%1\"").arg(previews.firstKey())
        : QCoreApplication::translate("qxSetEdits", "Previews of %n sets", nullptr,
                                      previews.size());
}

int qxPreviewsEdit::id() const
{
    return m_run == 0 ? -1 : previewsId;
}

bool qxPreviewsEdit::mergeWith(const QUndoCommand *next)
{
    const auto &edit = static_cast<const qxPreviewsEdit &>(*next);
    if (edit.m_run != m_run)
        return false;
    for (const QString &set : edit.m_after.keys()) {
        if (!m_before.contains(set))
            m_before[set] = edit.m_before[set];
        m_after[set] = edit.m_after[set];
    }
    setText(textOf(m_after));
    return true;
}

/// Sets that got other previews meanwhile keep them.
bool qxPreviewsEdit::perform(bool forward)
{
    const Previews &from = forward ? m_before : m_after;
    const Previews &to = forward ? m_after : m_before;
    bool isAnyDone = false;
    for (const QString &name : to.keys()) {
        qxVariantSet *const set = qxVariants::findVariantSet(name);
        if (!set || set->preview != from[name])
            continue;
        set->setPreview(to[name]);
        isAnyDone = true;
    }
    if (isAnyDone)
        Q_EMIT qxPanelChanges::the().setsEdited();
    return isAnyDone;
}

qxSetsMove::qxSetsMove(const QString &text, std::vector<Part> parts)
    : qxEditStep(text), m_parts(std::move(parts))
{
}

bool qxSetsMove::perform(bool forward)
{
    std::vector<qxPlaces::Placed> placed;
    for (const Part &part : m_parts) {
        const qxSetPlace &to = forward ? part.to : part.from;
        qxVariantSet *const set = qxVariants::findVariantSet(part.set);
        const bool isTargetThere = to.group.isEmpty() || qxVariants::findVariantGroup(to.group);
        if (set && isTargetThere && groupOf(*set) == (forward ? part.from : part.to).group)
            placed.push_back({set, to});
    }
    if (placed.empty())
        return false;
    qxPlaces::put(std::move(placed));
    Q_EMIT qxPanelChanges::the().setsEdited();
    return true;
}

qxGroupPresence::qxGroupPresence(const QString &text, bool comes, const Contents &contents)
    : qxEditStep(text), m_comes(comes), m_contents(contents)
{
}

bool qxGroupPresence::perform(bool forward)
{
    qxVariantGroup *group = qxVariants::findVariantGroup(m_contents.name);
    const bool appears = forward == m_comes;
    if (appears == bool(group)) // Others were here first.
        return false;
    if (!appears && !group->sets.empty()) // Others have put them in.
        return false;
    if (!appears) {
        m_contents = {group->name, group->comment, qxPlaces::indexOf(*group), group->visible};
        return qxVariants::removeVariantGroup(m_contents.name);
    }
    group = qxVariants::createVariantGroup(m_contents.name, false, m_contents.isVisible);
    group->comment = m_contents.comment;
    qxPlaces::put({qxPlaces::PlacedGroup{group, m_contents.index}});
    Q_EMIT qxPanelChanges::the().setsEdited();
    return true;
}

qxGroupEdit::qxGroupEdit(const QString &text, const Contents &before, const Contents &after)
    : qxEditStep(text), m_before(before), m_after(after)
{
}

bool qxGroupEdit::perform(bool forward)
{
    const Contents &from = forward ? m_before : m_after;
    const Contents &to = forward ? m_after : m_before;
    qxVariantGroup *const group = qxVariants::findVariantGroup(from.name);
    const bool isNameFree = from.name == to.name || !qxVariants::findVariantGroup(to.name);
    if (!group || !isNameFree || group->comment != from.comment || group->visible != from.isVisible)
        return false;
    group->name = to.name;
    group->comment = to.comment;
    group->visible = to.isVisible;
    Q_EMIT qxPanelChanges::the().setsEdited();
    return true;
}

qxGroupsMove::qxGroupsMove(const QString &text, std::vector<Part> parts)
    : qxEditStep(text), m_parts(std::move(parts))
{
}

bool qxGroupsMove::perform(bool forward)
{
    std::vector<qxPlaces::PlacedGroup> placed;
    for (const Part &part : m_parts) {
        if (qxVariantGroup *group = qxVariants::findVariantGroup(part.group))
            placed.push_back({group, forward ? part.to : part.from});
    }
    if (placed.empty())
        return false;
    qxPlaces::put(placed);
    Q_EMIT qxPanelChanges::the().setsEdited();
    return true;
}
