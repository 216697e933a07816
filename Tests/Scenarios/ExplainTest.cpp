#include "Program.h"

/// The explain command, which selects a set and leaves nothing behind.
class ExplainTest : public ProgramFixture {};

TEST_F(ExplainTest, EachEntryIsARowWithWhatBecameOfIt)
{
    const QString scene = desk();
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
    EXPECT_EQ(bytesOf(scene), sceneWith("desk"));
    const QJsonObject json = done({"explain", scene, "Evening", "--json"}).object();
    EXPECT_EQ(json["name"], "Evening");
    const QJsonArray entries = json["entries"].toArray();
    ASSERT_EQ(entries.size(), 8);
    EXPECT_EQ(QJsonDocument(entries[1].toObject()),
              parsed(R"({"kind": "node", "name": "Shelf", "state": "Red",
        "variantFound": false, "stateKnown": false, "object": null, "found": 0, "reached": 0,
        "left": {}, "from": null, "to": null, "code": "QX601",
        "reason": "the variant does not exist", "done": false})"));
    EXPECT_EQ(QJsonDocument(entries[3].toObject()),
              parsed(R"({"kind": "node", "name": "Chair", "state": "Transform 2",
        "variantFound": true, "stateKnown": true, "object": "Chair", "found": 1, "reached": 1,
        "left": {}, "from": "Transform 0", "to": "Transform 2", "code": null, "reason": null,
        "done": true})"));
    EXPECT_TRUE(entries[6].toObject()["state"].isNull());
}

TEST_F(ExplainTest, ObjectsOfOneNameThatAreLeftOutAreCounted)
{
    QByteArray twin = bytesOf(deskWithSet("<NodeVariantRef ref='Desk' state='Glass'/>",
                                          "<NodeVariant name='Desk' base='Desk'/>"));
    twin.replace("\"Lamp\"", "\"Desk\"");
    EXPECT_EQ(
        done({"explain", write("twin.gltf", twin), "Only"}).out,
        "Only\n  node Desk = Glass  Oak -> Glass (1 of 2)  done; 1 left: QX610 the node is no "
        "switch; no option of the variant\n");
}

TEST_F(ExplainTest, APlaneIsWhereItWasPutWithSixDigits)
{
    const auto scene = [this](const QByteArray &state, const QByteArray &x) {
        return deskWithSet("<Analyzer clipState='" + state + "' clipPlanePositionX='" + x
                           + "' clipPlanePositionY='-0.33333333' clipPlaneNormalX='0.70710678' "
                             "clipPlaneNormalZ='-0.70710678'/>");
    };
    for (const QByteArray state : {"1", "3"}) {
        EXPECT_EQ(done({"explain", scene(state, "1234.5678"), "Only"}).out,
                  "Only\n  clipping " + state + "    done\n");
        // No script can write this number, so the plane stays elsewhere.
        EXPECT_TRUE(failed({"explain", scene(state, "inf"), "Only"}).out.contains("QX627"));
    }
}
