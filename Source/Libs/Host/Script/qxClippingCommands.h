#pragma once

#include <OpenSG/OSGVector.h>

/// Functions for scripts that change and query the clipping plane (qxClipping). Every change
/// requests a new picture. Colours are vectors of red, green and blue.
namespace qxClippingCommands {

void setClippingPlane(const osg::Pnt3f &position, const osg::Vec3f &normal, bool invert);
void setClippingPlaneVisualization(bool show, const osg::Vec3f &color);
void setClippingGridVisualization(bool show, const osg::Vec3f &color);
void setClippingContourVisualization(bool show, const osg::Vec3f &color, int width);
void setClippingHideScene(bool hide);
void enableClippingPlane(bool enable);

osg::Vec3f getClippingPlaneColor();
osg::Vec3f getClippingGridColor();
osg::Vec3f getClippingContourColor();

} // namespace qxClippingCommands
