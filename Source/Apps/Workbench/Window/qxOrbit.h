#pragma once

#include <OpenSG/OSGMatrix.h>
#include <OpenSG/OSGVector.h>

struct qxUberCamera;

/// Moves a camera for mouse movements. Distances are relative: 1 is the height of the view.
namespace qxOrbit {

/// Turns the camera around `pivot`, to the right and upwards; it never goes over the top.
void turn(qxUberCamera &camera, const osg::Pnt3f &pivot, float right, float up);
/// Moves objects at the distance of `pivot` by that part of the picture; the pivot moves, too.
void pan(qxUberCamera &camera, osg::Pnt3f &pivot, float right, float up);
/// Moves nearer to the pivot for a factor above 1, away from it below 1.
void zoom(qxUberCamera &camera, const osg::Pnt3f &pivot, float factor);
/// Shows a sphere as a whole, in the direction that the camera has; `aspect` is width by height.
void fit(qxUberCamera &camera, const osg::Pnt3f &centre, float radius, float aspect);

/// The distance of the camera from a point, along its view.
float depth(const qxUberCamera &camera, const osg::Pnt3f &point);

} // namespace qxOrbit
