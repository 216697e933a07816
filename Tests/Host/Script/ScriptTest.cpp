#include "Script/qxScriptCheck.h"
#include "Script/qxScriptRunner.h"
#include "ScriptFixture.h"

typedef std::vector<std::string> Texts;

class ScriptTest : public ScriptFixture {
protected:
    /// Whether each part is in the errors of the script.
    void expectErrors(const std::string &script, const Texts &parts)
    {
        const std::string errors = errorsOf(script);
        for (const std::string &part : parts)
            EXPECT_NE(errors.find(part), std::string::npos) << part << " is not in\n" << errors;
    }
};

/// What is written to standard output meanwhile.
template <class Action>
static std::string printedBy(const Action &action)
{
    testing::internal::CaptureStdout();
    action();
    return testing::internal::GetCapturedStdout();
}

TEST_F(ScriptTest, AnExpressionGivesWhatPrintingItsValueGives)
{
    const std::vector<std::pair<std::string, std::string>> values{
        {"1 + 1", "2"},
        {"'a\\nb'", "a\nb"},
        {"'\xC3\xA4 \xE2\x82\xAC'", "\xC3\xA4 \xE2\x82\xAC"},
        {"u'\\xe4'", "\xC3\xA4"},
        {"None", ""},
        {"__import__('sys').stdout.write('printed\\n') and None", "printed"},
        {"true", "True"},
        {"false or 0", "0"},
        {"", ""}};
    for (const auto &expected : values) {
        std::string found;
        const std::string passed = printedBy([&] { found = value(expected.first); });
        EXPECT_EQ(found, expected.second) << expected.first;
        EXPECT_EQ(passed, "") << expected.first;
    }
    EXPECT_NE(newErrors().find("SyntaxError"), std::string::npos); // nothing is no expression
    EXPECT_EQ(value("boom()"), "");
    EXPECT_NE(newErrors().find("NameError: name 'boom' is not defined"), std::string::npos);
    EXPECT_EQ(qxScript::executeNUSR(nullptr), "");
}

TEST_F(ScriptTest, PrintedTextsReachTheOutput)
{
    const char *const script = "print('\xC3\xA4')\nimport sys\nsys.stdout.write(u'\\u20ac\\n')";
    EXPECT_EQ(printedBy([&] { qxScript::run(script); }), "\xC3\xA4\n\xE2\x82\xAC\n");
    EXPECT_EQ(printedBy([&] { qxScript::run("sys.stdout.write(u'\\ud800')"); }).size(),
              value("sys.version_info[0] >= 3") == "True" ? 6u : 3u); // "\ud800" where it must

    const char *const lines = "sys.stdout.writelines(str(i) + '\\n' for i in range(2))";
    EXPECT_EQ(printedBy([&] { qxScript::run(lines); }), "0\n1\n");

    std::FILE *const file = std::tmpfile();
    qxScriptRunner::setOutput(file);
    EXPECT_EQ(printedBy([&] { qxScript::run("print('elsewhere')"); }), "");
    qxScriptRunner::setOutput(stdout);
    EXPECT_EQ(std::ftell(file), 10);
    std::fclose(file);

    Texts heard;
    qxScriptRunner::setOutput([&](const std::string &line) { heard.push_back(line); });
    qxScript::run("print('one\\ntwo')\nsys.stderr.write('three ')\nsys.stdout.write('four')");
    qxScript::run("print('')");
    EXPECT_EQ(value("sys.stdout.write('caught') and None"), "caught");
    qxScriptRunner::setOutput(stdout);
    EXPECT_EQ(heard, Texts({"one", "two", "three four", ""}));
}

TEST_F(ScriptTest, TextsMayBeEmptyMarkedAndWrittenOnOtherSystems)
{
    const char *const texts[] = {"",
                                 "# only a comment",
                                 "\xEF\xBB\xBFmarked = 1",
                                 "ends = 'windows'\r\nmore = 1\r\n",
                                 "# -*- coding: utf-8 -*-\ncoded = u'\xC3\xA4'",
                                 "plain = u'\xC3\xA4'"};
    for (const char *text : texts)
        qxScript::run(text);
    EXPECT_EQ(value("(marked, more, len(coded), len(plain))"), "(1, 1, 1, 1)");
}

TEST_F(ScriptTest, ErrorsAreLoggedWithTheirTracebackAndEndOnlyTheirScript)
{
    qxScript::run("import sys");
    expectErrors("x = 1\ny = 2 +\n",
                 {"script error:\n", "File \"<script>\", line 2", "    y = 2 +\n", "SyntaxError:"});
    expectErrors("before = 1\n\nboom()\nbefore = 2\n",
                 {"script error:\nTraceback (most recent call last):\n"
                  "  File \"<script>\", line 3, in <module>\n    boom()\n",
                  "\nNameError: name 'boom' is not defined\n"});
    EXPECT_EQ(value("before"), "1");
    expectErrors("setClippingPlane(1)", {"qxHost.setClippingPlane(int)\ndid not match"});
    expectErrors("raise ValueError(u'\xC3\xA4')", {"ValueError: \xC3\xA4\n"});
    expectErrors("class Odd(Exception):\n def __str__(self): raise self\nraise Odd()", {"Odd"});
    expectErrors("def deep(): deep()\ndeep()", {"maximum recursion depth"});
    if (value("sys.version_info[0] >= 3") == "True") // Python 2.7 takes any byte
        expectErrors("text = '\xFF'", {"File \"<script>\"", "'utf-8' codec can't decode"});
    EXPECT_EQ(errorsOf("def late():\n  raise ValueError(3)\n"), "");
    expectErrors("late()\nwrong = 1\n", // no line of this script for the earlier one's function
                 {"line 1, in <module>\n    late()\n"
                  "  File \"<script>\", line 2, in late\nValueError: 3\n"});
}

TEST_F(ScriptTest, ExitEndsTheScriptAloneAndCountsAsErrorWithAnotherCodeThanZero)
{
    const std::vector<std::pair<std::string, std::string>> exits{
        {"exit()", ""},
        {"quit(0)", ""},
        {"import sys\nsys.exit(None)", ""},
        {"raise SystemExit", ""},
        {"exit(3)", "script error: exit(3)\n"},
        {"exit('no wheels')", "script error: no wheels\n"},
        {"class Odd(SystemExit):\n  code = property(lambda self: 1 / 0)\nraise Odd()",
         "script error: an exit without a readable code\n"},
        {"class Code(object):\n"
         "  def __index__(self): return 1 / 0\n"
         "  def __str__(self): return 'odd'\n"
         "exit(Code())",
         "script error: exit(odd)\n"}};
    for (const auto &expected : exits) {
        EXPECT_EQ(errorsOf("left = 1\n" + expected.first + "\nleft = 2\n"), expected.second);
        EXPECT_EQ(value("left"), "1") << expected.first;
        EXPECT_EQ(qxScriptRunner::run(expected.first, "exit.py"), expected.second.empty());
        newErrors();
    }
    EXPECT_EQ(value("__import__('sys').stdin.closed"), "False");
}

TEST_F(ScriptTest, ListenersHearEveryTextBeforeItRunsWithItsOriginAndWhetherItIsLeftOut)
{
    Texts heard;
    const int listener = qxScriptRunner::addListener([&](const qxScriptText &script) {
        heard.push_back(value("done") + " " + script.text
                        + (script.origin == qxScriptText::User ? " of a user" : " composed")
                        + (script.synchronise ? ", waiting" : "")
                        + (script.isBlocked ? ", left out" : ""));
    });
    qxScriptRunner::run("done = []", "start.py");
    qxScript::run("done.append(1)");
    qxScript::executeNUS("done.append(2)", true);
    qxScript::run(nullptr);
    qxScript::executeNUS(nullptr, false);
    qxScriptRunner::setAllowed(qxScriptRunner::Nothing);
    qxScriptRunner::run("done.append(3)", "given.py");
    qxScript::run("done.append(4)");
    qxScript::executeNUS("done.append(5)", false);
    qxScriptRunner::setDistrusted({"done.append(6)"});
    for (const auto each : {qxScriptRunner::Trusted, qxScriptRunner::Everything}) {
        qxScriptRunner::setAllowed(each);
        qxScript::run("done.append(6)");
        qxScript::run("done.append(6) # differs");
    }
    qxScriptRunner::setDistrusted({});
    qxScriptRunner::setAllowed(qxScriptRunner::Trusted);
    qxScriptRunner::removeListener(listener);
    qxScript::run("done.append(7)");
    EXPECT_EQ(
        heard,
        (Texts{"[] done.append(1) of a user", "[1] done.append(2) composed, waiting",
               "[1, 2, 3] done.append(4) of a user, left out", "[1, 2, 3] done.append(5) composed",
               "[1, 2, 3, 5] done.append(6) of a user, left out",
               "[1, 2, 3, 5] done.append(6) # differs of a user",
               "[1, 2, 3, 5, 6] done.append(6) of a user",
               "[1, 2, 3, 5, 6, 6] done.append(6) # differs of a user"}));
    EXPECT_EQ(value("done"), "[1, 2, 3, 5, 6, 6, 6, 7]");
}

TEST_F(ScriptTest, WhatCannotBeCompiledIsSaidWithItsLineAndNothingIsRun)
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
