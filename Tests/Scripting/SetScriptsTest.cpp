#include "Program.h"

#include <QDir>

/// The scripts that sets bring along, and what scripts can say about sets.
class SetScriptsTest : public ProgramFixture {
protected:
    /// A scene of sets with these scripts.
    QString sceneWith(const QList<QPair<QString, QString>> &scripts) const
    {
        QString text = "<Variants>";
        for (const auto &set : scripts)
            text += QString("<VariantSet name=\"%1\"><Script>%2</Script></VariantSet>")
                        .arg(set.first, set.second.toHtmlEscaped());
        return desk((text + "</Variants>").toUtf8());
    }

    /// Commands that select all sets of the scene; each ends with the name of what it makes.
    QList<QStringList> picturing(const QString &scene) const
    {
        return {{"render", scene, "--all", "--size", "16x16", "--out", path("sheet.png")},
                {"previews", scene, "--save", path("previews.gltf")},
                {"catalogue", scene, "--out", made("catalogue")}};
    }

    static QByteArray printed(const QByteArray &script, const QString &scene)
    {
        return done({"run", "-", scene}, script).out;
    }
};

TEST_F(SetScriptsTest, ScriptsOfAFileRunOnlyWhenSelectedAndNotAtAllIfAsked)
{
    const QString scene =
        sceneWith({{"One", "\nprint('one')\nprint('more')"}, {"Zwö", "print(2)"}});
    EXPECT_FALSE((done({"list", scene}).out + done({"state", scene}).out).contains("2"));

    const ProgramRun left = done({"select", scene, "One", "Zwö", "--no-scripts"});
    EXPECT_EQ(left.out, "One\n  nothing changed\nZwö\n  nothing changed\n");
    EXPECT_EQ(left.err,
              "workbench: left out the script of \"One\": print('one')\n"
              "workbench: left out the script of \"Zwö\": print(2)\n");
    const ProgramRun own = done({"run", "-", scene, "--no-scripts"},
                                "findVariantSet('One').setClippingState(2) # makes texts as well\n"
                                "selectVariantSet('One')\nprint('own')\nselectVariantSet('Zwö')");
    EXPECT_EQ(own.out, "own\n");
    EXPECT_EQ(own.err, left.err);
    for (const QStringList &command : picturing(scene)) {
        const ProgramRun run = done(command + QStringList("--no-scripts"));
        EXPECT_TRUE(run.err.contains(left.err.split('\n')[1])) << run.err.toStdString();
    }
}

TEST_F(SetScriptsTest, ASetThatAnEarlierScriptRemovedIsSkipped)
{
    const QString scene = sceneWith({{"Axe", "removeVariantSet('Tree')\nremoveVariantSet('Axe')"},
                                     {"Tree", "print('still there')"}});
    EXPECT_EQ(done({"select", scene, "Axe", "Tree", "--save", path("saved.gltf")}).out,
              "Axe\n"
              "  script  removeVariantSet('Tree')\n"
              "  script  removeVariantSet('Axe')\n"
              "Tree\n"
              "  skipped  no longer there\n");
    EXPECT_EQ(printed("print(getVariantSets())", path("saved.gltf")), "[]\n");
}

TEST_F(SetScriptsTest, AScriptThatGoesAstraySpoilsTheResultButNoSelection)
{
    const QString scene =
        sceneWith({{"Raises", "findNodePath('Lamp').setActive(False)\n1 / 0"},
                   {"Loops", "selectVariantSet('Loops')\nselectVariantSet('Loops')"},
                   {"Fine", "print('fine')"}});
    const QString out = path("out.gltf");
    const ProgramRun run =
        workbench({"select", scene, "Raises", "Loops", "Fine", "--save", out, "--trace"});
    EXPECT_EQ(run.code, 1);
    EXPECT_TRUE(run.out.contains("Lamp    shown -> hidden")) << run.out.toStdString();
    EXPECT_EQ(run.err.count("\nfine\n"), 1) << run.err.toStdString();
    EXPECT_EQ(run.err.count("\npythonInit: destroy qxVariants!\n"), 1) << run.err.toStdString();
    EXPECT_TRUE(run.err.contains("ZeroDivisionError")) << run.err.toStdString();
    EXPECT_EQ(run.err.count("more than 32 levels deep"), 1) << run.err.toStdString();
    EXPECT_TRUE(run.err.contains("out.gltf: not written, because a script failed\n"));
    EXPECT_FALSE(QFile::exists(out));
    const QStringList one{"render", scene,   "--set", "Raises",
                          "--size", "16x16", "--out", path("1.png")};
    for (const QStringList &command : picturing(scene) + QList<QStringList>{one}) {
        EXPECT_EQ(workbench(command).code, 1) << command[0].toStdString();
        EXPECT_TRUE(QFile::exists(command.last())) << "what can be made is made";
    }
}

TEST_F(SetScriptsTest, AnInterruptedScriptEndsTheCommand)
{
    const QString scene = sceneWith(
        {{"Ends", "import os\nwhile True: os.kill(os.getpid(), 2)"}, {"Next", "print('next')"}});
    const QString out = path("out.gltf");
    const ProgramRun run = workbench({"select", scene, "Ends", "Next", "--save", out});
    EXPECT_EQ(run.code, 130);
    EXPECT_TRUE(run.err.startsWith("error: script error: interrupted\n")) << run.err.toStdString();
    EXPECT_FALSE(run.err.contains("next")) << run.err.toStdString();
    EXPECT_FALSE(QFile::exists(out));
    const QString pictures = made("pictures");
    EXPECT_EQ(workbench({"render", scene, "--all", "--out", pictures}).code, 130);
    EXPECT_EQ(QDir(pictures).entryList(QDir::Files), QStringList());
}

TEST_F(SetScriptsTest, ScriptsFindListCreateAndRemoveSets)
{
    const QByteArray script =
        "print(repr(findVariantSet('Nobody').getName()))\n"
        "findVariantSet('Nobody').setName('Somebody')\n"
        "print(findVariantSet(name='Leer geräumt').getName())\n"
        "print(', '.join(getVariantGroups()))\n"
        "first = createVariantSet('Tee', group='Küche')\n"
        "second = createVariantSet('Tee', 'Küche')\n"
        "print(first.getName() != second.getName(), getVariantGroups().count('Küche'))\n"
        "print(getVariantSets()[3:] == [first.getName(), second.getName()])\n"
        "print(removeVariantSet(first.getName()), removeVariantSet('Tee'))\n"
        "for wrong in (lambda: createVariantSet(''), lambda: findVariantSet(None),\n"
        "              lambda: removeVariantSet(), lambda: createVariantSet(1)):\n"
        "    try:\n"
        "        wrong()\n"
        "    except (TypeError, ValueError) as error:\n"
        "        print(type(error).__name__)\n"
        "print(len(getVariantSets()))\n";
    EXPECT_EQ(printed("from __future__ import print_function\n" + script, desk()),
              "''\nLeer geräumt\nWork, Attic\nTrue 1\nTrue\nTrue False\n"
              "ValueError\nArgumentError\nArgumentError\nArgumentError\n4\n");
}

TEST_F(SetScriptsTest, AScriptCapturesNothingWhereNodesCannotBeToldApart)
{
    const QString twins = write("twins.gltf", R"({"asset": {"version": "2.0"},
        "nodes": [{"name": "Wheels", "extras": {"qxSwitch": 0}},
                  {"name": "Wheels", "extras": {"qxSwitch": 0}}]})");
    const char *const script = "createAndCaptureVariantSet('Sport', '')\nprint(getVariantSets())";
    const ProgramRun run = done({"run", "-", twins}, script);
    EXPECT_EQ(run.out + run.err, "[]\nwarning: ambiguous node: Wheels\n");
}
