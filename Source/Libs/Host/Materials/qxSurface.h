#pragma once

#include <OpenSG/OSGColor.h>
#include <OpenSG/OSGGL.h>
#include <OpenSG/OSGImage.h>
#include <OpenSG/OSGMaterial.h>

#include <array>
#include <limits>
#include <vector>

/// A picture of a material and how it lies on the surface.
struct qxSurfacePicture {
    /// Null for none. That of the base colour belongs to the material itself
    /// (SimpleTexturedMaterial), the others live as long as the material has them.
    osg::ImagePtr image;
    /// Wrap modes, horizontal and vertical: GL_REPEAT, GL_MIRRORED_REPEAT or GL_CLAMP_TO_EDGE.
    osg::UInt32 wrapS = GL_REPEAT;
    osg::UInt32 wrapT = GL_REPEAT;
    osg::UInt32 texCoords = 0; ///< number of the texture coordinates
    /// The transform of texture coordinates: rows of factors of s, t and 1.
    typedef std::array<float, 6> Matrix;
    Matrix matrix = {1, 0, 0, 0, 1, 0};

    bool operator==(const qxSurfacePicture &other) const;
};

/// Surface properties for which a material has no fields, as glTF and its extensions define them.
/// The base colour is the material's diffuse colour with its transparency, the emitted colour its
/// emission.
struct qxSurface {
    enum AlphaMode { Opaque = 0, Mask = 1, Blend = 2 };
    /// What a picture is for.
    enum PictureRole {
        BaseColour,
        MetallicRoughness,
        Normal,
        Occlusion,
        Emissive,
        Specular,
        SpecularColour,
        Clearcoat,
        ClearcoatRoughness,
        ClearcoatNormal,
        SheenColour,
        SheenRoughness,
        Transmission,
        Iridescence,
        IridescenceThickness,
        Anisotropy,
        DiffuseTransmission,
        DiffuseTransmissionColour,
        PictureRoles ///< their number
    };

    float metallic = 1; ///< 0 to 1
    float roughness = 1; ///< 0 to 1
    float alphaCutoff = 0.5f; ///< AlphaMode Mask hides everything with less alpha
    float emissiveStrength = 1; ///< factor on the emission
    float normalScale = 1; ///< of the slopes in the picture of normals
    float occlusionStrength = 1; ///< 0 to 1
    float ior = 1.5f; ///< index of refraction; 0 reflects as if it were infinite
    float specular = 1; ///< 0 to 1
    osg::Color3f specularColour = osg::Color3f(1, 1, 1);
    float clearcoat = 0; ///< 0 to 1, as all that follow without a unit
    float clearcoatRoughness = 0;
    float clearcoatNormalScale = 1;
    osg::Color3f sheenColour = osg::Color3f(0, 0, 0);
    float sheenRoughness = 0;
    float transmission = 0;
    float thickness = 0; ///< above 0 the surface bounds a body, otherwise it is a thin wall
    float attenuationDistance = std::numeric_limits<float>::infinity(); ///< world units
    osg::Color3f attenuationColour = osg::Color3f(1, 1, 1); ///< white light after that distance
    float iridescence = 0;
    float iridescenceIor = 1.3f;
    float iridescenceThinnest = 100; ///< nanometres
    float iridescenceThickest = 400; ///< nanometres
    float anisotropy = 0;
    float anisotropyRotation = 0; ///< radians, from the tangent towards the bitangent
    float diffuseTransmission = 0;
    osg::Color3f diffuseTransmissionColour = osg::Color3f(1, 1, 1);
    AlphaMode alphaMode = Opaque;
    bool doubleSided = false;
    bool unlit = false; ///< shows its base colour without lighting
    bool environment = false; ///< made for environments
    std::array<qxSurfacePicture, PictureRoles> pictures; ///< by PictureRole

    /// One of the numbers above and where a glTF material has it (a JSON pointer). What goes over
    /// all numbers uses the list of these; each is either a number or a colour.
    struct Number {
        const char *place;
        float qxSurface::*number;
        osg::Color3f qxSurface::*colour;

        /// One or three values.
        std::vector<float> of(const qxSurface &surface) const;
        /// As many as of() gives.
        void set(qxSurface &surface, const float *values) const;
    };
    static const std::vector<Number> &numbers();
    /// Where a glTF material has the picture of each role (a JSON pointer), and whether it holds
    /// sRGB colours; all others hold numbers.
    struct PictureKind {
        const char *place;
        bool isColour;
    };
    static const std::array<PictureKind, PictureRoles> &pictureKinds();

    /// The surface that setTo gave to `material`; the default values if it has none or is null.
    static qxSurface of(const osg::MaterialPtr &material);
    void setTo(const osg::MaterialPtr &material) const;

    bool operator==(const qxSurface &other) const;
};
