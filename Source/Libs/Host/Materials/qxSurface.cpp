#include "Materials/qxSurface.h"

#include "Materials/OSGSurfaceProperties.h"

#include <algorithm>
#include <tuple>

qxSurface qxSurface::of(const osg::MaterialPtr &material)
{
    qxSurface surface;
    if (material == osg::NullFC)
        return surface;
    const osg::SurfacePropertiesPtr stored = osg::SurfacePropertiesPtr::dcast(
        material->findAttachment(osg::SurfaceProperties::getClassType()));
    if (stored == osg::NullFC || stored->getFactors().size() < 4)
        return surface;
    surface.metallic = stored->getFactors()[0];
    surface.roughness = stored->getFactors()[1];
    surface.alphaCutoff = stored->getFactors()[2];
    surface.emissiveStrength = stored->getFactors()[3];
    surface.alphaMode = AlphaMode(stored->getSFAlphaMode()->getValue());
    surface.doubleSided = stored->getSFDoubleSided()->getValue();
    surface.unlit = stored->getSFUnlit()->getValue();
    surface.environment = stored->getSFEnvironment()->getValue();
    surface.wrapS = stored->getSFWrapS()->getValue();
    surface.wrapT = stored->getSFWrapT()->getValue();
    osg::MFReal32 &matrix = stored->getTextureMatrix();
    if (matrix.size() == surface.textureMatrix.size())
        std::copy(matrix.begin(), matrix.end(), surface.textureMatrix.begin());
    return surface;
}

void qxSurface::setTo(const osg::MaterialPtr &material) const
{
    const osg::SurfacePropertiesPtr stored = osg::SurfaceProperties::create();
    {
        const osg::CPEditor edit(stored);
        for (const float factor : {metallic, roughness, alphaCutoff, emissiveStrength})
            stored->getFactors().push_back(factor);
        stored->getSFAlphaMode()->setValue(osg::UInt32(alphaMode));
        stored->getSFDoubleSided()->setValue(doubleSided);
        stored->getSFUnlit()->setValue(unlit);
        stored->getSFEnvironment()->setValue(environment);
        stored->getSFWrapS()->setValue(wrapS);
        stored->getSFWrapT()->setValue(wrapT);
        for (const float factor : textureMatrix)
            stored->getTextureMatrix().push_back(factor);
    }
    const osg::CPEditor edit(material, osg::AttachmentContainer::AttachmentsFieldMask);
    material->addAttachment(stored);
}

bool qxSurface::operator==(const qxSurface &other) const
{
    const auto values = [](const qxSurface &s) {
        return std::make_tuple(s.metallic, s.roughness, s.alphaCutoff, s.emissiveStrength,
                               s.alphaMode, s.doubleSided, s.unlit, s.environment, s.wrapS, s.wrapT,
                               s.textureMatrix);
    };
    return values(*this) == values(other);
}
