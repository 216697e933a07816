#include "HostFixture.h"
#include "Script/qxScriptRunner.h"
#include "qxScript.h"

namespace {

class ScriptTest : public HostFixture {
protected:
    std::string value(const std::string &expression)
    {
        return qxScript::executeNUSR(expression.c_str());
    }
};

} // namespace

TEST_F(ScriptTest, AnExpressionGivesWhatPrintingItsValueGives)
{
    EXPECT_EQ(value("1 + 1"), "2");
    EXPECT_EQ(value("Pnt3f(0.2, 1e-7, -3)"), "0.2, 1e-07, -3");
    EXPECT_EQ(value("true"), "True");
    EXPECT_EQ(value("'\xC3\xA4'"), "\xC3\xA4");
}

TEST_F(ScriptTest, ListenersHearEveryTextBeforeItRunsWithItsOrigin)
{
    std::vector<qxScriptText> heard;
    std::vector<std::string> before;
    const int listener = qxScriptRunner::addListener([&](const qxScriptText &script) {
        heard.push_back(script);
        before.push_back(value("len(done)"));
    });
    qxScriptRunner::run("done = []", "start.py");
    qxScript::run("done.append(1)");
    qxScript::executeNUS("done.append(2)", true);
    qxScript::run(nullptr);
    qxScript::executeNUS(nullptr, false);
    qxScriptRunner::removeListener(listener);
    qxScript::run("done.append(3)");

    EXPECT_EQ(before, (std::vector<std::string>{"0", "1"}));
    ASSERT_EQ(heard.size(), 2u);
    EXPECT_EQ(heard[0].text, "done.append(1)");
    EXPECT_EQ(heard[0].origin, qxScriptText::User);
    EXPECT_FALSE(heard[0].synchronise);
    EXPECT_EQ(heard[1].origin, qxScriptText::Application);
    EXPECT_TRUE(heard[1].synchronise);
    EXPECT_EQ(value("done"), "[1, 2, 3]");
}
