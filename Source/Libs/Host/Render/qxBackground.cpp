#include "Render/qxBackground.h"

#include "Render/qxPictureColour.h"
#include "Render/qxRenderScene.h"

namespace {

/// A scene with lights of its own gets less light from the studio around it: they are what it is
/// to be seen in. An environment that somebody has chosen lights it as it is.
const float _studioBesideLights = 0.45f;

qxEnvironmentLight lightOf(const qxRenderScene &scene, const qxViewSettings &view)
{
    if (view.environment)
        return view.environment->turned(view.environmentRotation);
    if (scene.ownLight())
        return scene.ownLight()->turned(view.environmentRotation);
    return qxEnvironmentLight::studio()
        .turned(view.environmentRotation)
        .scaled(scene.lights().isEmpty() ? 1.0f : _studioBesideLights);
}

} // namespace

qxBackground::qxBackground(const qxRenderScene &scene, const qxViewSettings &view)
    : m_hasGeometry(!view.environment && !scene.environment().instances().empty()),
      m_isOpen(view.background == qxViewSettings::None), m_sky(lightOf(scene, view))
{
    const bool isAutomatic = view.background == qxViewSettings::Automatic;
    const bool isEnvironment = view.background == qxViewSettings::Environment;
    m_showsGeometry = m_hasGeometry && (isAutomatic || isEnvironment);
    m_showsSky = isEnvironment || (isAutomatic && (view.environment || scene.ownPicture()));
    const bool isPlain = view.background == qxViewSettings::Plain;
    m_top = qxLightOf(isPlain ? view.plainColour : view.gradientTop);
    m_bottom = qxLightOf(isPlain ? view.plainColour : view.gradientBottom);
}

void qxBackground::add(const qxRay &ray, float height, float share, const qxTracer *geometry,
                       Layers &layers) const
{
    if (m_showsGeometry && geometry) {
        qxRay endless = ray;
        endless.far = std::numeric_limits<float>::infinity();
        qxSampler sampler(0, 0);
        const qxTracer::RayResult seen = geometry->trace(endless, sampler);
        layers.plain += seen.plain * share;
        share *= seen.transmittance;
    }
    if (m_isOpen) {
        layers.open += share;
    } else if (m_showsSky) {
        layers.light += m_sky.light(ray.direction) * share;
        layers.lit += share;
    } else {
        layers.plain += qxMixed(m_bottom, m_top, height) * share;
    }
}
