#include "qxProblemFixes.h"

#include "qxVariant.h"
#include "qxVariantKind.h"
#include "qxVariantSet.h"

#include "Undo/qxSetEdits.h"
#include "Undo/qxVariantEdits.h"

#include <QMap>

#include <algorithm>

struct qxProblemFixes::Row {
    qxCode code;
    Sort fix;
};

// A list, not a procedure.
const std::vector<qxProblemFixes::Row> &qxProblemFixes::rows()
{
    static const std::vector<Row> rows{
        {qxCode::ReferenceTwice, RemoveEntry},
        {qxCode::NameTwice, RemoveEntry},
        {qxCode::NoSuchVariant, RemoveEntry},
        {qxCode::NoSuchOption, AddOption},
        {qxCode::NoSuchOption, RemoveEntry},
        {qxCode::StateUnknownToScene, RemoveEntry},
        {qxCode::NoSuchViewpoint, RemoveEntry},
        {qxCode::NoSuchAnimation, RemoveEntry},
        {qxCode::NoSuchGeometry, RemoveEntry},
        {qxCode::NoSuchTarget, RemoveEntry},
        {qxCode::NoSuchSnapshotPath, RemoveEntry},
        {qxCode::NoSuchSnapshotMaterial, RemoveEntry},
        {qxCode::FightingEntries, RemoveEntry},
        {qxCode::NoSuchDefaultViewpoint, RemoveDefaultViewpoint},
        {qxCode::UnreadableHotkey, RemoveHotkey},
        {qxCode::HotkeyTwice, RemoveHotkey},
        {qxCode::OptionUnknownToScene, RemoveOption},
        {qxCode::OptionWithoutName, RemoveOption},
        {qxCode::UnusedOption, RemoveOption},
        {qxCode::DefaultIsNoOption, ClearDefault},
        {qxCode::EqualSets, RemoveSet},
        {qxCode::EmptySet, RemoveSet},
        {qxCode::EmptyGroup, RemoveGroup},
        {qxCode::NoSceneObject, RemoveVariant},
        {qxCode::NoOptions, RemoveVariant},
        {qxCode::UnusedVariant, RemoveVariant},
    };
    return rows;
}

QString qxProblemFixes::textOf(Sort sort, int count)
{
    switch (sort) {
    case RemoveEntry:
        return tr("Remove %n entries", nullptr, count);
    case RemoveDefaultViewpoint:
        return tr("Remove %n default viewpoints", nullptr, count);
    case RemoveHotkey:
        return tr("Remove %n hotkeys", nullptr, count);
    case AddOption:
        return tr("Add %n options to their variants", nullptr, count);
    case RemoveOption:
        return tr("Remove %n options", nullptr, count);
    case ClearDefault:
        return tr("Clear %n default states", nullptr, count);
    case RemoveSet:
        return tr("Delete %n sets", nullptr, count);
    case RemoveGroup:
        return tr("Delete %n groups", nullptr, count);
    default:
        return tr("Delete %n variants with their entries in sets", nullptr, count);
    }
}

QList<qxProblemFixes::Fix> qxProblemFixes::of(const qxFindings &findings) const
{
    QMap<Sort, qxFindings> fitting;
    for (const qxFinding &finding : findings) {
        for (const Row &row : rows()) {
            qxFindings &others = fitting[row.fix];
            const auto isSame = [&](const qxFinding &each) { return each.place == finding.place; };
            if (row.code == finding.code && std::none_of(others.begin(), others.end(), isSame))
                others += finding;
        }
    }
    QList<Fix> fixes;
    for (auto each = fitting.begin(); each != fitting.end(); ++each) {
        const Sort sort = each.key();
        const qxFindings fixed = each.value();
        if (!fixed.isEmpty())
            fixes.append({textOf(sort, fixed.size()),
                          [self = *this, sort, fixed] { self.run(sort, fixed); }});
    }
    return fixes;
}

namespace {

typedef qxFindingPlace Place;

void takeOut(qxVariantSet &set, const qxFinding &finding)
{
    const Place &place = finding.place;
    switch (place.sort) {
    case Place::Reference:
        return (set.*place.kind->states).remove(place.name);
    case Place::Viewpoint:
        return set.removeViewpoint(place.name);
    case Place::Animation:
        return set.removeAnimation(place.name);
    case Place::Geometry:
        return set.removeGeometry(place.name);
    case Place::Target:
        return set.targetNodeNames.remove(place.name);
    case Place::Snapshot:
        set.materialSnapshots.remove(place.name);
        return;
    default:
        break;
    }
    if (finding.code == qxCode::NoSuchDefaultViewpoint)
        set.defaultViewpoint.clear();
    else
        set.hotkey.clear();
}

} // namespace

void qxProblemFixes::run(Sort sort, const qxFindings &findings) const
{
    const QString text = textOf(sort, findings.size());
    m_edits->stack()->beginMacro(text);
    if (sort >= RemoveSet)
        remove(sort, findings);
    else if (sort <= RemoveHotkey)
        editSets(text, findings);
    if (sort >= RemoveHotkey && sort < RemoveSet)
        editVariants(sort, text, findings);
    m_edits->stack()->endMacro();
}

void qxProblemFixes::editSets(const QString &text, const qxFindings &findings) const
{
    QMap<QString, qxFindings> bySet;
    for (const qxFinding &each : findings) {
        if (!each.place.set.isEmpty())
            bySet[each.place.set] += each;
    }
    for (auto each = bySet.begin(); each != bySet.end(); ++each)
        m_edits->editSet(each.key(), text, [&each](qxVariantSet &set) {
            for (const qxFinding &finding : each.value())
                takeOut(set, finding);
        });
}

void qxProblemFixes::editVariants(Sort sort, const QString &text, const qxFindings &findings) const
{
    QUndoStack &steps = *m_edits->stack();
    for (const qxFinding &each : findings) {
        if (!each.place.kind)
            continue;
        const qxVariantName variant{each.place.kind, each.place.name};
        const QString &option = each.place.state;
        const auto clear = [&](qxVariant &edited) {
            qxVariantOption *const held = edited.find(option);
            if (sort == ClearDefault)
                edited.defaultState.clear();
            else if (held) {
                held->shortcut.clear();
                held->updateShortcut();
            }
        };
        if (sort == AddOption)
            qxVariantEdits::addOptions(steps, variant, {option});
        else if (sort == RemoveOption)
            qxVariantEdits::removeOptions(steps, variant, {option});
        else
            qxVariantEdits::edit(steps, variant, text, clear);
    }
}

void qxProblemFixes::remove(Sort sort, const qxFindings &findings) const
{
    QStringList sets;
    qxVariantEdits::Variants variants;
    for (const qxFinding &each : findings) {
        if (sort == RemoveSet)
            sets += each.place.set;
        else if (sort == RemoveGroup)
            m_edits->removeGroup(each.place.name, false);
        else
            variants.push_back({each.place.kind, each.place.name});
    }
    if (!sets.isEmpty())
        m_edits->removeSets(sets);
    if (!variants.empty())
        qxVariantEdits::remove(*m_edits->stack(), variants, true);
}
