#include "HostFixture.h"
#include "qxScript.h"
#include "qxTestPaths.h"

#include <boost/python/converter/registry.hpp>

#include <dlfcn.h>
#include <functional>

/// Has the name of the module's class, by which Boost.Python looks it up.
class qxVariantSetPtr {};

const char *const library = QX_BUILD_LIB "/libqxVariants.so";

static void whileLoaded(const std::function<void()> &action)
{
    void *const module = dlopen(library, RTLD_NOW);
    ASSERT_TRUE(module) << dlerror();
    action();
    EXPECT_EQ(dlclose(module), 0);
}

class UnloadTest : public HostFixture {
protected:
    /// How many notifications "clearAllVariants" leads to.
    std::size_t clearAll()
    {
        notifications.clear();
        qxController::call("clearAllVariants", 1);
        return notifications.entries().size() - 1;
    }
};

TEST_F(UnloadTest, TheModuleListensFromLoadingToUnloading)
{
    EXPECT_EQ(clearAll(), 0u);
    for (int round = 0; round < 100; ++round) {
        whileLoaded([this] { EXPECT_EQ(clearAll(), 7u); });
        EXPECT_EQ(clearAll(), 0u);
        EXPECT_FALSE(dlopen(library, RTLD_NOW | RTLD_NOLOAD));
    }
}

TEST_F(UnloadTest, ThePythonRegistryIsWholeAfterUnloading)
{
    whileLoaded([] {});
    EXPECT_TRUE(boost::python::converter::registry::query(typeid(qxVariantSetPtr)))
        << "the name of the entry can be read";
    EXPECT_EQ(qxScript::executeNUSR("'qxVariantSetPtr' in globals()"), "False");
}

TEST_F(UnloadTest, WhatTheInterpreterKnowsStaysLoaded)
{
    EXPECT_EQ(qxScript::executeNUSR("'qxVariantSetPtr' in globals()"), "False");
    for (int round = 0; round < 2; ++round) {
        whileLoaded([] {});
        EXPECT_EQ(qxScript::executeNUSR("repr(qxVariantSetPtr().getName())"), "''");
        qxScript::run("selectVariantSet('none')");
    }
}
