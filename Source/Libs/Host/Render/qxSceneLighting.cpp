#include "Render/qxSceneLighting.h"

#include "Render/qxBackground.h"
#include "Render/qxRenderScene.h"
#include "Render/qxShadowGround.h"

qxSceneLighting qxSceneLighting::of(const qxRenderScene &scene, const qxViewSettings &view)
{
    const qxBackground background(scene, view);
    const bool isPlain = view.background == qxViewSettings::Plain;
    qxSceneLighting lighting;
    lighting.sky = background.sky();
    lighting.showsSky = background.showsSky();
    lighting.top = isPlain ? view.plainColour : view.gradientTop;
    lighting.bottom = isPlain ? view.plainColour : view.gradientBottom;
    lighting.bounds = scene.shown().bounds();
    lighting.lightFactor = scene.lights().exposureFactor(lighting.bounds);
    lighting.hasGround = qxShadowGround::isWanted(view.ground, scene.shown());
    return lighting;
}
