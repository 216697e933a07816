#pragma once

#include "RenderFixture.h"

#include <OpenSG/OSGImage.h>
#include <OpenSG/OSGSimpleTexturedMaterial.h>

/// Scenes with pictures on their surfaces.
class TexturedFixture : public RenderFixture {
protected:
    /// Red and green in the lower half, blue and a colour of half alpha in the upper one.
    static osg::ImagePtr fourFields()
    {
        const osg::UInt8 fields[4][4] = {
            {255, 0, 0, 255}, {0, 255, 0, 255}, {0, 0, 255, 255}, {90, 60, 30, 127}};
        std::vector<osg::UInt8> bytes;
        for (int pixel = 0; pixel < 64; ++pixel) {
            const osg::UInt8 *field = fields[pixel / 32 * 2 + pixel % 8 / 4];
            bytes.insert(bytes.end(), field, field + 4);
        }
        const osg::ImagePtr image = osg::Image::create();
        image->set(osg::Image::OSG_RGBA_PF, 8, 8, 1, 1, 1, 0.0, bytes.data());
        return image;
    }
    /// The whole picture, with texture coordinates from 0 to `r`.
    TestNode addTextured(const osg::MaterialPtr &material, float r)
    {
        const TestNode square = addSquare(material, osg::Vec3f(0, 0, 0), 2);
        const auto core = osg::GeometryPtr::dcast(square.core());
        const auto places = osg::GeoTexCoords2f::create();
        for (const osg::Vec2f &place : {osg::Vec2f(0, 0), osg::Vec2f(r, 0), osg::Vec2f(r, r),
                                        osg::Vec2f(0, 0), osg::Vec2f(r, r), osg::Vec2f(0, r)})
            places->push_back(place);
        const osg::CPEditor edit(core);
        core->setTexCoords(places);
        return square;
    }
    static osg::MaterialPtr textured(osg::UInt32 mode, const osg::ImagePtr &image)
    {
        const auto material = osg::SimpleTexturedMaterial::create();
        const osg::CPEditor edit(material); // the material takes its reference at the end
        material->setDiffuse(osg::Color3f(1, 1, 1));
        material->setLit(false);
        material->setImage(image);
        material->setEnvMode(mode);
        return material;
    }
};
