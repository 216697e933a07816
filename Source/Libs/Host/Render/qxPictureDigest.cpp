#include "Render/qxPictureDigest.h"

#include "Cameras/qxMainView.h"
#include "Render/qxDigest.h"
#include "Render/qxPicture.h"
#include "Render/qxRenderCamera.h"
#include "Render/qxRenderClipping.h"
#include "Render/qxRenderScene.h"

#include <algorithm>
#include <unordered_map>

// Members are taken apart by name and in full, so that a new one cannot be forgotten here.

namespace {

void add(qxDigest &digest, const qxShading::Surface &surface)
{
    const auto &[base, metallic, roughness, normal, emission, occlusion, ior, specular,
                 specularColour, coat, coatRoughness, coatNormal, sheen, sheenRoughness,
                 transmission, isBody, isInside, attenuation, iridescence, filmIor, filmThickness,
                 anisotropy, grain, diffuseTransmission, diffuseTransmissionColour] = surface;
    digest.add(base, metallic, roughness, normal, emission, occlusion, ior, specular,
               specularColour, coat, coatRoughness, coatNormal, sheen, sheenRoughness, transmission,
               isBody, isInside, attenuation, iridescence, filmIor, filmThickness, anisotropy,
               grain, diffuseTransmission, diffuseTransmissionColour);
}

void add(qxDigest &digest, const qxRenderPicture &picture)
{
    const auto &[role, texture, wrap, texCoords, matrix] = picture;
    digest.add(texture ? texture->digest() : QByteArray());
    if (texture)
        digest.add(role, wrap.s, wrap.t, texCoords, matrix);
}

void add(qxDigest &digest, const qxRenderLayer &layer)
{
    const auto &[look, alpha, alphaCutoff, alphaMode, doubleSided, unlit, picture, textureUse,
                 pictures, normalScale, coatNormalScale, occlusionStrength, thinnestFilm,
                 grainAngle] = layer;
    add(digest, look);
    digest.add(alpha, alphaCutoff, alphaMode, doubleSided, unlit, textureUse, normalScale,
               coatNormalScale, occlusionStrength, thinnestFilm, grainAngle);
    add(digest, picture);
    digest.add(std::uint32_t(pictures.size()));
    for (const qxRenderPicture &each : pictures)
        add(digest, each);
}

QByteArray digestOf(const qxRenderMaterial &material)
{
    const auto &[layers] = material;
    qxDigest digest;
    for (const qxRenderLayer &layer : layers)
        add(digest, layer);
    return digest.result();
}

/// What instances show. Many have the same material.
class Instances {
public:
    explicit Instances(qxDigest &digest) : m_digest(digest) {}

    void add(const qxRenderGroup &group)
    {
        std::uint32_t count = 0;
        for (const qxRenderInstance &instance : group.instances()) {
            if (!instance.isVisible)
                continue;
            m_digest.add(instance.geometry->digest(), materialOf(instance), instance.toWorld);
            ++count;
        }
        m_digest.add(count, group.isSmall());
    }

private:
    const QByteArray &materialOf(const qxRenderInstance &instance)
    {
        QByteArray &known = m_materials[instance.surface.get()];
        if (known.isEmpty())
            known = digestOf(*instance.surface);
        return known;
    }

    qxDigest &m_digest;
    std::unordered_map<const qxRenderMaterial *, QByteArray> m_materials;
};

void add(qxDigest &digest, const std::vector<qxRenderLight> &lights)
{
    digest.add(std::uint32_t(lights.size()));
    for (const qxRenderLight &light : lights)
        light.addTo(digest);
}

/// Where the plane neither cuts nor shows, its settings do not matter.
void add(qxDigest &digest, const qxRenderClipping &clipping)
{
    const auto &[enabled, position, normal, invert, hideScene, showPlane, planeColor, showGrid,
                 gridColor, showContour, contourColor, contourWidth] = clipping.settings();
    digest.add(clipping.isActive());
    if (clipping.isActive())
        digest.add(enabled, position, normal, invert, hideScene, showPlane, planeColor, showGrid,
                   gridColor, showContour, contourColor, contourWidth);
}

/// What is behind the scene and lights it from all around (qxBackground).
void add(qxDigest &digest, const qxRenderScene &scene, const qxViewSettings &view,
         Instances &instances)
{
    const auto &[environment, environmentRotation, exposure, background, gradientTop,
                 gradientBottom, ground, plainColour] = view;
    digest.add(environmentRotation, exposure, background, ground);
    if (background == qxViewSettings::Plain)
        digest.add(plainColour);
    else if (background == qxViewSettings::Gradient || background == qxViewSettings::Automatic)
        digest.add(gradientTop, gradientBottom);
    digest.add(bool(environment));
    if (environment) {
        environment->addTo(digest);
        return;
    }
    digest.add(scene.ownPicture());
    if (scene.ownPicture())
        scene.ownLight()->addTo(digest);
    instances.add(scene.environment());
}

} // namespace

QByteArray qxPictureDigest(const qxRenderScene &scene, const qxPictureSettings &settings)
{
    const auto &[width, height, quality, view, threads] = settings;
    qxDigest digest;
    digest.add(QByteArray(QX_VERSION), width, height,
               std::max(quality, int(qxPictureSettings::Best)));
    Instances instances(digest);
    instances.add(scene.shown());
    digest.add(std::uint32_t(scene.overlays().size()));
    for (const auto &overlay : scene.overlays())
        instances.add(*overlay.second);
    add(digest, scene.lights().on);
    add(digest, scene.lights().off);
    add(digest, scene, view, instances);
    // A camera that fits the scene, and what the clipping plane shows, follow from the instances.
    qxRenderCamera(qxMainView::the().camera, qxBox(), width, height).addTo(digest);
    add(digest, qxRenderClipping(qxClipping::the(), qxBox()));
    return digest.result();
}
