#include "qxVariantSet.h"
#include "qxVariants.h"

#include "HostFixture.h"
#include "Script/qxScriptRunner.h"
#include "qxScript.h"

namespace {

/// Sets whose scripts select sets.
class SetScriptsTest : public HostFixture {
protected:
    static qxVariantSet *addSet(const char *name, const char *script)
    {
        qxVariantSet *const set = qxVariants::createVariantSet(name, false, nullptr);
        set->script = script;
        return set;
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
    const auto lines = takeErrors();
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
    for (const std::string &line : takeErrors())
        EXPECT_NE(line.find("32"), std::string::npos) << line;
}
