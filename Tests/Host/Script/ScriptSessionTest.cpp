#include "Script/qxScriptRunner.h"
#include "qxHost.h"
#include "qxPythonInit.h"
#include "qxScript.h"

#include <gtest/gtest.h>

static std::string calls;

static void first(bool destroy)
{
    calls += destroy ? "-1" : "+1";
    if (!destroy)
        qxScript::run("word = 'given'");
}

static void second(bool destroy)
{
    calls += destroy ? "-2" : "+2";
}

TEST(ScriptSessionTest, CallbacksHearOfTheFirstScriptAndOfTheHostsEndInTheirOrder)
{
    calls.clear();
    const qxPythonInit one(first);
    const qxPythonInit two(second);
    {
        const qxHost host;
    }
    EXPECT_EQ(calls, ""); // no script, no interpreter
    for (const char *heard : {"+1+2-1-2", "+1+2-1-2+1+2-1-2"}) {
        {
            const qxHost host;
            qxScript::run("");
            qxScript::run("");
        }
        EXPECT_EQ(calls, heard);
    }
}

TEST(ScriptSessionTest, ALateCallbackIsCalledAtOnceAndATakenBackOneNoMore)
{
    calls.clear();
    {
        const qxHost host;
        qxScript::run("");
        const qxPythonInit late(second);
        EXPECT_EQ(calls, "+2");
        {
            const qxPythonInit taken(first);
        }
        EXPECT_EQ(calls, "+2+1");
        EXPECT_EQ(qxScript::executeNUSR("word"), "given");
    }
    EXPECT_EQ(calls, "+2+1"); // they left before the host
}

TEST(ScriptSessionTest, WhatCallbacksRunIsNoScriptOfAUser)
{
    const qxPythonInit one(first);
    const qxHost host;
    std::string heard;
    const int listener =
        qxScriptRunner::addListener([&](const qxScriptText &script) { heard += script.text; });
    qxScriptRunner::setAllowed(qxScriptRunner::Nothing);
    qxScript::executeNUS("pass", false);
    EXPECT_EQ(qxScript::executeNUSR("word"), "given");
    qxScript::executeNUS("del word", false);
    const qxPythonInit late(first);
    EXPECT_EQ(qxScript::executeNUSR("word"), "given");
    qxScript::run("word = 'taken'");
    EXPECT_EQ(qxScript::executeNUSR("word"), "given");
    EXPECT_EQ(heard, "passdel wordword = 'taken'");
    qxScriptRunner::setAllowed(qxScriptRunner::Trusted);
    qxScriptRunner::removeListener(listener);
}

TEST(ScriptSessionTest, EveryHostBeginsWithTheSameNames)
{
    std::string names;
    for (int round = 0; round < 3; ++round) {
        const qxHost host;
        const std::string found = qxScript::executeNUSR("sorted(globals())");
        EXPECT_TRUE(round == 0 || found == names) << found;
        names = found;
        qxScript::run("mine = 1\nimport os\nfalse = 1\ndel findNode");
        EXPECT_EQ(qxScript::executeNUSR("false"), "1");
    }
    EXPECT_NE(names.find("'findNode'"), std::string::npos);
    EXPECT_EQ(names.find("'mine'"), std::string::npos);
}
