#include "Script/qxClippingCommands.h"

#include "Scene/qxClipping.h"
#include "qxController.h"

namespace {

osg::Color3f colorOf(const osg::Vec3f &vector)
{
    return osg::Color3f(vector[0], vector[1], vector[2]);
}

osg::Vec3f vectorOf(const osg::Color3f &color)
{
    return osg::Vec3f(color.red(), color.green(), color.blue());
}

/// Gives access to the clipping plane and asks for a new picture when the change is made.
class Change {
public:
    Change() {}
    Change(const Change &) = delete;
    ~Change() { qxController::updateRender(false); }
    qxClipping *operator->() const { return &qxClipping::the(); }
};

} // namespace

void qxClippingCommands::setClippingPlane(const osg::Pnt3f &position, const osg::Vec3f &normal,
                                          bool invert)
{
    const Change clipping;
    clipping->position = position;
    clipping->normal = normal;
    clipping->invert = invert;
}

void qxClippingCommands::setClippingPlaneVisualization(bool show, const osg::Vec3f &color)
{
    const Change clipping;
    clipping->showPlane = show;
    clipping->planeColor = colorOf(color);
}

void qxClippingCommands::setClippingGridVisualization(bool show, const osg::Vec3f &color)
{
    const Change clipping;
    clipping->showGrid = show;
    clipping->gridColor = colorOf(color);
}

void qxClippingCommands::setClippingContourVisualization(bool show, const osg::Vec3f &color,
                                                         int width)
{
    const Change clipping;
    clipping->showContour = show;
    clipping->contourColor = colorOf(color);
    clipping->contourWidth = width;
}

void qxClippingCommands::setClippingHideScene(bool hide)
{
    Change()->hideScene = hide;
}

void qxClippingCommands::enableClippingPlane(bool enable)
{
    Change()->enabled = enable;
}

osg::Vec3f qxClippingCommands::getClippingPlaneColor()
{
    return vectorOf(qxClipping::the().planeColor);
}

osg::Vec3f qxClippingCommands::getClippingGridColor()
{
    return vectorOf(qxClipping::the().gridColor);
}

osg::Vec3f qxClippingCommands::getClippingContourColor()
{
    return vectorOf(qxClipping::the().contourColor);
}
