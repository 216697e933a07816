#include "HostFixture.h"
#include "qxController.h"
#include "qxScript.h"

#include <boost/python/converter/registry.hpp>

#include <algorithm>
#include <dlfcn.h>

/// Has the name of the module's class, by which Boost.Python looks it up.
class qxVariantSetPtr {};

namespace {

typedef std::vector<std::string> Texts;

class UnloadTest : public HostFixture {
protected:
    /// What "clearAllVariants" leads to, beside itself.
    Texts clearAll()
    {
        notifications.clear();
        qxController::call("clearAllVariants", 1);
        Texts all = notifications.names();
        all.erase(std::find(all.begin(), all.end(), "clearAllVariants"));
        return all;
    }
};

} // namespace

TEST_F(UnloadTest, TheModuleListensFromLoadingToUnloading)
{
    EXPECT_EQ(clearAll(), Texts());
    for (int round = 0; round < 2; ++round) {
        void *const module = dlopen(QX_BUILD_LIB "/libqxVariants.so", RTLD_NOW);
        ASSERT_TRUE(module) << dlerror();
        EXPECT_EQ(clearAll().size(), 7u);
        EXPECT_EQ(dlclose(module), 0);
        EXPECT_EQ(clearAll(), Texts());
        EXPECT_FALSE(dlopen(QX_BUILD_LIB "/libqxVariants.so", RTLD_NOW | RTLD_NOLOAD));
    }
}

TEST_F(UnloadTest, ThePythonRegistryIsWholeAfterUnloading)
{
    void *const module = dlopen(QX_BUILD_LIB "/libqxVariants.so", RTLD_NOW);
    ASSERT_TRUE(module) << dlerror();
    ASSERT_EQ(dlclose(module), 0);
    EXPECT_TRUE(boost::python::converter::registry::query(typeid(qxVariantSetPtr)))
        << "the name of the entry can be read";
    EXPECT_EQ(qxScript::executeNUSR("'qxVariantSetPtr' in globals()"), "False");
}

TEST_F(UnloadTest, WhatTheInterpreterKnowsStaysLoaded)
{
    EXPECT_EQ(qxScript::executeNUSR("'qxVariantSetPtr' in globals()"), "False");
    for (int round = 0; round < 2; ++round) {
        void *const module = dlopen(QX_BUILD_LIB "/libqxVariants.so", RTLD_NOW);
        ASSERT_TRUE(module) << dlerror();
        EXPECT_EQ(dlclose(module), 0);
        EXPECT_EQ(qxScript::executeNUSR("repr(qxVariantSetPtr().getName())"), "''");
        qxScript::run("selectVariantSet('none')");
    }
}
