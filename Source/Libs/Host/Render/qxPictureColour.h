#pragma once

#include <OpenSG/OSGColor.h>
#include <OpenSG/OSGVector.h>

/// Converts between the sRGB colours of a picture and linear light.

/// Light of a colour that a picture shows.
osg::Vec3f qxLightOf(const osg::Color3f &shown);
/// The colour of this light, clamped to 0 to 1 per channel.
osg::Vec3f qxShownColour(const osg::Vec3f &light);
/// Compresses values above 0.8 into the range that a picture can show.
osg::Vec3f qxToneMapped(const osg::Vec3f &light);
