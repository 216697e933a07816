#pragma once

#include "Cameras/qxMainView.h"
#include "HostFixture.h"
#include "Materials/qxSurface.h"
#include "OSGUberLight.h"
#include "Render/qxRenderer.h"

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGSimpleMaterial.h>
#include <OpenSG/OSGTransform.h>

/// A picture as a test reads it.
class TestPicture {
public:
    explicit TestPicture(const qxPicture &picture) : m_picture(picture) {}

    /// Red, green and blue ("255 0 0") at a place: -1 to 1 from left to right and upwards.
    std::string at(float x, float y) const
    {
        const std::uint8_t *bytes = pixel(x, y);
        return std::to_string(bytes[0]) + ' ' + std::to_string(bytes[1]) + ' '
            + std::to_string(bytes[2]);
    }
    /// The same in the middle of the left and of the right half: "255 0 0, 0 0 0".
    std::string halves() const { return at(-0.5f, 0) + ", " + at(0.5f, 0); }
    /// The sum of the three.
    int brightness(float x, float y) const
    {
        const std::uint8_t *bytes = pixel(x, y);
        return bytes[0] + bytes[1] + bytes[2];
    }
    qxPicture::Content content() const { return m_picture.content; }
    const std::vector<std::uint8_t> &bytes() const { return m_picture.rgba; }

private:
    const std::uint8_t *pixel(float x, float y) const
    {
        const auto place = [](float coordinate, int size) {
            const int found = int((coordinate + 1.0f) * 0.5f * float(size));
            return std::size_t(std::clamp(found, 0, size - 1));
        };
        const std::size_t row = place(y, m_picture.height) * std::size_t(m_picture.width);
        return &m_picture.rgba.at((row + place(x, m_picture.width)) * 4);
    }

    qxPicture m_picture;
};

/// Positions for GL_TRIANGLES.
inline osg::GeometryPtr trianglesOf(const std::vector<osg::Pnt3f> &corners)
{
    const auto positions = osg::GeoPositions3f::create();
    for (const osg::Pnt3f &corner : corners)
        positions->push_back(corner);
    const auto types = osg::GeoPTypesUI8::create();
    types->push_back(GL_TRIANGLES);
    const auto lengths = osg::GeoPLengthsUI32::create();
    lengths->push_back(osg::UInt32(corners.size()));
    const osg::GeometryPtr core = osg::Geometry::create();
    const osg::CPEditor edit(core);
    core->setPositions(positions);
    core->setTypes(types);
    core->setLengths(lengths);
    return core;
}

/// A scene in front of black that a parallel camera sees from x and y -1 to 1, looking along the
/// negative z axis from z = 10.
class RenderFixture : public HostFixture {
protected:
    RenderFixture()
    {
        settings.width = 48;
        settings.height = 48;
        settings.view.gradientTop = settings.view.gradientBottom = osg::Color3f(0, 0, 0);
        bothSides.doubleSided = true;
        camera.toWorld.setTranslate(0, 0, 10);
        camera.height = 2;
    }

    /// An unlit material in the scene's pool.
    osg::MaterialPtr flat(float r, float g, float b, const qxSurface &more = qxSurface())
    {
        qxSurface surface = more;
        surface.unlit = true;
        return lit(r, g, b, surface);
    }
    /// A lit one.
    osg::MaterialPtr lit(float r, float g, float b, const qxSurface &more = qxSurface())
    {
        const osg::SimpleMaterialPtr material = osg::SimpleMaterial::create();
        material->setDiffuse(osg::Color3f(r, g, b));
        more.setTo(material);
        qxScenegraph::getMaterialPool()->add(osg::MaterialPtr(material));
        return material;
    }
    /// A node with that core, below the scene's root unless a parent is given.
    TestNode addNode(const osg::NodeCorePtr &core, const osg::NodePtr &parent = osg::NullFC)
    {
        const osg::NodePtr node = osg::makeNodeFor(core);
        const osg::NodePtr above = parent == osg::NullFC ? qxScenegraph::getRoot() : parent;
        const osg::CPEditor edit(above, osg::Node::ChildrenFieldMask);
        above->addChild(node);
        return node;
    }
    /// A square of that width around a place, facing the camera.
    TestNode addSquare(const osg::MaterialPtr &material, const osg::Vec3f &middle, float width,
                       const osg::NodePtr &parent = osg::NullFC)
    {
        const auto corner = [&](int x, int y) {
            return osg::Pnt3f(middle + osg::Vec3f(float(x), float(y), 0) * (width * 0.5f));
        };
        const osg::GeometryPtr core = trianglesOf({corner(-1, -1), corner(1, -1), corner(1, 1),
                                                   corner(-1, -1), corner(1, 1), corner(-1, 1)});
        core->setMaterial(material);
        return addNode(core, parent);
    }
    /// A grey matt wall that fills the picture.
    void addMattWall(float z)
    {
        qxSurface matt;
        matt.metallic = 0;
        addSquare(lit(0.5f, 0.5f, 0.5f, matt), osg::Vec3f(0, 0, z), 2);
    }
    static osg::Matrix &matrixOf(const TestNode &transform)
    {
        return osg::TransformPtr::dcast(transform.core())->getMatrix();
    }
    /// A light that shines along the negative z axis.
    osg::NodePtr addSun(float lux)
    {
        const TestNode light = scene.addLight("Sun");
        const auto core = osg::UberLightPtr::dcast(light.core());
        const osg::CPEditor edit(core);
        core->setKind(osg::UberLight::Directional);
        core->setIntensity(lux);
        return light;
    }

    TestPicture picture() { return TestPicture(renderer.render(settings)); }
    /// A picture without cached data.
    TestPicture freshPicture() { return TestPicture(qxRenderer().render(settings)); }

    qxPictureSettings settings;
    qxRenderer renderer;
    qxUberCamera &camera = qxMainView::the().camera;
    qxSurface bothSides;
    const osg::MaterialPtr red = flat(1, 0, 0);
    const osg::MaterialPtr green = flat(0, 1, 0);
    const osg::MaterialPtr blue = flat(0, 0, 1);
};
