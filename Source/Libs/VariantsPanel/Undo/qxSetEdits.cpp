#include "qxSetEdits.h"

#include "qxVariantGroup.h"
#include "qxVariants.h"

#include "qxCaptureRecord.h"
#include "qxNodeUtils.h"
#include "qxPanelChanges.h"
#include "qxSetUndoSteps.h"
#include "qxText.h"

#include <QHash>

#include <algorithm>
#include <memory>
#include <optional>

namespace {

const int undoLimit = 500; ///< steps; those with previews take some room

/// The steps pushed while it lives are one step of the user.
class MacroStep {
public:
    MacroStep(QUndoStack &stack, const QString &text) : m_stack(stack) { stack.beginMacro(text); }
    MacroStep(const MacroStep &) = delete;
    MacroStep &operator=(const MacroStep &) = delete;
    ~MacroStep() { m_stack.endMacro(); }

private:
    QUndoStack &m_stack;
};

std::vector<qxSetsPresence::Part> partsOf(const QStringList &sets)
{
    const auto places = qxPlaces::now();
    std::vector<qxSetsPresence::Part> parts;
    for (const qxVariantSet *set : qxPlaces::setsNamed(sets))
        parts.push_back({qxSetMemento::of(*set), places.value(set)});
    return parts;
}

/// Gives each copy the place behind its original, which is the one that it has till then.
void placeBehind(std::vector<qxSetsPresence::Part> &copies)
{
    const auto sort = [&copies](int qxSetPlace::*key) {
        std::stable_sort(copies.begin(), copies.end(), [key](const auto &one, const auto &other) {
            return one.place.*key < other.place.*key;
        });
    };
    sort(&qxSetPlace::row);
    QHash<QString, int> before; // copies in that group
    for (qxSetsPresence::Part &copy : copies) {
        if (copy.place.row >= 0)
            copy.place.row += ++before[copy.place.group];
    }
    sort(&qxSetPlace::index);
    int count = 0;
    for (qxSetsPresence::Part &copy : copies)
        copy.place.index += ++count;
}

/// Gives each copy a name of its own.
void nameAnew(std::vector<qxSetsPresence::Part> &copies)
{
    std::vector<std::string> taken;
    for (const qxVariantSet *set : qxVariants::_variantSets)
        taken.push_back(qxText::toUtf8(set->name));
    for (qxSetsPresence::Part &copy : copies) {
        taken.push_back(qxNodeUtils::getUniqueName(qxText::toUtf8(copy.contents.name), taken));
        copy.contents.name = qxText::fromUtf8(taken.back());
    }
}

QStringList setsIn(const qxVariantGroup &group)
{
    QStringList names;
    for (const qxVariantSet *set : group.sets)
        names.append(set->name);
    return names;
}

/// Adds the group.
std::unique_ptr<qxEditStep> groupStep(const QString &name)
{
    return std::make_unique<qxGroupPresence>(qxSetEdits::tr("Add group \"%1\"").arg(name), true,
                                             qxGroupPresence::Contents{name, {}, -1, true});
}

qxGroupEdit::Contents contentsOf(const qxVariantGroup &group)
{
    return {group.name, group.comment, group.visible};
}

} // namespace

qxSetEdits::qxSetEdits(QObject *parent) : QObject(parent)
{
    m_stack.setUndoLimit(undoLimit);
}

QString qxSetEdits::addSet(const QString &group)
{
    const QString name = qxVariants::getUniqueVariantSetName(tr("New Variant Set"));
    m_stack.push(
        new qxSetsPresence(tr("Add \"%1\"").arg(name), qxSetsPresence::Come,
                           {{qxSetMemento::of(qxVariantSet(name)), qxSetPlace{group, -1, -1}}}));
    return name;
}

QStringList qxSetEdits::duplicateSets(const QStringList &sets)
{
    std::vector<qxSetsPresence::Part> copies = partsOf(sets);
    if (copies.empty())
        return QStringList();
    const QString what = copies.size() == 1
        ? tr("Duplicate \"%1\"").arg(copies.front().contents.name)
        : tr("Duplicate %n sets", nullptr, int(copies.size()));
    placeBehind(copies);
    nameAnew(copies);
    QStringList names;
    for (qxSetsPresence::Part &copy : copies) {
        copy.contents.hotkey.clear(); // A key selects one set.
        names << copy.contents.name;
    }
    m_stack.push(new qxSetsPresence(what, qxSetsPresence::Come, std::move(copies)));
    return names;
}

void qxSetEdits::removeSets(const QStringList &sets)
{
    std::vector<qxSetsPresence::Part> parts = partsOf(sets);
    if (parts.empty())
        return;
    const QString what = parts.size() == 1 ? tr("Delete \"%1\"").arg(parts.front().contents.name)
                                           : tr("Delete %n sets", nullptr, int(parts.size()));
    m_stack.push(new qxSetsPresence(what, qxSetsPresence::Go, std::move(parts)));
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
                         const std::function<void(qxVariantSet &)> &change, const QString &field)
{
    qxVariantSet *const found = qxVariants::findVariantSet(set);
    if (!found)
        return;
    const qxSetMemento before = qxSetMemento::of(*found);
    change(*found);
    const qxSetMemento after = qxSetMemento::of(*found);
    before.applyTo(*found); // The step makes the change, so that it is announced once.
    if (qxSetMemento::differ(before, after))
        m_stack.push(new qxSetEdit(what, before, after, field));
}

void qxSetEdits::setPreviews(const QMap<QString, QByteArray> &previews, int run)
{
    qxPreviewsEdit::Previews before;
    qxPreviewsEdit::Previews after;
    for (auto preview = previews.begin(); preview != previews.end(); ++preview) {
        const qxVariantSet *const set = qxVariants::findVariantSet(preview.key());
        if (!set || set->preview == preview.value())
            continue;
        before[set->name] = set->preview;
        after[set->name] = preview.value();
    }
    if (!after.isEmpty())
        m_stack.push(new qxPreviewsEdit(before, after, run));
}

QString qxSetEdits::addGroup()
{
    const QString name = qxVariants::getUniqueVariantGroupName(tr("New Group"));
    m_stack.push(groupStep(name).release());
    return name;
}

void qxSetEdits::renameGroup(const QString &group, const QString &name)
{
    const qxVariantGroup *const found = qxVariants::findVariantGroup(group);
    if (!found || name.trimmed().isEmpty() || name == group)
        return;
    const QString given = qxVariants::getUniqueVariantGroupName(name);
    qxGroupEdit::Contents after = contentsOf(*found);
    after.name = given;
    m_stack.push(new qxGroupEdit(tr("Rename group \"%1\"").arg(group), contentsOf(*found), after));
}

void qxSetEdits::commentGroup(const QString &group, const QString &comment)
{
    const qxVariantGroup *const found = qxVariants::findVariantGroup(group);
    if (!found || found->comment == comment)
        return;
    qxGroupEdit::Contents after = contentsOf(*found);
    after.comment = comment;
    m_stack.push(new qxGroupEdit(tr("Comment group \"%1\"").arg(group), contentsOf(*found), after));
}

void qxSetEdits::setGroupVisible(const QString &group, bool isVisible)
{
    const qxVariantGroup *const found = qxVariants::findVariantGroup(group);
    if (!found || found->visible == isVisible)
        return;
    qxGroupEdit::Contents after = contentsOf(*found);
    after.isVisible = isVisible;
    m_stack.push(new qxGroupEdit(isVisible ? tr("Show group \"%1\"").arg(group)
                                           : tr("Hide group \"%1\"").arg(group),
                                 contentsOf(*found), after));
}

/// Takes the sets out of their group; in the registry they stay where they are.
void qxSetEdits::leaveGroup(const QStringList &sets)
{
    const auto places = qxPlaces::now();
    std::vector<qxSetsMove::Part> parts;
    for (const qxVariantSet *set : qxPlaces::setsNamed(sets)) {
        const qxSetPlace from = places.value(set);
        parts.push_back({set->name, from, {QString(), -1, from.index}});
    }
    if (!parts.empty())
        m_stack.push(new qxSetsMove(QString(), std::move(parts)));
}

void qxSetEdits::removeGroup(const QString &group, bool withSets)
{
    const qxVariantGroup *const found = qxVariants::findVariantGroup(group);
    if (!found)
        return;
    const QStringList sets = setsIn(*found);
    const qxGroupPresence::Contents contents{group, found->comment, qxPlaces::indexOf(*found),
                                             found->visible};
    const MacroStep step(m_stack,
                         withSets ? tr("Delete group \"%1\" with its sets").arg(group)
                                  : tr("Delete group \"%1\"").arg(group));
    if (withSets)
        removeSets(sets);
    else
        leaveGroup(sets);
    m_stack.push(new qxGroupPresence(QString(), false, contents));
}

void qxSetEdits::remove(const QStringList &sets, const QStringList &groups, bool withSets)
{
    if (groups.isEmpty())
        return removeSets(sets);
    if (sets.isEmpty() && groups.size() == 1)
        return removeGroup(groups.first(), withSets);
    const MacroStep step(m_stack, tr("Delete the selection"));
    removeSets(sets);
    for (const QString &group : groups)
        removeGroup(group, withSets);
}

QString qxSetEdits::captureSet(const QString &name, const QString &group, qxCaptureRecord &record,
                               const std::function<void(qxVariantSet &)> &capture)
{
    if (name.isEmpty() || qxVariants::findVariantSet(name))
        return QString();
    std::unique_ptr<qxEditStep> newGroup;
    if (!group.isEmpty() && !qxVariants::findVariantGroup(group)) {
        newGroup = groupStep(group);
        newGroup->makeNow();
    }
    // Listeners may remove the set whenever it is announced.
    if (qxVariantSet *const set =
            qxVariants::createVariantSet(name, true, qxVariants::findVariantGroup(group)))
        capture(*set);
    const qxVariantSet *const captured = qxVariants::findVariantSet(name);
    std::unique_ptr<qxEditStep> ofSet;
    if (captured)
        ofSet = std::make_unique<qxSetsPresence>(QString(), qxSetsPresence::Come, partsOf({name}));
    const QString what = tr("Capture \"%1\"").arg(name);
    std::optional<MacroStep> both;
    if (newGroup) {
        both.emplace(m_stack, what);
        m_stack.push(newGroup.release());
    }
    m_stack.push(record.finish(what, name, std::move(ofSet)).release());
    Q_EMIT qxPanelChanges::the().setsEdited();
    return captured ? name : QString();
}

void qxSetEdits::captureAgain(const QString &set, qxCaptureRecord &record,
                              const std::function<void(qxVariantSet &)> &capture)
{
    qxVariantSet *const found = qxVariants::findVariantSet(set);
    if (!found)
        return;
    const qxSetMemento before = qxSetMemento::of(*found);
    capture(*found);
    std::unique_ptr<qxEditStep> ofSet;
    if (const qxVariantSet *captured = qxVariants::findVariantSet(set)) // It may be gone by now.
        ofSet =
            std::make_unique<qxSetEdit>(QString(), before, qxSetMemento::of(*captured), QString());
    m_stack.push(record.finish(tr("Update \"%1\"").arg(set), set, std::move(ofSet)).release());
    Q_EMIT qxPanelChanges::the().setsEdited();
}
