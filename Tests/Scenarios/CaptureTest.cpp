#include "Program.h"

/// Capturing a set in a shell, from looking for ambiguous nodes to selecting what was captured.
class CaptureCommandTest : public ProgramFixture {};

TEST_F(CaptureCommandTest, AmbiguousNodesAreListedAndRenamedOnlyWhenThatIsWanted)
{
    EXPECT_EQ(done({"check", desk()}).out, "no ambiguous nodes\n");
    EXPECT_EQ(done({"check", desk(), "--json"}).array(), QJsonArray());
    const QString twins = testData("Scenes/twins.gltf");
    EXPECT_EQ(failed({"check", twins}).out, "Wheels  Right/Wheels\n");
    EXPECT_EQ(failed({"check", twins, "--json"}).json(),
              parsed(R"([{"name": "Wheels", "path": "Right/Wheels"}])"));
    const QString out = path("out.gltf");
    refused(1, {"capture", twins, "Sport", "--save", out}, "  Right/Wheels\n");
    EXPECT_FALSE(QFile::exists(out));
    const ProgramRun run = done({"capture", twins, "Sport", "--rename", "--save", out});
    EXPECT_TRUE(run.err.contains("renamed Right/Wheels to \"Wheels 2\"\n"));
    EXPECT_EQ(done({"check", out}).out, "no ambiguous nodes\n");
}

TEST_F(CaptureCommandTest, ACapturedSetBringsBackWhatItSaw)
{
    const QString copy = path("copy.gltf");
    const QJsonObject made =
        done({"capture", desk(), "Now", "--group", "Mine", "--save", copy, "--json"}).object();
    EXPECT_EQ(made["set"], "Now");
    EXPECT_EQ(made["group"], "Mine");
    EXPECT_EQ(done({"info", copy, "--json"}).object()["viewpoints"],
              (QJsonArray{"Front", "Über dem Tisch", "Now"}));
    const QByteArray captured = done({"state", copy}).out;
    const QJsonArray reports =
        done({"select", copy, "Morning", "Now", "Now", "--json", "--save", copy}).array();
    EXPECT_NE(reports[0]["changes"], QJsonArray());
    EXPECT_NE(reports[1]["changes"], QJsonArray());
    EXPECT_EQ(reports[1]["viewpoint"], "Now");
    EXPECT_EQ(reports[2]["changes"], QJsonArray());
    EXPECT_TRUE(reports[2]["viewpoint"].isNull()) << "the camera is there already";
    EXPECT_EQ(done({"state", copy}).out, captured);
}

TEST_F(CaptureCommandTest, OnlyTheNamedKindsAndRootsAreCaptured)
{
    const QJsonObject all = done({"capture", desk(), "All", "--json"}).object();
    const QJsonObject nodes = done({"capture", desk(), "Nodes", "--nodes", "--json"}).object();
    EXPECT_EQ(all["group"], "New Group 1");
    EXPECT_NE(all["nodes"], QJsonArray());
    EXPECT_NE(all["viewpoints"], QJsonArray());
    EXPECT_EQ(nodes["nodes"], all["nodes"]);
    EXPECT_EQ(nodes["viewpoints"], QJsonArray());
    const QJsonObject part =
        done({"capture", desk(), "Part", "--root", "Lamp", "--root", "Desk", "--json"}).object();
    EXPECT_EQ(part["nodes"], QJsonArray{"Desk: Oak"});
    EXPECT_EQ(part["transforms"], QJsonArray());
    refused(1, {"capture", desk(), "Part", "--root", "Cellar"}, "no node is called \"Cellar\"\n");
    refused(1, {"capture", desk(), "Part", "--view", "Attic"}, "no viewpoint is called \"Attic\"");
    refused(1, {"capture", desk(), " \t"}, "a variant set needs a name\n");
    refused(1, {"capture", desk(), "Part", "--group", " "}, "a group needs a name\n");
}
