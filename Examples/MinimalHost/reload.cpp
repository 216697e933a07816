// Loads the module by name, uses it and unloads it, again and again. Without an interpreter: what
// one has imported stays loaded.
#include "Services/services.h"
#include "qxController.h"
#include "scene.h"

#include <OpenSG/OSGBaseFunctions.h>

#include <cstdlib>
#include <dlfcn.h>
#include <iostream>

namespace {

int heard = 0;

/// Whether the module did its work, and is gone afterwards.
bool loadOnce(const char *extension)
{
    void *library = dlopen(extension, RTLD_NOW);
    if (!library) {
        std::cerr << dlerror() << '\n';
        return false;
    }
    const bool works = reinterpret_cast<bool (*)()>(dlsym(library, "useModule"))();
    qxController::call("clearAllVariants", 1);
    const int heardLoaded = heard;
    dlclose(library);
    qxController::call("clearAllVariants", 1);
    const bool isGone = !dlopen(extension, RTLD_NOW | RTLD_NOLOAD)
        && !dlopen("libqxVariants.so.0", RTLD_NOW | RTLD_NOLOAD);
    return works && isGone && heardLoaded > 0 && heard == heardLoaded;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 3) {
        std::cerr << "Usage: minimal-host-reload EXTENSION TIMES\n";
        return 2;
    }
    osg::osgInit(0, nullptr);
    registerServices();
    qxController::addCB("variantSetChanged", [](qxMessage &) { ++heard; });
    Scene::the().build();
    int times = 0;
    while (times < std::atoi(argv[2]) && loadOnce(argv[1]))
        ++times;
    std::cout << "Loaded, used and unloaded " << times << " times.\n";
    Scene::the().close();
    osg::osgExit();
    return times != std::atoi(argv[2]);
}
