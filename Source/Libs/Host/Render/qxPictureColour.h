#pragma once

#include <OpenSG/OSGColor.h>
#include <OpenSG/OSGVector.h>

/// Between the colours of a picture, which are sRGB, and light, which adds up.

/// Light of a colour that a picture shows.
osg::Vec3f qxLightOf(const osg::Color3f &shown);
/// The colour, from 0 to 1 per channel, that shows this light; more than 1 is cut off.
osg::Vec3f qxShownColour(const osg::Vec3f &light);
/// Highlights are compressed into what a picture can show; below 0.8 light stays as it is.
osg::Vec3f qxToneMapped(const osg::Vec3f &light);
