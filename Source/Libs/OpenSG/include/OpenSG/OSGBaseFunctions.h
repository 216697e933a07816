#pragma once

#include <OpenSG/OSGBaseTypes.h>

namespace osg {

const Real32 Pi = 3.14159265358979323846f;

/// Starts the scene graph: initialises all known container types and empties the change list.
/// Until then create() of every class gives null. Calling it again is harmless. osgExit() is
/// registered to run when the process ends. The arguments are not looked at.
bool osgInit(Int32 argc, Char8 **argv);

/// Stops the scene graph: from now on create() gives null for good. Living containers stay usable.
/// True also without osgInit() and when called twice.
bool osgExit();

inline Real32 osgDegree2Rad(Real32 degree)
{
    return degree * Pi / 180.f;
}

inline Real32 osgRad2Degree(Real32 radians)
{
    return radians * 180.f / Pi;
}

} // namespace osg
