#pragma once

#include <OpenSG/OSGColor.h>
#include <OpenSG/OSGVector.h>

/// Converts between the sRGB colours of a picture and linear light.

/// Light of a colour that a picture shows.
osg::Vec3f qxLightOf(const osg::Color3f &shown);
/// The colour of this light, clamped to 0 to 1 per channel.
osg::Vec3f qxShownColour(const osg::Vec3f &light);
/// Brings light into the range that a picture can show, without changing the colour of what is
/// about as bright as a white wall or darker: the Khronos PBR Neutral tone mapper
/// (github.com/KhronosGroup/ToneMapping, PBR_Neutral).
osg::Vec3f qxToneMapped(const osg::Vec3f &light);
