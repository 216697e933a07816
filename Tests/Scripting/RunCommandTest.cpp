#include "Program.h"

/// Scripts in files and on standard input.
class RunCommandTest : public ProgramFixture {
protected:
    /// The script cannot be run to its end: each of the texts is on standard error.
    void fails(const QByteArray &script, const QByteArrayList &texts, int code = 1) const
    {
        SCOPED_TRACE(script.toStdString());
        const QString out = path("out.gltf");
        const ProgramRun run = workbench({"run", "-", desk(), "--save", out}, script);
        EXPECT_EQ(run.code, code);
        for (const QByteArray &text : texts)
            EXPECT_TRUE(run.err.contains(text)) << text.toStdString() << " is not in\n"
                                                << run.err.toStdString();
        EXPECT_FALSE(QFile::exists(out));
    }
};

TEST_F(RunCommandTest, AScriptWorksOnTheSceneAndTheResultIsSaved)
{
    const QString script = write("büro.py",
                                 "import sys\n"
                                 "selectVariantSet('Evening')\n"
                                 "made = createVariantSet('Mittag', 'Wärme')\n"
                                 "made.addScript('print(\"é\")')\n"
                                 "made.setValue('Größe', '1,80 m')\n"
                                 "print(', '.join(getVariantSets()))\n"
                                 "sys.exit(0)\n"
                                 "print('left')\n");
    const QString saved = path("saved.gltf");
    done({"trust", desk(), "--yes"});
    const ProgramRun run = done({"run", script, desk(), "--save", saved});
    EXPECT_EQ(run.out, "late\nMorning, Evening, Leer geräumt, Mittag\n");

    const QJsonObject list = done({"list", saved, "--json"}).object();
    EXPECT_EQ(list["groups"].toArray().last()["name"], "Wärme");
    EXPECT_EQ(done({"select", saved, "Mittag"}).err, "é\n");
    EXPECT_EQ(done({"run", "-", saved}, "print(findVariantSet('Mittag').getValue('Größe'))").out,
              "1,80 m\n");
    EXPECT_EQ(done({"select", saved, "Evening", "--json"}).array()[0]["changes"], QJsonArray());
}

TEST_F(RunCommandTest, AScriptHasArgumentsAndNeighbours)
{
    write("neighbour.py", "def greet(whom):\n    return 'Hello ' + whom\n");
    const QString script = write("main.py",
                                 "import sys\n"
                                 "from neighbour import greet\n"
                                 "if __name__ == '__main__':\n"
                                 "    print(greet(sys.argv[1]))\n"
                                 "print(len(sys.argv))\n");
    EXPECT_EQ(done({"run", script, "--", "Jürgen", "--save"}).out, "Hello Jürgen\n3\n");
    EXPECT_EQ(done({"run", script, desk(), "--", "you"}).out, "Hello you\n2\n");
    EXPECT_EQ(done({"run", "-", "--", "a"}, "import sys; print(sys.argv)").out, "['-', 'a']\n");
}

TEST_F(RunCommandTest, AFailingScriptSavesNothingAndShowsWhere)
{
    fails("def f():\n    selectVariantSet('Morning')\n    return 1 / 0\nf()\n",
          {"Traceback (most recent call last):", "\"<stdin>\", line 3, in f", "return 1 / 0",
           "ZeroDivisionError: ", "out.gltf: not written, because the script failed\n"});
    fails("import sys\nsys.exit(3)\n", {"exit(3)"});
    fails("import warnings\nwarnings.warn('odd')\n1 / 0", {"warning: ", ":2: UserWarning: odd\n"});
    fails("import os\nwhile True: os.kill(os.getpid(), 2)\n", {"script error: interrupted\n"}, 130);
    fails(QByteArray("print(1)\0print(2)\n", 18), {"NUL"});
    const QString script = write("wrong.py", "findNode('Desk').paint('red')\n");
    const ProgramRun run = workbench({"run", script, desk()});
    EXPECT_EQ(run.code, 1);
    EXPECT_TRUE(run.err.contains("wrong.py\", line 1, in <module>\n    findNode('Desk').paint("))
        << run.err.toStdString();
}

TEST_F(RunCommandTest, AFileThatSomebodyChangesMeanwhileIsSavedOverByForceAlone)
{
    const QByteArray change = "open('" + path("desk.gltf").toUtf8() + "', 'a').write(' ')";
    const ProgramRun run = workbench({"run", "-", desk(), "--save", desk()}, change);
    EXPECT_EQ(run.code, 1);
    EXPECT_TRUE(run.err.contains("since it was opened; --force writes it\n"));
    EXPECT_EQ(bytesOf(path("desk.gltf")), sceneWith("desk") + ' ');
    done({"run", "-", desk(), "--save", path("other.gltf")}, change);
    done({"run", "-", desk(), "--save", desk(), "--force"}, change);
    EXPECT_NE(bytesOf(path("desk.gltf")), sceneWith("desk") + ' ');
}

TEST_F(RunCommandTest, WhatCannotBeRunIsRefused)
{
    refused(2, {"run"}, "run needs SCRIPT [FILE]");
    refused(2, {"run", "--", "a"}, "run needs SCRIPT [FILE]");
    refused(2, {"run", "-", desk(), desk()}, "too many arguments for run");
    refused(2, {"python", desk(), desk()}, "too many arguments for python");
    refused(2, {"run", "-", "--save", path("out.gltf")}, "--save needs a FILE to save");
    refused(1, {"run", path("none.py")}, "/none.py: ");
    refused(1, {"run", folder.path()}, folder.path().toUtf8() + ": ");
    refused(1, {"run", "-", path("none.gltf")}, "/none.gltf: ");
    const QByteArray help = done({"run", "--help"}).out;
    EXPECT_TRUE(help.startsWith("Usage: workbench run SCRIPT [FILE] [options]\n"));
    EXPECT_TRUE(help.contains("sys.argv")) << help.toStdString();
}

TEST_F(RunCommandTest, WithoutATerminalThePromptRunsItsInputAsAScript)
{
    const QByteArray script = "for name in getVariantSets():\n    print(name)\nprint('done')\n";
    const ProgramRun run = done({"python", desk()}, script);
    EXPECT_EQ(run.out, "Morning\nEvening\nLeer geräumt\ndone\n");
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(done({"python"}).out, "");
    EXPECT_EQ(workbench({"python"}, "1 / 0").code, 1);
}
