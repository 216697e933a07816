#include "Materials/qxSurface.h"

#include "Materials/OSGSurfaceProperties.h"

#include <OpenSG/OSGTextureChunk.h>

#include <algorithm>
#include <tuple>

namespace {

/// For the number of its texture coordinates and its matrix.
const std::size_t _numbersOfPicture = 7;

/// The pictures are attachments of their own, one for each role: so OpenSG counts and clones them
/// with the material.
osg::UInt16 bindingOf(std::size_t role)
{
    return osg::UInt16(role + 1);
}

osg::TextureChunkPtr chunkOf(const osg::MaterialPtr &material, std::size_t role)
{
    return osg::TextureChunkPtr::dcast(
        material->findAttachment(osg::TextureChunk::getClassType(), bindingOf(role)));
}

/// Null for a picture that the material does not hold here.
osg::TextureChunkPtr chunkFor(const qxSurfacePicture &picture, std::size_t role)
{
    if (picture.image == osg::NullFC || role == qxSurface::BaseColour)
        return osg::TextureChunkPtr();
    const osg::TextureChunkPtr chunk = osg::TextureChunk::create();
    const osg::CPEditor edit(chunk);
    osg::ImagePtr image = picture.image;
    chunk->setImage(image);
    return chunk;
}

std::vector<float> allNumbers(const qxSurface &surface)
{
    std::vector<float> all;
    for (const qxSurface::Number &row : qxSurface::numbers()) {
        const std::vector<float> values = row.of(surface);
        all.insert(all.end(), values.begin(), values.end());
    }
    for (const qxSurfacePicture &picture : surface.pictures) {
        all.push_back(float(picture.texCoords));
        all.insert(all.end(), picture.matrix.begin(), picture.matrix.end());
    }
    return all;
}

void setAllNumbers(qxSurface &surface, const std::vector<float> &all)
{
    const float *next = all.data();
    for (const qxSurface::Number &row : qxSurface::numbers()) {
        row.set(surface, next);
        next += row.colour ? 3 : 1;
    }
    for (qxSurfacePicture &picture : surface.pictures) {
        picture.texCoords = osg::UInt32(*next);
        std::copy(next + 1, next + _numbersOfPicture, picture.matrix.begin());
        next += _numbersOfPicture;
    }
}

std::size_t countOfNumbers()
{
    static const std::size_t count = allNumbers(qxSurface()).size();
    return count;
}

} // namespace

// A list, not a procedure.
const std::vector<qxSurface::Number> &qxSurface::numbers()
{
    typedef qxSurface S;
    static const std::vector<Number> rows = {
        {"/pbrMetallicRoughness/metallicFactor", &S::metallic, nullptr},
        {"/pbrMetallicRoughness/roughnessFactor", &S::roughness, nullptr},
        {"/alphaCutoff", &S::alphaCutoff, nullptr},
        {"/normalTexture/scale", &S::normalScale, nullptr},
        {"/occlusionTexture/strength", &S::occlusionStrength, nullptr},
        {"/extensions/KHR_materials_emissive_strength/emissiveStrength", &S::emissiveStrength,
         nullptr},
        {"/extensions/KHR_materials_ior/ior", &S::ior, nullptr},
        {"/extensions/KHR_materials_specular/specularFactor", &S::specular, nullptr},
        {"/extensions/KHR_materials_specular/specularColorFactor", nullptr, &S::specularColour},
        {"/extensions/KHR_materials_clearcoat/clearcoatFactor", &S::clearcoat, nullptr},
        {"/extensions/KHR_materials_clearcoat/clearcoatRoughnessFactor", &S::clearcoatRoughness,
         nullptr},
        {"/extensions/KHR_materials_clearcoat/clearcoatNormalTexture/scale",
         &S::clearcoatNormalScale, nullptr},
        {"/extensions/KHR_materials_sheen/sheenColorFactor", nullptr, &S::sheenColour},
        {"/extensions/KHR_materials_sheen/sheenRoughnessFactor", &S::sheenRoughness, nullptr},
        {"/extensions/KHR_materials_transmission/transmissionFactor", &S::transmission, nullptr},
        {"/extensions/KHR_materials_volume/thicknessFactor", &S::thickness, nullptr},
        {"/extensions/KHR_materials_volume/attenuationDistance", &S::attenuationDistance, nullptr},
        {"/extensions/KHR_materials_volume/attenuationColor", nullptr, &S::attenuationColour},
        {"/extensions/KHR_materials_iridescence/iridescenceFactor", &S::iridescence, nullptr},
        {"/extensions/KHR_materials_iridescence/iridescenceIor", &S::iridescenceIor, nullptr},
        {"/extensions/KHR_materials_iridescence/iridescenceThicknessMinimum",
         &S::iridescenceThinnest, nullptr},
        {"/extensions/KHR_materials_iridescence/iridescenceThicknessMaximum",
         &S::iridescenceThickest, nullptr},
        {"/extensions/KHR_materials_anisotropy/anisotropyStrength", &S::anisotropy, nullptr},
        {"/extensions/KHR_materials_anisotropy/anisotropyRotation", &S::anisotropyRotation,
         nullptr},
        {"/extensions/KHR_materials_diffuse_transmission/diffuseTransmissionFactor",
         &S::diffuseTransmission, nullptr},
        {"/extensions/KHR_materials_diffuse_transmission/diffuseTransmissionColorFactor", nullptr,
         &S::diffuseTransmissionColour}};
    return rows;
}

const std::array<qxSurface::PictureKind, qxSurface::PictureRoles> &qxSurface::pictureKinds()
{
    static const std::array<PictureKind, PictureRoles> kinds = {{
        {"/pbrMetallicRoughness/baseColorTexture", true},
        {"/pbrMetallicRoughness/metallicRoughnessTexture", false},
        {"/normalTexture", false},
        {"/occlusionTexture", false},
        {"/emissiveTexture", true},
        {"/extensions/KHR_materials_specular/specularTexture", false},
        {"/extensions/KHR_materials_specular/specularColorTexture", true},
        {"/extensions/KHR_materials_clearcoat/clearcoatTexture", false},
        {"/extensions/KHR_materials_clearcoat/clearcoatRoughnessTexture", false},
        {"/extensions/KHR_materials_clearcoat/clearcoatNormalTexture", false},
        {"/extensions/KHR_materials_sheen/sheenColorTexture", true},
        {"/extensions/KHR_materials_sheen/sheenRoughnessTexture", false},
        {"/extensions/KHR_materials_transmission/transmissionTexture", false},
        {"/extensions/KHR_materials_iridescence/iridescenceTexture", false},
        {"/extensions/KHR_materials_iridescence/iridescenceThicknessTexture", false},
        {"/extensions/KHR_materials_anisotropy/anisotropyTexture", false},
        {"/extensions/KHR_materials_diffuse_transmission/diffuseTransmissionTexture", false},
        {"/extensions/KHR_materials_diffuse_transmission/diffuseTransmissionColorTexture", true},
    }};
    return kinds;
}

std::vector<float> qxSurface::Number::of(const qxSurface &surface) const
{
    if (number)
        return {surface.*number};
    const osg::Color3f &value = surface.*colour;
    return {value.red(), value.green(), value.blue()};
}

void qxSurface::Number::set(qxSurface &surface, const float *values) const
{
    if (number)
        surface.*number = *values;
    else
        surface.*colour = osg::Color3f(values[0], values[1], values[2]);
}

qxSurface qxSurface::of(const osg::MaterialPtr &material)
{
    qxSurface surface;
    if (material == osg::NullFC)
        return surface;
    const osg::SurfacePropertiesPtr stored = osg::SurfacePropertiesPtr::dcast(
        material->findAttachment(osg::SurfaceProperties::getClassType()));
    if (stored == osg::NullFC || stored->getNumbers().size() != countOfNumbers()
        || stored->getWraps().size() != 2 * surface.pictures.size())
        return surface;
    setAllNumbers(surface, {stored->getNumbers().begin(), stored->getNumbers().end()});
    surface.alphaMode = AlphaMode(stored->getSFAlphaMode()->getValue());
    surface.doubleSided = stored->getSFDoubleSided()->getValue();
    surface.unlit = stored->getSFUnlit()->getValue();
    surface.environment = stored->getSFEnvironment()->getValue();
    for (std::size_t role = 0; role < surface.pictures.size(); ++role) {
        qxSurfacePicture &picture = surface.pictures[role];
        picture.wrapS = stored->getWraps()[osg::UInt32(2 * role)];
        picture.wrapT = stored->getWraps()[osg::UInt32(2 * role + 1)];
        const osg::TextureChunkPtr chunk = chunkOf(material, role);
        if (chunk != osg::NullFC)
            picture.image = chunk->getImage();
    }
    return surface;
}

void qxSurface::setTo(const osg::MaterialPtr &material) const
{
    const osg::SurfacePropertiesPtr stored = osg::SurfaceProperties::create();
    // All are made before the first one is replaced, which may be all that holds an image.
    std::vector<osg::TextureChunkPtr> chunks;
    {
        const osg::CPEditor edit(stored);
        for (const float number : allNumbers(*this))
            stored->getNumbers().push_back(number);
        stored->getSFAlphaMode()->setValue(osg::UInt32(alphaMode));
        stored->getSFDoubleSided()->setValue(doubleSided);
        stored->getSFUnlit()->setValue(unlit);
        stored->getSFEnvironment()->setValue(environment);
        for (const qxSurfacePicture &picture : pictures) {
            stored->getWraps().push_back(picture.wrapS);
            stored->getWraps().push_back(picture.wrapT);
            chunks.push_back(chunkFor(picture, chunks.size()));
        }
    }
    const osg::CPEditor edit(material, osg::AttachmentContainer::AttachmentsFieldMask);
    material->addAttachment(stored);
    for (std::size_t role = 0; role < chunks.size(); ++role) {
        const osg::TextureChunkPtr before = chunkOf(material, role);
        if (chunks[role] != osg::NullFC)
            material->addAttachment(chunks[role], bindingOf(role));
        else if (before != osg::NullFC)
            material->subAttachment(before, bindingOf(role));
    }
}

bool qxSurfacePicture::operator==(const qxSurfacePicture &other) const
{
    return std::tie(image, wrapS, wrapT, texCoords, matrix)
        == std::tie(other.image, other.wrapS, other.wrapT, other.texCoords, other.matrix);
}

bool qxSurface::operator==(const qxSurface &other) const
{
    return allNumbers(*this) == allNumbers(other)
        && std::tie(alphaMode, doubleSided, unlit, environment, pictures)
        == std::tie(other.alphaMode, other.doubleSided, other.unlit, other.environment,
                    other.pictures);
}
