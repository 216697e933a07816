#pragma once

#include <OpenSG/OSGGL.h>
#include <OpenSG/OSGMaterial.h>

#include <array>

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
    /// Of the picture of a SimpleTexturedMaterial beyond its edges, to the right and upwards:
    /// GL_REPEAT, GL_MIRRORED_REPEAT or GL_CLAMP_TO_EDGE.
    osg::UInt32 wrapS = GL_REPEAT;
    osg::UInt32 wrapT = GL_REPEAT;
    /// Where texture coordinates s and t lead in that picture: rows of factors of s, t and 1.
    typedef std::array<float, 6> TextureMatrix;
    TextureMatrix textureMatrix = {1, 0, 0, 0, 1, 0};

    /// What `material` was given by setTo; the values above when it was given nothing or is null.
    static qxSurface of(const osg::MaterialPtr &material);
    void setTo(const osg::MaterialPtr &material) const;

    bool operator==(const qxSurface &other) const;
};
