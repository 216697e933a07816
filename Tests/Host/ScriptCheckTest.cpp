#include "HostFixture.h"
#include "Script/qxScriptCheck.h"

class ScriptCheckTest : public HostFixture {};

TEST_F(ScriptCheckTest, WhatCannotBeCompiledIsSaidWithItsLineAndNothingIsRun)
{
    for (const char *sound :
         {"", "raise Exception('never')", "undefined", "x = 'größer'\nexit()", "1 is 1"})
        EXPECT_EQ(qxScriptCheck::flawOf(sound), "") << sound;
    EXPECT_EQ(qxScriptCheck::flawOf("x = 1\n\nif x\n").substr(0, 8), "line 3: ");
    EXPECT_EQ(qxScriptCheck::flawOf("  x = 1\ny").substr(0, 8), "line 1: ");
    EXPECT_EQ(qxScriptCheck::flawOf(std::string("x\0y", 3)),
              "the text of the script holds a NUL character");
    EXPECT_NE(qxScriptCheck::flawOf("x = '\xFF'"), "");
    EXPECT_NE(qxScriptCheck::flawOf(std::string(200000, '-') + "1"), "") << "an error without text";
    EXPECT_EQ(qxScriptCheck::flawOf("x"), "");
    EXPECT_TRUE(logged(qxLog::Error).empty() && logged(qxLog::Warning).empty());
}
