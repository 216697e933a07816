#include "qxVariantSet.h"
#include "qxVariants.h"

#include "HostFixture.h"
#include "qxScript.h"

namespace {

/// Sets whose scripts go wrong.
class SetScriptsTest : public HostFixture {
protected:
    static qxVariantSet *addSet(const char *name, const char *script)
    {
        qxVariantSet *const set = qxVariants::createVariantSet(name, false, nullptr);
        set->script = script;
        return set;
    }
};

} // namespace

TEST_F(SetScriptsTest, AScriptThatGoesAstrayEndsWithOneErrorAndEverySelectionGoesOn)
{
    const std::string tooDeep = "scripts call each other more than 32 levels deep: all of them are "
                                "ended";
    const std::pair<const char *, std::string> cases[] = {
        {"import sys\nraise ValueError('k\xC3\xA4lte')", "ValueError: k\xC3\xA4lte"},
        {"selectVariantSet('Winter')\nselectVariantSet('Winter', True)", tooDeep},
        {"while True: selectVariantSet('Winter')", tooDeep},
        {"try:\n    selectVariantSet('Winter')\nexcept Exception:\n    pass", tooDeep},
        {"selectVariantSet('Other')", tooDeep},
        {"activateCapturedVariantSet('Winter')\nactivateCapturedVariantSet('Other')", tooDeep},
    };
    for (const auto &each : cases) {
        SCOPED_TRACE(each.first);
        host.clearScene();
        notifications.clear();
        addSet("Winter", each.first)->setClippingState(1);
        addSet("Other", "selectVariantSet('Winter')\nselectVariantSet('Winter')");
        qxVariants::selectVariantSet("Winter", false);
        const std::vector<std::string> errors = takeErrors();
        ASSERT_EQ(errors.size(), 1u);
        EXPECT_NE(errors[0].find(each.second), std::string::npos) << errors[0];
        const std::size_t ended = heard("variantSetSelected").size();
        EXPECT_TRUE(ended > 0 && ended <= 40) << ended;
        EXPECT_EQ(heard("variantsSetSelected").size(), 2 * ended);
        EXPECT_EQ(qxScript::executeNUSR("isClippingPlaneEnabled()"), "True") << "what follows it";
    }
}
