#include "qxPlainExport.h"

#include "qxVariantSet.h"
#include "qxVariants.h"

#include "Cameras/qxMainView.h"
#include "Files/qxSceneFile.h"
#include "Script/qxScriptRunner.h"
#include "qxExplanation.h"
#include "qxExportLosses.h"
#include "qxMaterialForecast.h"
#include "qxText.h"

#include <algorithm>
#include <numeric>

namespace {

/// Selects the set, without its script.
void showSet(const qxVariantSet &set)
{
    const qxScriptRunner::Allowed before = qxScriptRunner::setAllowed(qxScriptRunner::Nothing);
    qxVariants::selectVariantSet(qxText::toUtf8(set.name).c_str(), false);
    qxScriptRunner::setAllowed(before);
}

/// All viewpoints, that of the view first.
std::vector<int> viewpointIds()
{
    std::vector<int> ids(std::size_t(qxUberCameraPool::the()->count()));
    std::iota(ids.begin(), ids.end(), 0);
    const auto shown = std::find(ids.begin(), ids.end(), qxMainView::the().viewpoint);
    if (shown != ids.end())
        std::rotate(ids.begin(), shown, shown + 1);
    return ids;
}

std::vector<qxExportOptions::Variant> setVariants(const qxMaterialForecast &materials)
{
    std::vector<qxExportOptions::Variant> all;
    for (const qxVariantSet *set : qxVariants::_variantSets) {
        qxForecast forecast;
        const qxExplanation foreseen(*set, forecast);
        all.push_back({qxText::toUtf8(set->name), materials.changes(forecast)});
    }
    return all;
}

} // namespace

QString qxPlainExport::make(const qxSceneFile &scene, const qxPlainExportWishes &wishes,
                            qxExport &file, qxLossReport &report)
{
    if (wishes.shown)
        showSet(*wishes.shown);
    const qxMaterialForecast materials;
    qxExportOptions options;
    options.compress = wishes.compress;
    options.viewpoints = viewpointIds();
    if (!wishes.isAlone)
        options.variants = setVariants(materials);
    const QString flaw = scene.makeExport(options, file);
    if (!flaw.isEmpty())
        return flaw;
    qxExportLosses losses(file, materials);
    losses.addScene(file);
    for (const qxVariantSet *set : qxVariants::_variantSets) {
        const bool isShown = set == wishes.shown;
        if (isShown || !wishes.isAlone)
            losses.addSet(*set, isShown ? qxExportLosses::Scene : qxExportLosses::Variant);
    }
    report = losses.report();
    return QString();
}
