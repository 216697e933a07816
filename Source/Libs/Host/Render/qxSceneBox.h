#pragma once

#include <OpenSG/OSGDynamicVolume.h>
#include <OpenSG/OSGNode.h>

/// The box in the world around a node, which may be null, and what is below it; empty for nothing.
/// What a skin bends is where the joints have it.
osg::DynamicVolume qxSceneBox(const osg::NodePtr &node);
