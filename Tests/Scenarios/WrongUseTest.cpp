#include "Program.h"

#include <QDir>
#include <QRegularExpression>

/// What the program says to somebody who does not know it, or who makes a mistake.
class WrongUseTest : public ProgramFixture {
protected:
    const QString scene = desk();
};

TEST_F(WrongUseTest, EveryCommandSaysWhatItNeedsAndThatAFileIsNotThere)
{
    const QString overview = QString::fromUtf8(done({"--help"}).out);
    EXPECT_EQ(done({"help"}).out, overview.toUtf8());
    EXPECT_TRUE(overview.contains("workbench FILE, which opens a window"));
    const QString none = path("none.gltf");
    for (const char *call :
         {"info --trace", "list --trace", "state --trace", "select Morning --trace",
          "set Desk Oak --trace", "create --trace", "document --trace", "verify --trace",
          "optimize --trace", "lint --trace", "explain Morning --trace", "render --out a.png",
          "previews --save a.gltf", "catalogue --out a", "check --trace", "capture Now --trace"}) {
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
    for (const char *option : {"--keep-camera", "--save", "--json", "--trace"})
        EXPECT_TRUE(help.contains(option)) << option;
    EXPECT_EQ(done({"select", "-h", "not there.gltf"}).out, help);
}

TEST_F(WrongUseTest, AWrongCallIsExplainedAndEndsWithTwo)
{
    refused(2, {}, "no command given\nUsage: ");
    refused(2, {"paint", scene}, "unknown command \"paint\"\nUsage: ");
    refused(2, {"INFO", scene}, "unknown command");
    refused(2, {"info", scene, "--colour"}, "'colour'");
    refused(2, {"select", scene}, "select needs FILE SET...");
    refused(2, {"set", scene, "Desk"}, "set needs FILE VARIANT STATE");
    refused(2, {"explain", scene}, "explain needs FILE SET");
    refused(2, {"capture", scene}, "capture needs FILE NAME");
    refused(2, {"info", scene, scene}, "too many arguments for info");
    refused(2, {"set", scene, "Desk", "Oak", "Glass"}, "too many arguments for set");
    refused(2, {"document", scene, "--json"}, "'json'");
    refused(2, {"document", scene, "--in", "a.xml"}, "--in and --save go together");
    refused(2, {"document", scene, "--save", path("b.gltf")}, "--in and --save go together");
    refused(2, {"document", scene, "--in", "a", "--out", "b", "--save", "c"}, "--in and --out");
    refused(2, {"select", scene, "Morning", "--save"}, "--save");
    // An empty name of a target is not taken for none.
    refused(2, {"select", scene, "Morning", "--save", ""}, "--save needs a value");
    refused(2, {"document", scene, "--out="}, "--out needs a value");
    refused(2, {"create", scene, "--kinds", "nodes,lamps"},
            "unknown kind \"lamps\"; there are nodes, lights, overlays, transforms, materials\n");
}

TEST_F(WrongUseTest, NothingIsDoneWhenANameIsMisspelt)
{
    const QStringList save{"--save", path("out.gltf")};
    refused(1, QStringList{"select", scene, "Morning", "Evning"} + save,
            "no variant set is called \"Evning\"");
    refused(1, QStringList{"select", scene, ""} + save, "no variant set is called \"\"");
    refused(1, QStringList{"set", scene, "desk", "Oak"} + save, "no variant is called \"desk\"");
    refused(1, QStringList{"set", scene, "Desk", "Stone"} + save,
            "\"Desk\" has no state \"Stone\"; it has \"!All\", \"!None\", \"!Next (Loop)\", "
            "\"Oak\", \"Glass\"\n");
    refused(1, QStringList{"set", scene, "Lamp", "!Disable"} + save, "say --kind node or light");
    refused(1, QStringList{"set", scene, "Desk", "Oak", "--kind", "light"} + save,
            "no light variant is called \"Desk\"");
    EXPECT_FALSE(QFile::exists(save[1]));
}

TEST_F(WrongUseTest, ATargetThatCannotBeWrittenFailsWithItsPath)
{
    ASSERT_TRUE(QDir(folder.path()).mkdir("taken.gltf"));
    for (const QString &target :
         {path("taken.gltf"), scene + "/below.gltf", path("picture.png"), path("no suffix")}) {
        const ProgramRun run = failed({"select", scene, "Morning", "--save", target});
        EXPECT_EQ(run.err.count('\n'), 1) << run.err.toStdString();
        EXPECT_TRUE(run.err.contains(target.toUtf8())) << run.err.toStdString();
    }
    refused(1, {"document", scene, "--out", scene + "/below.xml"}, "/below.xml: ");
    refused(1, {"document", scene, "--in", path("none.xml"), "--save", path("out.gltf")},
            "/none.xml: ");
    EXPECT_FALSE(QFile::exists(path("out.gltf")));
}
