#include <OpenSG/OSGBaseFunctions.h>

#include <OpenSG/OSGChangeList.h>
#include <OpenSG/OSGFieldContainerFactory.h>
#include <OpenSG/OSGThread.h>

#include <cstdlib>

namespace osg {

bool osgInit(Int32, Char8 **)
{
    static bool started = false;
    isLibraryThread = true;
    FieldContainerFactory::the()->initializePendingTypes();
    if (started)
        return true;
    started = true;
    // Prototypes go before the statics of libraries that were loaded earlier.
    std::atexit([] { osgExit(); });
    // Takes over the default for recording as it is now, and starts with nothing recorded.
    *Thread::getCurrentChangeList() = ChangeList();
    return true;
}

bool osgExit()
{
    FieldContainerFactory::the()->terminate();
    return true;
}

} // namespace osg
