#include "Program.h"

#include <QFileInfo>

/// Capturing a set in a shell, from looking for ambiguous nodes to selecting what was captured.
class CaptureCommandTest : public ProgramFixture {
protected:
    /// Captures the scene, selects a set that changes it, and then what was captured; answers what
    /// the capture reported.
    QJsonObject captureAndReturn(const QString &scene, const QString &otherSet) const
    {
        SCOPED_TRACE(scene.toStdString());
        const QString copy = path("copy." + QFileInfo(scene).suffix());
        const QJsonObject report =
            done({"capture", scene, "Now", "--group", "Mine", "--save", copy, "--json"}).object();
        const QByteArray captured = done({"state", copy, "--json"}).out;
        const auto select = [&copy](const QString &set) {
            return done({"select", copy, set, "--json", "--save", copy}).array()[0].toObject();
        };
        EXPECT_FALSE(select(otherSet)["changes"].toArray().isEmpty());
        EXPECT_FALSE(select("Now")["changes"].toArray().isEmpty());
        EXPECT_EQ(done({"state", copy, "--json"}).out, captured);
        EXPECT_EQ(select("Now")["changes"], QJsonArray());
        return report;
    }

    QString twoSwitches() const
    {
        return write("twins.gltf", R"({"asset":{"version":"2.0"},"scene":0,
            "scenes":[{"nodes":[0,1]}],"nodes":[
            {"name":"Left","children":[2]},{"name":"Right","children":[3]},
            {"name":"Wheels","children":[4],"extras":{"qxSwitch":0}},
            {"name":"Wheels","children":[5],"extras":{"qxSwitch":0}},
            {"name":"Steel"},{"name":"Alloy"}]})");
    }
};

TEST_F(CaptureCommandTest, AmbiguousNodesAreListedWithTheirPaths)
{
    EXPECT_EQ(done({"check", desk()}).out, "no ambiguous nodes\n");
    EXPECT_EQ(done({"check", desk(), "--json"}).array(), QJsonArray());
    const ProgramRun run = workbench({"check", twoSwitches()});
    EXPECT_EQ(run.code, 1);
    EXPECT_EQ(run.out, "Wheels  Right/Wheels\n");
    const ProgramRun json = workbench({"check", twoSwitches(), "--json"});
    EXPECT_EQ(json.code, 1);
    EXPECT_EQ(json.array()[0].toObject()["path"].toString(), "Right/Wheels");
}

TEST_F(CaptureCommandTest, AmbiguousNodesAreRenamedOnlyWhenThatIsWanted)
{
    const QString out = path("out.gltf");
    refused(1, {"capture", twoSwitches(), "Sport", "--save", out}, "  Right/Wheels\n");
    EXPECT_FALSE(QFile::exists(out));
    const ProgramRun run = done({"capture", twoSwitches(), "Sport", "--rename", "--save", out});
    EXPECT_TRUE(run.err.contains("renamed Right/Wheels to \"Wheels 2\"\n"));
    EXPECT_EQ(done({"check", out}).out, "no ambiguous nodes\n");
}

TEST_F(CaptureCommandTest, ACapturedSetBringsBackWhatItSaw)
{
    const QJsonObject made = captureAndReturn(desk(), "Morning");
    EXPECT_EQ(made["set"].toString(), "Now");
    EXPECT_EQ(made["group"].toString(), "Mine");
    captureAndReturn(QX_DEMO_SCENE, "Küstenstraße");
}

TEST_F(CaptureCommandTest, OnlyTheNamedKindsAndRootsAreCaptured)
{
    const QJsonObject all = done({"capture", desk(), "All", "--json"}).object();
    const QJsonObject nodes = done({"capture", desk(), "Nodes", "--nodes", "--json"}).object();
    EXPECT_FALSE(all["nodes"].toArray().isEmpty());
    EXPECT_FALSE(all["viewpoints"].toArray().isEmpty());
    EXPECT_EQ(nodes["nodes"], all["nodes"]);
    EXPECT_TRUE(nodes["viewpoints"].toArray().isEmpty());
    const QJsonObject part =
        done({"capture", desk(), "Part", "--root", "Lamp", "--root", "Desk", "--json"}).object();
    EXPECT_EQ(part["nodes"].toArray(), QJsonArray{"Desk: Oak"});
    EXPECT_TRUE(part["transforms"].toArray().isEmpty());
    refused(1, {"capture", desk(), "Part", "--root", "Cellar"}, "no node is called \"Cellar\"\n");
    refused(1, {"capture", desk(), "Part", "--view", "Attic"}, "no viewpoint is called \"Attic\"");
    refused(1, {"capture", desk(), ""}, "a variant set needs a name\n");
}

TEST_F(CaptureCommandTest, ANewRenderQueueIsHidden)
{
    const QString copy = path("queue.gltf");
    done({"capture", desk(), "Now", "--group", "Render Queue", "--save", copy});
    const QJsonArray groups = done({"list", copy, "--json"}).object()["groups"].toArray();
    const QJsonObject queue = groups.last().toObject();
    EXPECT_EQ(queue["name"].toString(), "Render Queue");
    EXPECT_EQ(queue["visible"], false);
}

TEST_F(CaptureCommandTest, TheViewpointIsSavedWithTheSet)
{
    const QString scene = path("scene.gltf");
    done({"capture", QX_DEMO_SCENE, "Mine", "--rename", "--save", scene});
    const QJsonArray before =
        done({"info", QX_DEMO_SCENE, "--json"}).object()["viewpoints"].toArray();
    QJsonArray expected = before;
    expected += "Mine";
    EXPECT_EQ(done({"info", scene, "--json"}).object()["viewpoints"].toArray(), expected);
    EXPECT_TRUE(documentOf(scene).contains("Mine"));
}
