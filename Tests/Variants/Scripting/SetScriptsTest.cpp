#include "qxVariantSet.h"
#include "qxVariants.h"

#include "HostFixture.h"
#include "Script/qxScriptRunner.h"
#include "qxScript.h"

namespace {

/// Sets whose scripts select sets.
class SetScriptsTest : public HostFixture {
protected:
    ~SetScriptsTest() override { host.clearScene(); }

    static qxVariantSet *addSet(const char *name, const char *script)
    {
        qxVariantSet *const set = qxVariants::createVariantSet(name, false, nullptr);
        set->script = script;
        return set;
    }

    /// All error lines so far, which the test takes as its own.
    std::vector<std::string> errors()
    {
        const std::vector<std::string> lines = logged(qxLog::Error);
        for (const std::string &line : lines)
            expectError(line);
        return lines;
    }

    /// The interpreter answers, and each selection that began has ended.
    void expectAllEnded()
    {
        EXPECT_EQ(qxScript::executeNUSR("6 * 7"), "42");
        EXPECT_EQ(heard("variantsSetSelected").size(), 2 * heard("variantSetSelected").size());
        EXPECT_GT(heard("variantSetSelected").size(), 0u);
    }
};

} // namespace

TEST_F(SetScriptsTest, AScriptThatRaisesEndsNoMoreThanItself)
{
    addSet("Winter", "import sys\nraise ValueError('k\xC3\xA4lte')")->setClippingState(1);
    qxVariants::selectVariantSet("Winter", false);
    EXPECT_EQ(qxScript::executeNUSR("isClippingPlaneEnabled()"), "True") << "what follows it";
    const auto lines = errors();
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_NE(lines[0].find("ValueError: k\xC3\xA4lte"), std::string::npos) << lines[0];
    expectAllEnded();
}

TEST_F(SetScriptsTest, ASetThatSelectsItselfEndsWithOneError)
{
    for (const char *script : {
             "selectVariantSet('Winter')",
             "selectVariantSet('Winter')\nselectVariantSet('Winter', True)",
             "while True: selectVariantSet('Winter')",
             "try:\n    selectVariantSet('Winter')\nexcept Exception:\n    pass",
             "selectVariantSet('Other')",
             "activateCapturedVariantSet('Winter')\nactivateCapturedVariantSet('Other')",
         }) {
        notifications.clear();
        qxVariants::clearVariantSets();
        addSet("Winter", script);
        addSet("Other", "selectVariantSet('Winter')\nselectVariantSet('Winter')");
        const std::size_t before = logged(qxLog::Error).size();
        qxVariants::selectVariantSet("Winter", false);
        EXPECT_EQ(logged(qxLog::Error).size(), before + 1) << script;
        EXPECT_LE(heard("variantSetSelected").size(), 40u) << script;
        expectAllEnded();
    }
    for (const std::string &line : errors())
        EXPECT_NE(line.find("32"), std::string::npos) << line;
}

TEST_F(SetScriptsTest, AnInterruptInASelectedSetReachesTheSetsAround)
{
    addSet("Inner", "import os, signal\nos.kill(os.getpid(), signal.SIGINT)\nwhile True: pass");
    addSet("Middle", "selectVariantSet('Inner')\nmiddle = 'went on'");
    addSet("Outer",
           "try:\n    selectVariantSet('Middle')\nexcept KeyboardInterrupt as end:\n"
           "    outer = 'ended: %s' % end");
    addSet("Careless", "selectVariantSet('Middle')\nouter = 'went on'");
    qxVariants::selectVariantSet("Outer", false);
    EXPECT_EQ(qxScript::executeNUSR("outer"), "ended: ");
    EXPECT_EQ(qxScript::executeNUSR("'middle' in globals()"), "False");
    expectAllEnded();
    qxVariants::selectVariantSet("Careless", false);
    EXPECT_EQ(errors(), std::vector<std::string>{"script error: interrupted"});
    EXPECT_EQ(qxScript::executeNUSR("outer"), "ended: ");
}

TEST_F(SetScriptsTest, SetsMaySelectSetsAsDeepAsTheHostAllows)
{
    addSet("Set1", "done = True");
    for (int i = 2; i <= 32; ++i) {
        const std::string script = "selectVariantSet('Set" + std::to_string(i - 1) + "')";
        addSet(("Set" + std::to_string(i)).c_str(), script.c_str());
    }
    qxVariants::selectVariantSet("Set32", false);
    EXPECT_EQ(qxScript::executeNUSR("done"), "True");
    EXPECT_EQ(heard("variantSetSelected").size(), 32u);
    expectAllEnded();
}
