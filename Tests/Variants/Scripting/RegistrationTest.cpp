#include "Core/qxHost.h"
#include "Script/qxScriptRunner.h"

#include <gtest/gtest.h>

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

TEST(RegistrationTest, ShutdownSaysSoOnStandardOutput)
{
    auto host = std::make_unique<qxHost>();
    testing::internal::CaptureStdout();
    EXPECT_TRUE(qxScriptRunner::run("pass", "start"));
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
    testing::internal::CaptureStdout();
    host.reset();
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "pythonInit: destroy qxVariantSetPtr!\npythonInit: destroy qxVariants!\n");
}

TEST(RegistrationTest, AHostThatRunsNoScriptStartsNothing)
{
    testing::internal::CaptureStdout();
    std::make_unique<qxHost>().reset();
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
}
