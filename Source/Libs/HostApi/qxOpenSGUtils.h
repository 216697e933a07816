#pragma once

#include <OpenSG/OSGNode.h>

/// The scene graph in types of OpenSG.
class qxOpenSGUtils {
public:
    /// The root of the scene as a plain node; never null while the host runs.
    static osg::NodePtr getRoot();
};
