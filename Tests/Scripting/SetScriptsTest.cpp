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

TEST_F(SetScriptsTest, ScriptsOfAFileRunOnlyWhenTheirSetIsSelectedAndTheyAreAllowedTo)
{
    const QString proof = path("proof");
    const QString scene = sceneWith({{"One", "\nopen('" + proof + "', 'w')\nprint('more')"}});
    const QByteArray own = "selectVariantSet('One')\nprint('own')";
    const QList<QStringList> commands = QList<QStringList>{{"select", scene, "One"}}
        << picturing(scene) << QStringList{"run", "-", scene}
        << QStringList{"render", scene, "--set", "One", "--size", "16x16", "--out", path("1.png")}
        << QStringList{"list", scene} << QStringList{"state", scene} << QStringList{"lint", scene}
        << QStringList{"verify", scene} << QStringList{"explain", scene, "One"};
    const QByteArray line =
        "workbench: left out the script of \"One\": open('" + proof.toUtf8() + "', 'w')\n";
    const QByteArray advice = "workbench: scripts of a file run with --scripts, or once "
                              "\"workbench trust FILE\" has made them trusted\n";
    struct Case {
        QStringList decision; ///< of the command "trust", if any
        QStringList option;
        QByteArrayList said;
        bool isRun;
    };
    const QList<Case> cases = {{{}, {}, {line, advice}, false},
                               {{}, {"--scripts"}, {}, true},
                               {{"--yes"}, {}, {}, true},
                               {{"--yes"}, {"--no-scripts"}, {line}, false},
                               {{"--never"}, {}, {line, advice}, false},
                               {{"--never"}, {"--scripts"}, {}, true},
                               {{"--forget"}, {}, {line, advice}, false}};
    for (const Case &each : cases) {
        if (!each.decision.isEmpty()) {
            EXPECT_TRUE(done(QStringList{"trust", scene} + each.decision).out.startsWith("One ("));
        }
        // What was decided is the same for all commands.
        for (const QStringList &command : commands.mid(0, each.decision.isEmpty() ? -1 : 1)) {
            SCOPED_TRACE((each.decision + command.mid(0, 1) + each.option).join(' ').toStdString());
            const bool selects = commands.indexOf(command) < 6;
            QFile::remove(proof);
            const ProgramRun run =
                workbench(command + (selects ? each.option : QStringList()), own);
            EXPECT_EQ(run.code, command[0] == "lint" || command[0] == "verify" ? run.code : 0);
            EXPECT_EQ(QFile::exists(proof), each.isRun && selects);
            for (const QByteArray &text : {line, advice})
                EXPECT_EQ(run.err.count(text), selects && each.said.contains(text) ? 1 : 0)
                    << run.err.toStdString();
        }
    }
    EXPECT_EQ(done({"select", scene, "One", "--no-scripts"}).out, "One\n  nothing changed\n");
    exits(2, {"select", scene, "One", "--no-scripts", "--scripts"});
    exits(2, {"trust", scene, "--yes", "--never"});
}

TEST_F(SetScriptsTest, WhatOneWritesAndSavesIsTrustedAndWhatAFileBroughtIsNot)
{
    const QString scene = sceneWith({{"Theirs", "print('theirs')"}});
    const QString saved = path("saved.gltf");
    const QByteArray script = "mine = createVariantSet('Mine')\n"
                              "mine.addScript(u'\\x0cprint(\"mine\")')\n"
                              "theirs = findVariantSet('Theirs')\n"
                              "createVariantSet('Copy').addScript(theirs.getScript())\n"
                              "theirs.setName('Renamed')\n"
                              "selectVariantSet('Mine')\nselectVariantSet('Copy')";
    const QStringList select{"select", saved, "Mine", "Renamed", "Copy"};
    const auto isSaved = [&](const QStringList &option, const QByteArray &printed) {
        EXPECT_EQ(done(QStringList{"run", "-", scene, "--save", saved} + option, script).out,
                  printed);
        return done(select).err;
    };
    EXPECT_FALSE(isSaved({"--scripts"}, "mine\ntheirs\n").contains("\nmine\n"))
        << "who knows which script wrote it";
    const QString store = write("data-home/qxVariants/scripts-of-files", "# for all to read\n");
    QFile::setPermissions(store, QFile::Permissions(0x6644));
    const QByteArray said = isSaved({}, "mine\n");
    EXPECT_TRUE(said.startsWith("mine\nworkbench: left out the script of \"Renamed\": "))
        << said.toStdString();
    EXPECT_EQ(said.count("left out"), 2) << said.toStdString();

    const QByteArray kept = bytesOf(store);
    EXPECT_TRUE(
        kept.endsWith("\ntrusted 763c00876497a15a56d51898993d79fb8f8cd8dd0922a3f1c93f417c6b95"
                      "cb4f saved.gltf: Mine\n"))
        << kept.toStdString() << "the SHA-256 of what was written above";
    EXPECT_EQ(QFile::permissions(store) & QFile::Permissions(0x0077), QFile::Permissions());
    for (const QByteArray &broken : {kept + "trusted maybe\n", kept.left(kept.size() - 40)}) {
        write("data-home/qxVariants/scripts-of-files", broken);
        const ProgramRun run = done(select);
        EXPECT_EQ(run.err.count("left out"), 3) << run.err.toStdString();
        EXPECT_TRUE(run.err.contains("scripts-of-files is broken in line "));
        EXPECT_TRUE(failed({"trust", saved, "--yes"}).err.contains("is broken in line "));
        EXPECT_EQ(bytesOf(store), broken);
    }
    write("data-home/qxVariants/scripts-of-files", kept);
    QFile::setPermissions(store, QFile::Permissions(0x6622));
    EXPECT_TRUE(done(select).err.contains("No script of the file is trusted: others may write "));
}

TEST_F(SetScriptsTest, ASetThatAnEarlierScriptRemovedIsSkipped)
{
    const QString scene = sceneWith({{"Axe", "removeVariantSet('Tree')\nremoveVariantSet('Axe')"},
                                     {"Tree", "print('still there')"}});
    EXPECT_EQ(done({"select", scene, "Axe", "Tree", "--scripts", "--save", path("saved.gltf")}).out,
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
    const ProgramRun run = workbench(
        {"select", scene, "Raises", "Loops", "Fine", "--scripts", "--save", out, "--trace"});
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
        EXPECT_EQ(workbench(command + QStringList("--scripts")).code, 1)
            << command[0].toStdString();
        EXPECT_TRUE(QFile::exists(command.last())) << "what can be made is made";
    }
}

TEST_F(SetScriptsTest, AnInterruptedScriptEndsTheCommand)
{
    const QString scene = sceneWith(
        {{"Ends", "import os\nwhile True: os.kill(os.getpid(), 2)"}, {"Next", "print('next')"}});
    const QString out = path("out.gltf");
    const ProgramRun run = workbench({"select", scene, "Ends", "Next", "--scripts", "--save", out});
    EXPECT_EQ(run.code, 130);
    EXPECT_TRUE(run.err.startsWith("error: script error: interrupted\n")) << run.err.toStdString();
    EXPECT_FALSE(run.err.contains("next")) << run.err.toStdString();
    EXPECT_FALSE(QFile::exists(out));
    const QString pictures = made("pictures");
    EXPECT_EQ(workbench({"render", scene, "--all", "--scripts", "--out", pictures}).code, 130);
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
    const QString twins = testData("Scenes/twins.gltf");
    const char *const script = "createAndCaptureVariantSet('Sport', '')\nprint(getVariantSets())";
    const ProgramRun run = done({"run", "-", twins}, script);
    EXPECT_EQ(run.out + run.err, "[]\nwarning: ambiguous node: Right/Wheels\n");
}
