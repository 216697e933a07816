#pragma once

#include "Materials/qxSurface.h"
#include "Render/qxRenderTexture.h"
#include "Render/qxShading.h"

#include <OpenSG/OSGGL.h>

#include <functional>

/// A picture of a material.
struct qxRenderPicture {
    qxSurface::PictureRole role = qxSurface::BaseColour;
    std::shared_ptr<const qxRenderTexture> texture; ///< null for none
    qxRenderTexture::Wrap wrap = {GL_REPEAT, GL_REPEAT};
    osg::UInt32 texCoords = 0; ///< number of the texture coordinates
    qxSurfacePicture::Matrix matrix = {1, 0, 0, 0, 1, 0};
};

/// One pass of a material: how it reflects and emits light.
struct qxRenderLayer {
    enum TextureUse { Modulate, Replace, Decal };

    /// Whether light goes through, besides the share that alpha lets through.
    bool isClear() const { return look.transmission > 0.0f; }

    /// What the surface would be without its pictures.
    qxShading::Surface look;
    float alpha = 1; ///< of AlphaMode Blend and Mask
    float alphaCutoff = 0.5f; ///< of AlphaMode Mask
    qxSurface::AlphaMode alphaMode = qxSurface::Opaque;
    bool doubleSided = true;
    bool unlit = false;
    qxRenderPicture picture; ///< of the base colour
    TextureUse textureUse = Modulate;
    std::vector<qxRenderPicture> pictures; ///< the others, as far as they matter
    ///@{
    /// What only pictures need: factors on slopes, the film where it is thinnest, and the direction
    /// of the grain from the tangent.
    float normalScale = 1;
    float coatNormalScale = 1;
    float occlusionStrength = 1;
    float thinnestFilm = 0;
    float grainAngle = 0;
    ///@}
};

/// Grey and neither metal nor smooth.
qxRenderLayer qxPlainLayer();

/// A material as the renderer needs it. The default is plain grey, as for geometries without a
/// material.
struct qxRenderMaterial {
    /// Whether it hides everything behind it.
    bool isOpaque() const;
    bool hasPictures() const;

    /// In the order of drawing; those below an opaque one are left out. Empty: invisible.
    std::vector<qxRenderLayer> layers = {qxPlainLayer()};
};

/// Returns the texture of an image; null for none.
typedef std::function<std::shared_ptr<const qxRenderTexture>(const osg::ImagePtr &,
                                                             qxRenderTexture::Content)>
    qxTextureSource;

/// Reads the present material: the chosen one of a switch material, all passes of a multi-pass
/// material. Null and a switch material without a choice give the default.
qxRenderMaterial qxReadMaterial(const osg::MaterialPtr &material, const qxTextureSource &textures);
