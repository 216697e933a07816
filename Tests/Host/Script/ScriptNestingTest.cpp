#include "Core/qxRenderRequests.h"
#include "Script/qxScriptWatchdog.h"
#include "ScriptFixture.h"

#include <array>
#include <csignal>
#include <map>

/// A host where every request for a picture runs something: `step()` in a script leads there.
class ScriptNestingTest : public ScriptFixture {
protected:
    ScriptNestingTest()
    {
        m_listener = qxRenderRequests::addListener([this](bool) { onStep(); });
        qxScript::run("def step(): enableClippingPlane(true)\nruns = 0\nafter = 0\n");
    }
    ~ScriptNestingTest() override { qxRenderRequests::removeListener(m_listener); }

    /// Runs `script`, which leads to itself with every step.
    std::string runawayErrors(const std::string &script)
    {
        onStep = [&] { qxScript::run(script.c_str()); };
        const std::string errors = errorsOf(script);
        onStep = [] {};
        return errors;
    }

    std::function<void()> onStep = [] {};

private:
    int m_listener;
};

const std::string tooDeep =
    "scripts call each other more than 32 levels deep: all of them are ended\n";

TEST_F(ScriptNestingTest, ThirtyTwoScriptsMayRunInsideEachOtherAndAFailedOneLeavesTheOthers)
{
    onStep = [this] { qxScript::run("runs += 1\nif runs < 32: step()\nafter += 1"); };
    onStep();
    EXPECT_EQ(value("(runs, after)"), "(32, 32)");
    EXPECT_EQ(newErrors(), "");
    onStep = [] { qxScript::run("boom()"); };
    EXPECT_NE(errorsOf("step()\nafter = 1").find("NameError"), std::string::npos);
    EXPECT_EQ(value("after"), "1");
}

TEST_F(ScriptNestingTest, OneThatLeadsToItselfIsEndedAsAWholeWithOneError)
{
    EXPECT_EQ(runawayErrors("runs += 1\nstep()\nstep()\nafter += 1"), tooDeep);
    EXPECT_EQ(value("(runs, after)"), "(32, 0)");
    EXPECT_EQ(errorsOf("step()"), "");
}

TEST_F(ScriptNestingTest, CatchingTheEndDoesNotMultiplyTheRuns)
{
    EXPECT_EQ(runawayErrors("runs += 1\n"
                            "for i in range(3):\n"
                            "  try: step()\n"
                            "  except: pass\n"),
              tooDeep + tooDeep + tooDeep);
    EXPECT_EQ(value("runs"), "94"); // the outermost begins three times, each time 31 follow
    EXPECT_EQ(runawayErrors("try: step()\nexcept Exception: after += 1"), tooDeep);
    EXPECT_EQ(value("after"), "0");
}

TEST_F(ScriptNestingTest, WhatTheApplicationComposesRunsWhileScriptsAreEnded)
{
    const std::string script = "runs += 1\nstep()";
    bool clipping = false; // which asks for pictures as well
    onStep = [&] {
        if (clipping)
            return;
        qxScript::run(script.c_str());
        clipping = true;
        qxScript::executeNUS("runs += 100\nsetClippingPlane(Pnt3f(4, 5, 6), Vec3f(), false)",
                             false);
        clipping = false;
    };
    EXPECT_EQ(errorsOf(script), tooDeep);
    EXPECT_EQ(value("runs"), "3232");
    EXPECT_EQ(value("getClippingPlanePosition()"), "4, 5, 6");
}

TEST_F(ScriptNestingTest, AWatchdogEndsWhatWouldNotEnd)
{
    onStep = [] { qxScript::run("while True: pass"); };
    const std::string interrupted = "script error: interrupted\n";
    for (const auto &[script, errors] : std::map<std::string, std::string>{
             {"while True: pass", interrupted},
             {"while True: step()", interrupted},
             {"while True:\n try:\n  n = 1\n  while True: n = 2\n except: pass", interrupted},
             {"try:\n n = 1\n while True: n = 2\nexcept KeyboardInterrupt: after += 1", ""}}) {
        int looks = 0;
        const qxScriptWatchdog watchdog(std::chrono::milliseconds(100),
                                        [&] { return ++looks != 3; });
        EXPECT_EQ(errorsOf(script), errors) << script;
        EXPECT_EQ(looks, 3) << script;
        EXPECT_EQ(errorsOf("for i in range(1000): runs += 1"), "") << "the next one is free";
    }
    EXPECT_EQ(value("(runs, after)"), "(4000, 1)");
}

TEST_F(ScriptNestingTest, AnInterruptEndsAllScriptsAndTheProgramsHandlerComesBack)
{
    const auto own = +[](int) {};
    const auto before = std::signal(SIGINT, own);
    const std::vector<std::array<std::string, 3>> cases{
        {"step()\nafter = 1", "script error: interrupted\n", "0"},
        {"try: step()\nexcept KeyboardInterrupt as end: after = end.args", "", "()"}};
    for (const auto &[script, errors, after] : cases) {
        onStep = [&] {
            onStep = [] { std::raise(SIGINT); };
            qxScript::run("while true: step()");
        };
        EXPECT_EQ(errorsOf(script), errors) << script;
        EXPECT_EQ(value("after"), after) << script;
    }
    EXPECT_EQ(std::signal(SIGINT, before), own);
}
