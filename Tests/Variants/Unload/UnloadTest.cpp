#include "HostFixture.h"
#include "qxController.h"

#include <algorithm>
#include <dlfcn.h>

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
