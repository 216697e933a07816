#include "Program.h"

/// The commands on a small scene: a desk of oak or glass, a lamp, a chair that stands in three
/// places.
class CommandsTest : public ProgramFixture {
protected:
    /// The current state of every variant as "kind name: state".
    static QStringList states(const QString &scene)
    {
        QStringList all;
        for (const QJsonValue &variant : done({"state", scene, "--json"}).array())
            all += QString("%1 %2: %3")
                       .arg(variant["kind"].toString(), variant["name"].toString(),
                            variant["current"].toString());
        return all;
    }

    /// The changes of a report as "object: from -> to".
    static QStringList changes(const QJsonValue &report)
    {
        QStringList all;
        for (const QJsonValue &change : report["changes"].toArray())
            all += QString("%1: %2 -> %3")
                       .arg(change["object"].toString(), change["from"].toString(),
                            change["to"].toString());
        return all;
    }
};

TEST_F(CommandsTest, InfoCountsWhatTheFileHolds)
{
    const ProgramRun table = done({"info", desk()});
    EXPECT_TRUE(table.out.contains("made by                   by hand\n"));
    EXPECT_TRUE(table.out.contains("viewpoints                Front, Über dem Tisch\n"));
    EXPECT_TRUE(table.out.contains("animations                none\n"));

    const QJsonObject json = done({"info", desk(), "--json"}).object();
    EXPECT_EQ(json["version"], "2.0");
    EXPECT_EQ(json["generator"], "by hand");
    EXPECT_EQ(json["scenes"], 1);
    EXPECT_EQ(json["nodes"], 7);
    EXPECT_EQ(json["viewpoints"], (QJsonArray{"Front", "Über dem Tisch"}));
    EXPECT_EQ(json["groups"], 2);
    EXPECT_EQ(json["sets"], 3);
    EXPECT_EQ(json["variants"], 4);
}

TEST_F(CommandsTest, ListShowsGroupsWithTheirSetsAndTheRestBehind)
{
    EXPECT_EQ(done({"list", desk()}).out,
              "Work                      On every weekday\n"
              "  Morning       Ctrl+1    Daylight will do\n"
              "  Evening\n"
              "Attic           (hidden)\n"
              "(no group)\n"
              "  Leer geräumt\n");

    const QJsonObject json = done({"list", desk(), "--json"}).object();
    EXPECT_EQ(json["groups"][0],
              (QJsonObject{{"name", "Work"}, {"comment", "On every weekday"}, {"visible", true}}));
    EXPECT_EQ(json["groups"][1]["visible"], false);
    EXPECT_EQ(json["sets"][0],
              (QJsonObject{{"name", "Morning"},
                           {"group", "Work"},
                           {"hotkey", "Ctrl+1"},
                           {"comment", "Daylight will do"}}));
    EXPECT_EQ(json["sets"][2]["name"], "Leer geräumt");
    EXPECT_TRUE(json["sets"][2]["group"].isNull());
    EXPECT_EQ(done({"list", desk("<Variants/>")}).out, "no variant sets\n");
}

TEST_F(CommandsTest, StateShowsEveryVariantAndADashForWhatTheSceneLacks)
{
    // A transform switch reports whether it is shown; which place it takes is no state of its own.
    EXPECT_EQ(done({"state", desk()}).out,
              "node   Desk   Oak\n"
              "node   Lamp   !Enable\n"
              "node   Chair  !Enable\n"
              "light  Lamp   -\n");

    const QJsonObject variant = done({"state", desk(), "--json"}).array()[0].toObject();
    EXPECT_EQ(variant["kind"], "node");
    EXPECT_EQ(variant["current"], "Oak");
    EXPECT_EQ(variant["default"], "Oak");
    ASSERT_EQ(variant["states"].toArray().size(), 5);
    EXPECT_EQ(variant["states"][2]["name"], "!Next (Loop)");
    EXPECT_EQ(variant["states"][2]["shortcut"], "D");
    EXPECT_EQ(done({"state", desk("<Variants/>")}).out, "no variants\n");
}

TEST_F(CommandsTest, SelectTellsWhatEachSetChangedAndWhatItSkipped)
{
    const ProgramRun table = done({"select", desk(), "Morning", "Evening"});
    EXPECT_EQ(table.out,
              "Morning\n"
              "  Desk    Oak -> Glass\n"
              "  Lamp    shown -> hidden\n"
              "  camera  Front\n"
              "Evening\n"
              "  Desk       Glass -> Oak\n"
              "  Lamp       hidden -> shown\n"
              "  Chair      Transform 0 -> Transform 2\n"
              "  camera     Über dem Tisch\n"
              "  animation  Sunset\n"
              "  script     print(\"late\")\n"
              "  skipped    no node variant \"Shelf\"\n");

    const QJsonArray json = done({"select", desk(), "Morning", "Evening", "--json"}).array();
    ASSERT_EQ(json.size(), 2);
    EXPECT_EQ(json[0]["name"], "Morning");
    EXPECT_EQ(changes(json[0]), (QStringList{"Desk: Oak -> Glass", "Lamp: shown -> hidden"}));
    EXPECT_EQ(json[0]["viewpoint"], "Front");
    EXPECT_EQ(changes(json[1]),
              (QStringList{"Desk: Glass -> Oak", "Lamp: hidden -> shown",
                           "Chair: Transform 0 -> Transform 2"}));
    EXPECT_EQ(json[1]["animations"], QJsonArray{"Sunset"});
    EXPECT_EQ(json[1]["scripts"], QJsonArray{"print(\"late\")"});
    EXPECT_EQ(json[1]["skipped"], QJsonArray{"no node variant \"Shelf\""});
}

TEST_F(CommandsTest, KeepCameraStaysUnlessTheSetHasADefaultViewpoint)
{
    const QJsonArray json =
        done({"select", "--keep-camera", "--json", desk(), "Morning", "Evening"}).array();
    EXPECT_TRUE(json[0]["viewpoint"].isNull());
    EXPECT_EQ(json[1]["viewpoint"], "Über dem Tisch");
}

TEST_F(CommandsTest, TheSavedSceneStandsAsItWasSelected)
{
    const QString saved = path("saved.gltf");
    done({"select", desk(), "Morning", "--save", saved});
    const QStringList morning{"node Desk: Glass", "node Lamp: !Disable", "node Chair: !Enable",
                              "light Lamp: "};
    EXPECT_EQ(states(saved), morning);

    done({"select", saved, "Leer geräumt", "Evening", "Leer geräumt", "--save", saved});
    EXPECT_EQ(states(saved)[0], "node Desk: !None");
    EXPECT_EQ(states(saved)[1], "node Lamp: !Enable");
    const QJsonValue nodes = sceneJson(saved)["nodes"];
    EXPECT_EQ(nodes[0]["extras"], (QJsonObject{{"qxSwitch", -1}, {"price", 12.5}}));
    EXPECT_EQ(nodes[4]["extras"]["qxTransformChoice"], 2);
    EXPECT_EQ(states(desk())[0], "node Desk: Oak");
}

TEST_F(CommandsTest, SetPutsOneVariantIntoAState)
{
    const QString saved = path("saved.glb");
    EXPECT_EQ(done({"set", desk(), "Desk", "!Next (Loop)", "--save", saved}).out,
              "Desk\n  Desk  Oak -> Glass\n");
    EXPECT_EQ(changes(done({"set", saved, "Desk", "!Next (Loop)", "--json"}).object()),
              QStringList{"Desk: Glass -> Oak"});
    EXPECT_EQ(done({"set", saved, "Desk", "Glass"}).out, "Desk\n  nothing changed\n");
    EXPECT_EQ(changes(done({"set", saved, "Desk", "!All", "--json"}).object()),
              QStringList{"Desk: Glass -> all"});
    EXPECT_EQ(done({"set", saved, "Lamp", "!Disable", "--kind", "node"}).out,
              "Lamp\n  Lamp  shown -> hidden\n");
    EXPECT_EQ(done({"set", saved, "Lamp", "!Disable", "--kind", "light"}).out,
              "Lamp\n  nothing changed\n");
}

TEST_F(CommandsTest, CreateMakesVariantsForTheSwitchesThatHaveNone)
{
    const QString plain = QStringLiteral(QX_TEST_DATA "/Scenes/desk.gltf");
    const QString saved = path("created.gltf");
    const QJsonArray created = done({"create", plain, "--json", "--save", saved}).array();
    EXPECT_EQ(
        created,
        (QJsonArray{QJsonObject{{"kind", "node"},
                                {"name", "Desk"},
                                {"default", "Oak"},
                                {"states",
                                 QJsonArray{"!All", "!None", "!Next", "!Next (Loop)", "!Previous",
                                            "!Previous (Loop)", "Oak", "Glass"}}}}));
    EXPECT_EQ(states(saved), QStringList{"node Desk: Oak"});
    EXPECT_EQ(done({"create", saved}).out, "no new variants\n");
}

TEST_F(CommandsTest, CreateMakesVariantsOfTheKindsAskedFor)
{
    const QString scene = write("kinds.gltf", R"({
        "asset": {"version": "2.0"}, "scene": 0, "scenes": [{"nodes": [0, 3]}],
        "nodes": [{"name": "Desk", "children": [1, 2], "extras": {"qxSwitch": 0}},
                  {"name": "Oak"}, {"name": "Glass"},
                  {"name": "Door", "extras": {"qxPoseNames": "Shut;Open", "qxPose": 0,
                   "qxPoses": [0, 0, 0, 0, 0, 0, 1, 1, 1, 1, 0, 0, 2, 0, 0, 0, 1, 1, 1, 1]}}]})");
    EXPECT_EQ(done({"create", scene, "--kinds", "transforms"}).out,
              "transform  Door  !Next, !Next (Loop), !Previous, !Previous (Loop), Shut, Open\n");
    const ProgramRun run = done({"create", scene, "--trace", "--save", path("all.gltf"), "--kinds",
                                 "materials,transforms,overlays,nodes,lights"});
    EXPECT_TRUE(run.out.startsWith("node       Desk  "));
    EXPECT_EQ(run.out.count('\n'), 2);
    EXPECT_TRUE(run.err.contains("\nlightVariantChanged (1)\ntransformVariantChanged (0)\n"));
    EXPECT_EQ(states(path("all.gltf")), (QStringList{"node Desk: Oak", "transform Door: Shut"}));
    EXPECT_EQ(done({"create", scene, "--kinds", "materials"}).out, "no new variants\n");
}

TEST_F(CommandsTest, ASceneWithoutVariantsIsSavedWithoutADocument)
{
    const QString plain = QStringLiteral(QX_TEST_DATA "/Scenes/desk.gltf");
    refused(1, {"document", plain}, "the scene holds no variants document");
    const QString empty = write("empty.gltf", R"({"asset": {"version": "2.0"}})");
    done({"create", empty, "--save", path("saved.gltf")});
    EXPECT_EQ(sceneJson(path("saved.gltf")), sceneJson(empty));
}

TEST_F(CommandsTest, TheTraceHoldsEveryNotificationWithItsFieldsInOrder)
{
    const ProgramRun run = done({"select", desk(), "Morning", "--trace", "--json"});
    EXPECT_EQ(run.array().size(), 1);
    EXPECT_EQ(run.err,
              "nodeVariantChanged (1)\n"
              "materialVariantChanged (1)\n"
              "lightVariantChanged (1)\n"
              "overlayVariantChanged (1)\n"
              "transformVariantChanged (0)\n"
              "variantSetChanged (1)\n"
              "variantGroupChanged (1)\n"
              "clearAllVariants (1)\n"
              "lightVariantChanged (1)\n"
              "nodeVariantChanged (1)\n"
              "materialVariantChanged (1)\n"
              "overlayVariantChanged (1)\n"
              "transformVariantChanged (1)\n"
              "variantSetChanged (1)\n"
              "variantGroupChanged (1)\n"
              "variantsSetSelected (1) variantSetName=\"Morning\"\n"
              "variantsNodesChanged (1) variantName=\"Desk\" visible=[\"Glass\"] "
              "invisible=[\"Oak\"] parent=\"Desk\" path=\"Desk|\"\n"
              "nodeVariantSelected (1) variant=node variant \"Desk\"\n"
              "variantsNodesChanged (1) variantName=\"Lamp\" visible=[] "
              "invisible=[\"Lamp\"] parent=\"Root\" path=\"Lamp|\"\n"
              "nodeVariantSelected (1) variant=node variant \"Lamp\"\n"
              "variantsSetSelected (1) variantSetName=\"Morning\"\n"
              "variantSetSelected (1)\n");
}
