#include "Program.h"

#include <QFile>

/// The explain command, which selects a set and leaves nothing behind.
class ExplainTest : public ProgramFixture {};

TEST_F(ExplainTest, EachEntryIsARowWithWhatBecameOfIt)
{
    const QString scene = desk();
    const QByteArray before = bytesOf(scene);
    EXPECT_EQ(
        done({"explain", scene, "Evening"}).out,
        "Evening\n"
        "  node Desk = Oak                   stays Oak                   done\n"
        "  node Shelf = Red                                              QX601 the variant does "
        "not exist\n"
        "  node Lamp = !Enable               stays !Enable               done\n"
        "  node Chair = Transform 2          Transform 0 -> Transform 2  done\n"
        "  viewpoint Front                                               QX626 a later entry "
        "changes it again\n"
        "  script                                                        QX620 scripts are not "
        "run here\n"
        "  animation Sunset                                              QX618 the animation does "
        "not exist\n"
        "  default viewpoint Über dem Tisch                              done\n");
    EXPECT_EQ(bytesOf(scene), before);
    refused(1, {"explain", scene, "Midnight"}, "no variant set is called \"Midnight\"");
    refused(2, {"explain", scene}, "explain needs FILE SET");
}

TEST_F(ExplainTest, JsonTellsWhatWasFoundAndWhatHappened)
{
    const QJsonObject json = done({"explain", desk(), "Evening", "--json"}).object();
    EXPECT_EQ(json["name"], "Evening");
    ASSERT_EQ(json["entries"].toArray().size(), 8);
    EXPECT_EQ(json["entries"][3],
              (QJsonObject{{"kind", "node"},
                           {"name", "Chair"},
                           {"state", "Transform 2"},
                           {"variantFound", true},
                           {"stateKnown", true},
                           {"object", "Chair"},
                           {"found", 1},
                           {"reached", 1},
                           {"left", QJsonObject()},
                           {"from", "Transform 0"},
                           {"to", "Transform 2"},
                           {"code", QJsonValue()},
                           {"reason", QJsonValue()},
                           {"done", true}}));
    EXPECT_EQ(json["entries"][1]["code"], "QX601");
    EXPECT_EQ(json["entries"][1]["variantFound"], false);
    EXPECT_EQ(json["entries"][1]["done"], false);
    EXPECT_TRUE(json["entries"][6]["state"].isNull());
}

TEST_F(ExplainTest, ObjectsOfOneNameThatAreLeftOutAreCounted)
{
    const QByteArray document =
        "<Variants><VariantSet name='Only'><NodeVariantRef ref='Desk' state='Glass'/>"
        "</VariantSet><NodeVariant name='Desk' base='Desk'/></Variants>";
    const QString scene = desk(document);
    QByteArray twin = bytesOf(scene);
    twin.replace("\"Lamp\"", "\"Desk\"");
    EXPECT_EQ(
        done({"explain", write("twin.gltf", twin), "Only"}).out,
        "Only\n  node Desk = Glass  Oak -> Glass (1 of 2)  done; 1 left: QX610 the node is no "
        "switch; no option of the variant\n");
}

TEST_F(ExplainTest, APlaneIsWhereItWasPutWithSixDigits)
{
    const auto explained = [this](const char *state, const char *x) {
        const QByteArray set = "<Variants><VariantSet name='Only'><Analyzer clipState='%1' "
                               "clipPlanePositionX='%2' clipPlanePositionY='-0.33333333' "
                               "clipPlaneNormalX='0.70710678' clipPlaneNormalZ='-0.70710678'/>"
                               "</VariantSet></Variants>";
        return workbench(
            {"explain", desk(QByteArray(set).replace("%1", state).replace("%2", x)), "Only"});
    };
    for (const char *state : {"1", "3"}) {
        const ProgramRun placed = explained(state, "1234.5678");
        EXPECT_EQ(placed.code, 0) << placed.out.toStdString();
        EXPECT_EQ(placed.out, QByteArray("Only\n  clipping %1    done\n").replace("%1", state));
        // No script can write this number, so the plane stays elsewhere.
        const ProgramRun elsewhere = explained(state, "inf");
        EXPECT_EQ(elsewhere.code, 1);
        EXPECT_TRUE(elsewhere.out.contains("QX627")) << elsewhere.out.toStdString();
    }
}

TEST_F(ExplainTest, ScriptsOfASetStayUnrun)
{
    const QString proof = path("proof.txt");
    const QByteArray set = "<Variants><VariantSet name='Only'><Script>open(\"" + proof.toUtf8()
        + "\", \"w\")</Script></VariantSet></Variants>";
    EXPECT_EQ(done({"explain", desk(set), "Only"}).out,
              "Only\n  script    QX620 scripts are not run here\n");
    EXPECT_FALSE(QFile::exists(proof));
}

TEST_F(ExplainTest, SetsOfTheDemoDoWhatIsForeseen)
{
    for (const char *name : {"As Delivered", "Night Show", "Grand Tour", "Demonstration"}) {
        const ProgramRun run = done({"explain", QX_DEMO_SCENE, name});
        EXPECT_FALSE(run.out.contains("QX60") || run.out.contains("QX627"))
            << run.out.toStdString();
    }
}
