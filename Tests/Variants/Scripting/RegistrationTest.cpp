#include "Script/qxScriptRunner.h"
#include "qxHost.h"
#include "qxScript.h"

#include <gtest/gtest.h>

#include <dlfcn.h>

TEST(RegistrationTest, EachStartImportsBothModulesButRegistersThemOnce)
{
    testing::internal::CaptureStderr();
    for (int start = 0; start < 3; ++start) {
        const qxHost host;
        EXPECT_TRUE(qxScriptRunner::run("import sys\n"
                                        "assert __name__ == '__main__'\n"
                                        "names = qxVariantSetPtr, qxVariants, selectVariantSet\n"
                                        "if not hasattr(sys, 'first'):\n"
                                        "    sys.first = names\n"
                                        "assert all(a is b for a, b in zip(sys.first, names))\n",
                                        "start"));
    }
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "") << "no converter comes twice";
}

TEST(RegistrationTest, TheLibraryHasTheEntryPointsByWhichPythonKnowsModules)
{
    const qxHost host;
    const std::string start =
        qxScript::executeNUSR("'PyInit_' if __import__('sys').version_info[0] > 2 else 'init'");
    for (const char *module : {"qxVariants", "qxVariantSetPtr"})
        EXPECT_NE(dlsym(RTLD_DEFAULT, (start + module).c_str()), nullptr) << start << module;
}

TEST(RegistrationTest, ShutdownSaysSoOnStandardOutputIfAScriptRan)
{
    testing::internal::CaptureStdout();
    std::make_unique<qxHost>().reset();
    auto host = std::make_unique<qxHost>();
    EXPECT_TRUE(qxScriptRunner::run("pass", "start"));
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
    testing::internal::CaptureStdout();
    host.reset();
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "pythonInit: destroy qxVariantSetPtr!\npythonInit: destroy qxVariants!\n");
}
