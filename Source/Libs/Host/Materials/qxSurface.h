#pragma once

#include <OpenSG/OSGMaterial.h>

/// How the surface of a material looks, as far as the material's own fields cannot say it. The base
/// colour is the material's diffuse colour with its transparency, the emitted colour its emission.
struct qxSurface {
    enum AlphaMode { Opaque = 0, Mask = 1, Blend = 2 };

    float metallic = 1; ///< 0 to 1
    float roughness = 1; ///< 0 to 1
    float alphaCutoff = 0.5f; ///< AlphaMode Mask shows only what is at least as opaque
    float emissiveStrength = 1; ///< factor on the emission
    AlphaMode alphaMode = Opaque;
    bool doubleSided = false;
    bool unlit = false; ///< shows its base colour whatever the lights
    bool environment = false; ///< made for what surrounds the scene

    /// What `material` was given by setTo; the values above when it was given nothing or is null.
    static qxSurface of(const osg::MaterialPtr &material);
    void setTo(const osg::MaterialPtr &material) const;

    bool operator==(const qxSurface &other) const;
};
