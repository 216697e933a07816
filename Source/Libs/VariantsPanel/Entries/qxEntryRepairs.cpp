#include "qxEntryRepairs.h"

#include "qxVariant.h"
#include "qxVariantKinds.h"

#include "Undo/qxNameEdits.h"
#include "qxMenuText.h"

#include <QCoreApplication>
#include <QMenu>
#include <QUndoStack>

namespace {

/// The texts of the menu.
struct RepairTexts {
    Q_DECLARE_TR_FUNCTIONS(qxEntryRepairs)
};

bool concernsVariant(const qxBreak &broken, const qxSetEntry &entry)
{
    const bool isOwn = broken.kind == entry.kind;
    if (broken.named == qxNamed::Variant)
        return isOwn && broken.name == entry.name;
    if (broken.named == qxNamed::State)
        return isOwn && broken.variant == entry.name && broken.name == entry.state;
    const qxVariant *const variant = entry.kind->find(entry.name);
    return variant && broken.named == qxDocumentPlaces::objectOf(*entry.kind)
        && broken.name == variant->*entry.kind->sceneName;
}

bool concerns(const qxBreak &broken, const qxSetEntry &entry)
{
    switch (entry.sort) {
    case qxSetEntry::Variant:
        return concernsVariant(broken, entry);
    case qxSetEntry::Viewpoint:
        return broken.named == qxNamed::Viewpoint && broken.name == entry.name;
    case qxSetEntry::Animation:
        return broken.named == qxNamed::Animation && broken.name == entry.name;
    case qxSetEntry::Target:
    case qxSetEntry::Geometry:
        return broken.named == qxNamed::Node && broken.name == entry.name;
    case qxSetEntry::Snapshot:
        return (broken.named == qxNamed::Path && broken.name == entry.name)
            || (broken.named == qxNamed::Material && broken.name == entry.state);
    default:
        return false;
    }
}

void addCandidates(QMenu &menu, QUndoStack &steps, const qxBreak &broken)
{
    menu.addSection(qxMenuText(RepairTexts::tr("Instead of \"%1\"").arg(broken.name)));
    for (const qxRepairCandidate &each : broken.candidates) {
        QAction *const action = menu.addAction(qxMenuText(each.name));
        action->setToolTip(each.reason);
        QObject::connect(action, &QAction::triggered, &steps, [&steps, broken, name = each.name] {
            qxNameEdits::repair(steps, broken, name);
        });
    }
}

} // namespace

std::vector<qxBreak> qxEntryRepairs::of(const qxSetEntry &entry)
{
    std::vector<qxBreak> found;
    for (qxBreak &each : qxNameEdits::breaks()) {
        if (concerns(each, entry))
            found.push_back(std::move(each));
    }
    return found;
}

void qxEntryRepairs::fill(QMenu &menu, QUndoStack &steps, const qxSetEntry &entry)
{
    menu.clear();
    menu.setToolTipsVisible(true);
    for (const qxBreak &broken : of(entry)) {
        if (!broken.candidates.empty())
            addCandidates(menu, steps, broken);
    }
    if (menu.isEmpty())
        menu.addAction(RepairTexts::tr("Nothing like it was found"))->setEnabled(false);
}
