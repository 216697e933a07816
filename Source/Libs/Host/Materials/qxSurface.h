#pragma once

#include <OpenSG/OSGGL.h>
#include <OpenSG/OSGMaterial.h>

#include <array>

/// Surface properties for which a material has no fields. The base colour is the material's diffuse
/// colour with its transparency, the emitted colour its emission.
struct qxSurface {
    enum AlphaMode { Opaque = 0, Mask = 1, Blend = 2 };

    float metallic = 1; ///< 0 to 1
    float roughness = 1; ///< 0 to 1
    float alphaCutoff = 0.5f; ///< AlphaMode Mask hides everything with less alpha
    float emissiveStrength = 1; ///< factor on the emission
    AlphaMode alphaMode = Opaque;
    bool doubleSided = false;
    bool unlit = false; ///< shows its base colour without lighting
    bool environment = false; ///< made for environments
    /// Wrap modes of the picture of a SimpleTexturedMaterial, horizontal and vertical: GL_REPEAT,
    /// GL_MIRRORED_REPEAT or GL_CLAMP_TO_EDGE.
    osg::UInt32 wrapS = GL_REPEAT;
    osg::UInt32 wrapT = GL_REPEAT;
    /// The transform of texture coordinates: rows of factors of s, t and 1.
    typedef std::array<float, 6> TextureMatrix;
    TextureMatrix textureMatrix = {1, 0, 0, 0, 1, 0};

    /// The surface that setTo gave to `material`; the default values if it has none or is null.
    static qxSurface of(const osg::MaterialPtr &material);
    void setTo(const osg::MaterialPtr &material) const;

    bool operator==(const qxSurface &other) const;
};
