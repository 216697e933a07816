#include "qxProblemRepairs.h"

#include "Undo/qxNameEdits.h"

#include <QCoreApplication>
#include <QUndoStack>

#include <algorithm>

namespace {

/// Whether the problem is that this name is broken.
bool isAbout(const qxFinding &finding, const qxBreak &broken)
{
    const qxFindingPlace &place = finding.place;
    switch (finding.code) {
    case qxCode::NoSuchVariant:
        return broken.named == qxNamed::Variant && broken.kind == place.kind
            && broken.name == place.name;
    case qxCode::StateUnknownToScene:
    case qxCode::OptionUnknownToScene:
        return broken.named == qxNamed::State && broken.kind == place.kind
            && broken.variant == place.name && broken.name == place.state;
    case qxCode::DefaultIsNoOption:
        return broken.isDefault && broken.kind == place.kind && broken.variant == place.name
            && broken.name == finding.detail;
    case qxCode::NoSuchViewpoint:
        return broken.named == qxNamed::Viewpoint && broken.name == place.name;
    case qxCode::NoSuchDefaultViewpoint:
        return broken.named == qxNamed::Viewpoint && broken.name == finding.detail;
    case qxCode::NoSuchAnimation:
        return broken.named == qxNamed::Animation && broken.name == place.name;
    case qxCode::NoSuchGeometry:
    case qxCode::NoSuchTarget:
        return broken.named == qxNamed::Node && broken.name == place.name;
    case qxCode::NoSuchSnapshotPath:
        return broken.named == qxNamed::Path && broken.name == place.name;
    case qxCode::NoSuchSnapshotMaterial:
        return broken.named == qxNamed::Material && broken.name == finding.detail;
    case qxCode::NoSceneObject:
    case qxCode::WrongSceneObject:
        return broken.named == qxDocumentPlaces::objectOf(*place.kind)
            && broken.name == finding.detail;
    default:
        return false;
    }
}

} // namespace

std::vector<qxBreak> qxProblemRepairs::of(const qxFindings &findings)
{
    std::vector<qxBreak> breaks = qxNameEdits::breaks();
    const auto isOther = [&findings](const qxBreak &broken) {
        return std::none_of(findings.begin(), findings.end(),
                            [&broken](const qxFinding &each) { return isAbout(each, broken); });
    };
    breaks.erase(std::remove_if(breaks.begin(), breaks.end(), isOther), breaks.end());
    return breaks;
}

int qxProblemRepairs::repairClear(QUndoStack &steps)
{
    std::vector<qxBreak> breaks = qxNameEdits::breaks();
    const auto isUnclear = [](const qxBreak &broken) { return !broken.clear(); };
    breaks.erase(std::remove_if(breaks.begin(), breaks.end(), isUnclear), breaks.end());
    if (breaks.empty())
        return 0;
    const int count = int(breaks.size());
    steps.beginMacro(
        QCoreApplication::translate("qxProblemRepairs", "Repair %n names", nullptr, count));
    for (const qxBreak &broken : breaks)
        qxNameEdits::repair(steps, broken, broken.clear()->name);
    steps.endMacro();
    return count;
}
