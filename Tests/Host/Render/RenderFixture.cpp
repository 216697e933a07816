#include "RenderFixture.h"

#include "Cameras/qxMainView.h"
#include "OSGUberLight.h"
#include "qxScenegraph.h"

#include <OpenSG/OSGSimpleMaterial.h>
#include <OpenSG/OSGTransform.h>

#include <QString>

const std::uint8_t *TestPicture::pixel(float x, float y) const
{
    const auto place = [](float coordinate, int size) {
        const int found = int((coordinate + 1.0f) * 0.5f * float(size));
        return std::size_t(std::clamp(found, 0, size - 1));
    };
    const std::size_t row = place(y, m_picture.height) * std::size_t(m_picture.width);
    return &m_picture.rgba.at((row + place(x, m_picture.width)) * 4);
}

std::string TestPicture::at(float x, float y) const
{
    const std::uint8_t *bytes = pixel(x, y);
    return QString("%1 %2 %3").arg(bytes[0]).arg(bytes[1]).arg(bytes[2]).toStdString();
}

int TestPicture::brightness(float x, float y) const
{
    const std::uint8_t *bytes = pixel(x, y);
    return bytes[0] + bytes[1] + bytes[2];
}

RenderFixture::RenderFixture()
{
    settings.width = 48;
    settings.height = 48;
    settings.backgroundTop = settings.backgroundBottom = osg::Color3f(0, 0, 0);
    qxUberCamera &camera = qxMainView::the().camera;
    camera.toWorld.setTranslate(0, 0, 10);
    camera.height = 2;
}

osg::MaterialPtr RenderFixture::flat(float r, float g, float b, const qxSurface &more)
{
    qxSurface surface = more;
    surface.unlit = true;
    return lit(r, g, b, surface);
}

osg::MaterialPtr RenderFixture::lit(float r, float g, float b, const qxSurface &more)
{
    const osg::SimpleMaterialPtr material = osg::SimpleMaterial::create();
    material->setDiffuse(osg::Color3f(r, g, b));
    more.setTo(material);
    qxScenegraph::getMaterialPool()->add(osg::MaterialPtr(material));
    return material;
}

osg::GeometryPtr trianglesOf(const std::vector<osg::Pnt3f> &corners)
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

TestNode RenderFixture::addNode(const osg::NodeCorePtr &core, const osg::NodePtr &parent)
{
    const osg::NodePtr node = osg::makeNodeFor(core);
    const osg::NodePtr above = parent == osg::NullFC ? qxScenegraph::getRoot() : parent;
    const osg::CPEditor edit(above, osg::Node::ChildrenFieldMask);
    above->addChild(node);
    return node;
}

TestNode RenderFixture::addSquare(const osg::MaterialPtr &material, const osg::Vec3f &middle,
                                  float width, const osg::NodePtr &parent)
{
    const auto corner = [&](int x, int y) {
        return osg::Pnt3f(middle + osg::Vec3f(float(x), float(y), 0) * (width * 0.5f));
    };
    const osg::GeometryPtr core = trianglesOf(
        {corner(-1, -1), corner(1, -1), corner(1, 1), corner(-1, -1), corner(1, 1), corner(-1, 1)});
    core->setMaterial(material);
    return addNode(core, parent);
}

osg::Matrix &RenderFixture::matrixOf(const TestNode &transform)
{
    return osg::TransformPtr::dcast(transform.core())->getMatrix();
}

osg::NodePtr RenderFixture::addSun(float lux)
{
    const TestNode light = scene.addLight("Sun");
    const auto core = osg::UberLightPtr::dcast(light.core());
    const osg::CPEditor edit(core);
    core->setKind(osg::UberLight::Directional);
    core->setIntensity(lux);
    return light;
}
