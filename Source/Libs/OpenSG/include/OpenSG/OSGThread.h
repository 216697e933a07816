#pragma once

#include <OpenSG/OSGConfig.h>

namespace osg {

class ChangeList;

/// The one thread that may touch the scene graph: the one that called osgInit().
class Thread {
public:
    /// Never NULL. Include OSGChangeList.h to use it.
    static ChangeList *getCurrentChangeList();
};

} // namespace osg
