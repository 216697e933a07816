#pragma once

#include "Materials/qxSurface.h"
#include "Render/qxRenderTexture.h"

#include <OpenSG/OSGGL.h>

#include <functional>

/// One pass of a material: how it reflects and emits light.
struct qxRenderLayer {
    enum TextureUse { Modulate, Replace, Decal };

    osg::Vec3f base = osg::Vec3f(0.6f, 0.6f, 0.6f);
    float alpha = 1; ///< of AlphaMode Blend and Mask
    osg::Vec3f emission;
    float metallic = 0;
    float roughness = 0.6f;
    float alphaCutoff = 0.5f; ///< of AlphaMode Mask
    qxSurface::AlphaMode alphaMode = qxSurface::Opaque;
    bool doubleSided = true;
    bool unlit = false;
    std::shared_ptr<const qxRenderTexture> texture; ///< null for none
    qxRenderTexture::Wrap wrap = {GL_REPEAT, GL_REPEAT};
    qxSurface::TextureMatrix textureMatrix = {1, 0, 0, 0, 1, 0};
    TextureUse textureUse = Modulate;
};

/// A material as the renderer needs it. The default is plain grey, as for geometries without a
/// material.
struct qxRenderMaterial {
    /// Whether it hides everything behind it.
    bool isOpaque() const;

    /// In the order of drawing; those below an opaque one are left out. Empty: invisible.
    std::vector<qxRenderLayer> layers = std::vector<qxRenderLayer>(1);
};

/// Returns the texture of an image.
typedef std::function<std::shared_ptr<const qxRenderTexture>(const osg::ImagePtr &)>
    qxTextureSource;

/// Reads the present material: the chosen one of a switch material, all passes of a multi-pass
/// material. Null and a switch material without a choice give the default.
qxRenderMaterial qxReadMaterial(const osg::MaterialPtr &material, const qxTextureSource &textures);
