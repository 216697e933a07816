#pragma once

#include <OpenSG/OSGNode.h>

#include <QString>

/// The names from below the scene's root down to the node with "/" between them, as people read it.
QString qxNodePath(const osg::NodePtr &node);
