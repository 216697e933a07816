#include "Program.h"

/// What the program says to somebody who does not know it, or who makes a mistake.
class WrongUseTest : public ProgramFixture {};

namespace {

const QStringList commands{"info",   "list",     "state", "select",  "set",   "create", "document",
                           "verify", "optimize", "lint",  "explain", "check", "capture"};

} // namespace

TEST_F(WrongUseTest, HelpNamesEveryCommandAndEachCommandExplainsItself)
{
    const ProgramRun overview = done({"--help"});
    EXPECT_EQ(overview.err, "");
    EXPECT_EQ(done({"help"}).out, overview.out);
    EXPECT_TRUE(overview.out.contains("workbench FILE, which opens a window"));
    for (const QString &command : commands) {
        EXPECT_TRUE(overview.out.contains("\n  " + command.toUtf8() + " FILE"));
        const QByteArray help = done({command, "--help"}).out;
        EXPECT_TRUE(help.startsWith("Usage: workbench " + command.toUtf8() + " FILE"));
        EXPECT_TRUE(help.contains("--trace")) << help.toStdString();
        EXPECT_EQ(done({command, "-h", "not there.gltf"}).out, help);
    }
    EXPECT_TRUE(done({"select", "--help"}).out.contains("--keep-camera"));
    EXPECT_TRUE(done({"set", "--help"}).out.contains("FILE VARIANT STATE [options]\n"));
}

TEST_F(WrongUseTest, AWrongCallIsExplainedAndEndsWithTwo)
{
    const QString scene = desk();
    refused(2, {}, "no command given\nUsage: ");
    refused(2, {"paint", scene}, "unknown command \"paint\"\nUsage: ");
    refused(2, {"INFO", scene}, "unknown command");
    for (const QString &command : commands) {
        refused(2, {command}, command.toUtf8() + " needs FILE");
        refused(2, {command, scene, "a", "b", "--colour"}, "'colour'");
    }
    refused(2, {"info", scene, scene}, "too many arguments for info");
    refused(2, {"set", scene, "Desk", "Oak", "Glass"}, "too many arguments for set");
    refused(2, {"select", scene}, "select needs FILE SET...");
    refused(2, {"set", scene, "Desk"}, "set needs FILE VARIANT STATE");
    refused(2, {"document", scene, "--json"}, "'json'");
    refused(2, {"document", scene, "--in", "a.xml"}, "--in and --save go together");
    refused(2, {"document", scene, "--save", path("b.gltf")}, "--in and --save go together");
    refused(2, {"document", scene, "--in", "a", "--out", "b", "--save", "c"}, "--in and --out");
    refused(2, {"select", scene, "Morning", "--save"}, "--save");
    refused(2, {"create", scene, "--kinds", "nodes,lamps"},
            "unknown kind \"lamps\"; there are nodes, lights, overlays, transforms, materials\n");
}

TEST_F(WrongUseTest, AnEmptyNameOfATargetIsNotTakenForNone)
{
    refused(2, {"select", desk(), "Morning", "--save", ""}, "--save needs a value");
    refused(2, {"document", desk(), "--out="}, "--out needs a value");
}

TEST_F(WrongUseTest, AWindowIsNotOpenedOnAFileThatIsNotThere)
{
    refused(1, {path("none.gltf")}, "none.gltf: the file does not exist\n");
}

TEST_F(WrongUseTest, AFileThatIsNoSceneFailsWithItsPath)
{
    const QString scene = path("none.gltf");
    const QString text = write("text.gltf", "Dear all,");
    const QString empty = write("empty.glb", "");
    for (const QString &command : commands) {
        const bool needsSet = command == "select" || command == "explain" || command == "capture";
        const QStringList more = needsSet ? QStringList{"Morning"}
            : command == "set"            ? QStringList{"Desk", "Oak"}
                                          : QStringList();
        for (const QString &file : {scene, text, empty, folder.path()}) {
            refused(1, QStringList{command, file} + more, file.toUtf8() + ": ");
            EXPECT_EQ(workbench(QStringList{command, file} + more).err.count('\n'), 1);
        }
    }
}

TEST_F(WrongUseTest, NothingIsDoneWhenANameIsMisspelt)
{
    const QString scene = desk();
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
    const QString scene = desk();
    ASSERT_TRUE(QDir(folder.path()).mkdir("taken.gltf"));
    for (const QString &target :
         {path("taken.gltf"), scene + "/below.gltf", path("picture.png"), path("no suffix")}) {
        const ProgramRun run = workbench({"select", scene, "Morning", "--save", target});
        EXPECT_EQ(run.code, 1) << target.toStdString();
        EXPECT_EQ(run.err.count('\n'), 1) << run.err.toStdString();
        EXPECT_TRUE(run.err.contains(target.toUtf8())) << run.err.toStdString();
    }
    refused(1, {"document", scene, "--out", scene + "/below.xml"}, "/below.xml: ");
    refused(1, {"document", scene, "--in", path("none.xml"), "--save", path("out.gltf")},
            "/none.xml: ");
    EXPECT_FALSE(QFile::exists(path("out.gltf")));
}
