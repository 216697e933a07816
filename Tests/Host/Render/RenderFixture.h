#pragma once

#include "HostFixture.h"
#include "Materials/qxSurface.h"
#include "Render/qxRenderer.h"

#include <OpenSG/OSGGeometry.h>

#include <string>

/// A picture as a test reads it.
class TestPicture {
public:
    explicit TestPicture(const qxPicture &picture) : m_picture(picture) {}

    /// Red, green and blue ("255 0 0") at a place: -1 to 1 from left to right and upwards.
    std::string at(float x, float y) const;
    /// The same in the middle of the left and of the right half: "255 0 0, 0 0 0".
    std::string halves() const { return at(-0.5f, 0) + ", " + at(0.5f, 0); }
    /// The sum of the three.
    int brightness(float x, float y) const;
    qxPicture::Content content() const { return m_picture.content; }
    const std::vector<std::uint8_t> &bytes() const { return m_picture.rgba; }

private:
    const std::uint8_t *pixel(float x, float y) const;

    qxPicture m_picture;
};

/// A scene in front of black that a parallel camera sees from x and y -1 to 1, looking along the
/// negative z axis from z = 10.
class RenderFixture : public HostFixture {
protected:
    RenderFixture();

    /// A material of the scene's pool that shows its colour as it is.
    osg::MaterialPtr flat(float r, float g, float b, const qxSurface &more = qxSurface());
    /// One that needs light.
    osg::MaterialPtr lit(float r, float g, float b, const qxSurface &more = qxSurface());
    /// A node with that core, below the scene's root unless a parent is given.
    TestNode addNode(const osg::NodeCorePtr &core, const osg::NodePtr &parent = osg::NullFC);
    /// A square of that width around a place, facing the camera.
    TestNode addSquare(const osg::MaterialPtr &material, const osg::Vec3f &middle, float width,
                       const osg::NodePtr &parent = osg::NullFC);
    static osg::Matrix &matrixOf(const TestNode &transform);
    /// A light that shines along the negative z axis.
    osg::NodePtr addSun(float lux);

    TestPicture picture() { return TestPicture(renderer.render(settings)); }
    /// Made without anything that was kept.
    TestPicture freshPicture() { return TestPicture(qxRenderer().render(settings)); }

    qxPictureSettings settings;
    qxRenderer renderer;
    const osg::MaterialPtr red = flat(1, 0, 0);
    const osg::MaterialPtr green = flat(0, 1, 0);
    const osg::MaterialPtr blue = flat(0, 0, 1);
};

/// Positions for GL_TRIANGLES.
osg::GeometryPtr trianglesOf(const std::vector<osg::Pnt3f> &corners);
