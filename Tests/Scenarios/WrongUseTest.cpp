#include "Program.h"
#include "qxTestPaths.h"

#include <QDir>
#include <QRegularExpression>

#include <tuple>

/// What the program says to somebody who does not know it, or who makes a mistake.
class WrongUseTest : public ProgramFixture {
protected:
    const QString scene = desk();
};

TEST_F(WrongUseTest, EveryCommandSaysWhatIsMissing)
{
    const QString overview = QString::fromUtf8(done({"--help"}).out);
    EXPECT_EQ(done({"help"}).out, overview.toUtf8());
    EXPECT_EQ(done({scene, "--help"}).out, overview.toUtf8());
    const QString none = path("none.gltf");
    for (const char *call :
         {"info --trace", "list --trace", "state --trace", "select Morning --trace",
          "set Desk Oak --trace", "create --trace", "document --trace", "verify --trace",
          "optimize --trace", "lint --trace", "explain Morning --trace",
          "rename node Desk Table --dry-run --trace", "repair --trace",
          "render --out a.png --trace", "previews --save a.gltf --trace",
          "catalogue --out . --trace", "export --out a.glb --trace", "check --trace",
          "capture Now --trace"}) {
        QStringList words = QString(call).split(' ');
        const QString needed =
            QRegularExpression("\n  " + words[0] + " (FILE.*?)  ").match(overview).captured(1);
        refused(2, QStringList(words[0]) + needed.split(' ').mid(1),
                QString(": %1 needs %2\nTry").arg(words[0], needed).toUtf8());
        words.insert(1, none);
        refused(1, words, "workbench: " + none.toUtf8() + ": the file does not exist\n");
    }
    refused(1, {none}, "none.gltf: the file does not exist\n"); // and no window opens
}

TEST_F(WrongUseTest, AFileThatIsNoSceneFailsWithItsPathInOneLine)
{
    for (const QString &file :
         {write("text.gltf", "Dear all,"), write("empty.glb", ""), folder.path()}) {
        const ProgramRun run = failed({"info", file});
        EXPECT_TRUE(run.err.startsWith("workbench: " + file.toUtf8() + ": "))
            << run.err.toStdString();
        EXPECT_EQ(run.err.count('\n'), 1) << run.err.toStdString();
        EXPECT_EQ(run.out, "");
    }
}

TEST_F(WrongUseTest, ACommandExplainsItself)
{
    const QByteArray help = done({"select", "--help"}).out;
    EXPECT_TRUE(help.startsWith("Usage: workbench select FILE SET... [options]\n"));
    for (const char *option : {"--keep-camera", "--save", "--json", "--trace", "--memory-limit"})
        EXPECT_TRUE(help.contains(option)) << option;
    for (const QStringList &call :
         {QStringList{"select", "-h", "not there.gltf"}, {"help", "select"}, {"--help", "select"}})
        EXPECT_EQ(done(call).out, help);
    EXPECT_TRUE(done({"verify", "--help"}).out.contains("workbench lint"));
    EXPECT_EQ(done({"--version"}).out.left(12), "workbench 0.");
}

TEST_F(WrongUseTest, EveryCommandHasAManualPage)
{
    refused(2, {"manual"}, "manual needs --out DIR");
    done({"manual", "--out", folder.path()});
    const QString program = QString::fromUtf8(bytesOf(path("workbench.1")));
    const QRegularExpression command("\n  ([a-z]+) "), option("\n  (?:-h, )?--([a-z-]+)");
    auto commands = command.globalMatch(QString::fromUtf8(done({"--help"}).out));
    ASSERT_TRUE(commands.hasNext());
    while (commands.hasNext()) {
        const QString name = commands.next().captured(1);
        EXPECT_TRUE(program.contains(".BR workbench\\-" + name + " (1)")) << qPrintable(name);
        const QString page = QString::fromUtf8(bytesOf(path("workbench-" + name + ".1")));
        auto options = option.globalMatch(QString::fromUtf8(done({name, "--help"}).out));
        ASSERT_TRUE(options.hasNext()) << qPrintable(name);
        while (options.hasNext()) {
            const QString word = "--" + options.next().captured(1);
            EXPECT_TRUE(page.contains("\\fB" + QString(word).replace("-", "\\-") + "\\fR"))
                << qPrintable(name) << ' ' << qPrintable(word);
        }
    }
}

TEST_F(WrongUseTest, WithoutAnythingTheProgramOpensAWindow)
{
    QProcess program;
    program.start("env",
                  {"-u", "QT_QPA_PLATFORM", "-u", "DISPLAY", "-u", "WAYLAND_DISPLAY",
                   QX_BUILD_BIN "/workbench"});
    EXPECT_TRUE(ended(program).err.contains("no display to open a window on"));
}

TEST_F(WrongUseTest, TheShellCompletesWhatTheCommandsTake)
{
    write("my scenes/a.GLB", "");
    write("notes.txt", "");
    for (const auto &[words, offered] : {std::pair("sel", "select"),
                                         {"my", "my scenes"},
                                         {"info my", "my scenes"},
                                         {"info d", "desk.gltf"},
                                         {"info n", ""},
                                         {"explain desk.gltf d", ""},
                                         {"help verif", "verify"},
                                         {"render desk.gltf --qu", "--quality"},
                                         {"render --quality b", "best"},
                                         {"render --quality = b", "best"},
                                         {"set --kind light desk.gltf --js", "--json"},
                                         {"info --save = x d", ""},
                                         {"create --kinds nodes,li", "nodes,lights"},
                                         {"catalogue --out d", ""}}) {
        QProcess shell;
        shell.setWorkingDirectory(folder.path());
        shell.start("bash",
                    {"-c",
                     "source \"$1\"; COMP_WORDS=(workbench $2); "
                     "COMP_CWORD=$((${#COMP_WORDS[@]} - 1)); _workbench; "
                     "echo \"${COMPREPLY[*]}\"",
                     "bash", QX_BUILD_BIN "/../share/bash-completion/completions/workbench",
                     words});
        EXPECT_EQ(ended(shell).out.trimmed(), offered) << words;
    }
}

TEST_F(WrongUseTest, AWrongCallIsExplainedInOneLine)
{
    refused(2, {"paint", scene}, "unknown command \"paint\"\nTry");
    refused(2, {"INFO", scene}, "unknown command \"INFO\"; did you mean \"info\"?\nTry");
    refused(2, {"--verson"}, "unknown option \"--verson\"; did you mean \"--version\"?\nTry");
    refused(2, {"help", "selct"}, "unknown command \"selct\"; did you mean \"select\"?\nTry");
    refused(2, {write("a.obj", "")}, "a.obj: scene files end in .gltf or .glb\n");
    refused(2, {scene, "select", "Morning"}, "the command comes before the file\nTry");
    refused(2, {scene, scene}, "desk.gltf: a file alone opens a window\nTry");
    const char *size = "--memory-limit 4: a size is written like 500MB or 4GB\n";
    refused(2, {"info", scene, "--memory-limit", "4"}, size);
    refused(2, {scene, "--memory-limit", "4"}, size);
    refused(2, {scene, "--memory-limit"}, "Missing value after '--memory-limit'.");
    refused(2, {"info", scene, "--colour"}, "info has no option --colour\nTry");
    refused(2, {"info", scene, "--jsn"}, "no option --jsn; did you mean \"--json\"?\nTry");
    refused(2, {"set", scene, "Desk", "Oak", "Glass"}, "too many arguments for set");
    refused(2, {"document", scene, "--in", "a.xml"}, "--in and --save go together");
    refused(2, {"document", scene, "--save", path("b.gltf")}, "--in and --save go together");
    refused(2, {"document", scene, "--in", "a", "--out", "b.xml"}, "--in and --out");
    refused(2, {"select", scene, "Morning", "--save"}, "--save");
    // An empty name of a target is not taken for none.
    refused(2, {"select", scene, "Morning", "--save", ""}, "--save needs a value");
    refused(2, {"document", scene, "--out="}, "--out needs a value");
    refused(2, {"create", scene, "--kinds", "nodes,lamps"},
            "unknown kind \"lamps\"; there are nodes, lights, overlays, transforms, materials\n");
    refused(2, {"set", scene, "Desk", "Oak", "--kind", "lamp"},
            "unknown kind \"lamp\"; there are node, material, light, overlay, transform\n");
}

TEST_F(WrongUseTest, HowWorkIsSharedMustMakeSense)
{
    const char *number = "--plan is a number of shards from 1 to 10000, not";
    const char *shard = "--shard is I/N, such as 3/8, with I from 1 to N and N up to 10000, not";
    for (const auto &[call, reason] :
         {std::pair("previews --plan 2", "--plan needs --parts DIR\n"),
          {"verify --shard 1/2", "--shard needs --parts DIR\n"},
          {"lint --parts . --plan 2 --shard 1/2", "--plan and --shard do not go together\n"},
          {"catalogue --parts . --plan 0", number},
          {"catalogue --parts . --plan 10001", number},
          {"previews --parts . --shard 3/2", shard},
          {"previews --parts . --shard 0/2", shard},
          {"previews --parts . --shard 1", shard},
          {"previews --parts . --shard 1/-2", shard},
          {"previews --parts . --plan 2 --save a.glb", "--save and --plan do not go together\n"},
          {"publish --parts . --shard 1/2 --single-file a.html",
           "--single-file and --shard do not go together\n"},
          {"render --parts . --shard 1/2", "--parts needs --all: pictures of sets are shared\n"},
          {"verify --json", "--json needs --plan or --shard\n"},
          {"gather", "gather needs --save OUT\n"}}) {
        QStringList words = QString(call).split(' ');
        words.insert(1, scene);
        refused(2, words, reason);
    }
    refused(1, {"verify", scene, "--parts", path("no"), "--plan", "2"},
            "the folder does not exist\n");
    refused(1, {"gather", folder.path(), "--save", path("a.glb")}, "plan.json: ");
}

TEST_F(WrongUseTest, AMisspeltNameIsAnsweredWithTheNearest)
{
    for (const auto &[call, reason] :
         {std::pair("select Morning Evning",
                    "no variant set is called 'Evning'; did you mean 'Evening'?\n"),
          {"select ", "no variant set is called ''\n"},
          {"select Midnight", "no variant set is called 'Midnight'\n"},
          {"set Dsek Oak", "no variant is called 'Dsek'; did you mean 'Desk'?\n"},
          {"set Desk Glas", "'Desk' has no state 'Glas'; did you mean 'Glass'?\n"},
          {"set Desk all", "did you mean '!All'?\n"},
          {"set Desk Stone",
           "'Desk' has no state 'Stone'; it has '!All', '!None', "
           "'!Next (Loop)', 'Oak', 'Glass'\n"},
          {"set Lamp !Disable", "say --kind node or light"},
          {"set Desk Oak --kind light", "no light variant is called 'Desk'\n"},
          {"capture Now --view Frnt", "; did you mean 'Front'?\n"},
          {"capture Now --root Lmap", "; did you mean 'Lamp'?\n"}}) {
        QStringList words = QString(call).split(' ') + QStringList{"--save", path("out.gltf")};
        words.insert(1, scene);
        refused(1, words, QByteArray(reason).replace('\'', '"'));
    }
    const QString set = "no variant set is called \"%1\"; did you mean \"%2\"?\n";
    refused(1, {"explain", scene, "geraumt"}, set.arg("geraumt", "Leer geräumt").toUtf8());
    refused(1, {"render", scene, "--set", "evening", "--out", path("a.png")},
            set.arg("evening", "Evening").toUtf8());
    EXPECT_FALSE(QFile::exists(path("out.gltf")));
}

TEST_F(WrongUseTest, AnOutputIsLookedAtBeforeTheWork)
{
    const QString taken = path("taken.gltf");
    const QString nowhere = path("no/where");
    ASSERT_TRUE(QDir(folder.path()).mkdir("taken.gltf"));
    for (const auto &[code, call, target, reason] :
         {std::tuple(1, "select Morning --save", taken, "it is a folder"),
          {1, "previews --save", nowhere + ".glb", "its folder does not exist"},
          {1, "document --out", scene + "/below.xml", "its folder does not exist"},
          {1, "verify --report", nowhere + ".csv", "its folder does not exist"},
          {1, "render --out", nowhere + ".png", "its folder does not exist"},
          {1, "render --all --out", nowhere, "the folder does not exist"},
          {1, "catalogue --out", scene, "it is no folder"},
          {2, "render --out", scene, "a picture's name ends with .png"},
          {2, "capture Now --save", path("picture.png"), "scene files end in .gltf or .glb"},
          {2, "export --out", path("picture.png"), "exported scenes end in .glb"},
          {2, "create --save", QString("-"), "a scene is saved to a file, not to standard output"},
          {2, "catalogue --out", QString("-"), "a folder is written, not standard output"}}) {
        QStringList words = QString(call).split(' ') + QStringList(target);
        words.insert(1, path("none.gltf")); // which nobody gets to see
        refused(code, words, (target + ": " + reason + '\n').toUtf8());
    }
    refused(2, {"export", scene}, "export needs --out GLB");
    refused(2, {"export", scene, "--out", "a.glb", "--set", "A", "--default", "A"}, "together");
    // A page replaces neither what the scene may be made of nor itself.
    refused(2, {"publish", scene, "--out", folder.path()}, "the scene lies there");
    refused(2,
            {"publish", scene, "--out", path("taken.gltf"), "--single-file",
             path("taken.gltf/../taken.gltf/index.html")},
            "the page of --out is written there\n");
    EXPECT_TRUE(QDir(taken).isEmpty());
    refused(1, {"document", scene, "--in", path("none.xml"), "--save", path("out.gltf")},
            "/none.xml: ");
    EXPECT_FALSE(QFile::exists(path("out.gltf")) || QFile::exists(path("no")));
}
