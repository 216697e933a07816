#include "Program.h"
#include "qxTestPaths.h"

#include <QRegularExpression>

/// The demo scene, which has something of every kind.
class DemoTest : public ProgramFixture {
protected:
    /// Whether a selection may change what the pointer leads to.
    static bool isForASelection(const QString &pointer, const QJsonValue &scene)
    {
        static const QRegularExpression choice(
            "^(/extras/.*|/scenes/0/extras/qxVariants"
            "|/meshes/\\d+/primitives/\\d+/(material|extras/.*)|/nodes/\\d+/(extensions/.*"
            "|extras/(qxSwitch|qxTransformChoice|qxPose|qxHiddenParts|qxLightOn)(/\\d+)?))$");
        // Other programs see the chosen place of transform switches and poses as that of the node.
        static const QRegularExpression place("^/nodes/(\\d+)/(translation|rotation|scale)");
        const int node = place.match(pointer).captured(1).toInt();
        const QJsonObject extras = scene["nodes"][node]["extras"].toObject();
        return choice.match(pointer).hasMatch()
            || (place.match(pointer).hasMatch()
                && (extras.contains("qxTransformStates") || extras.contains("qxPoses")));
    }

    const QString demo = QStringLiteral(QX_DEMO_SCENE);
};

TEST_F(DemoTest, SavingChangesOnlyWhatASelectionChanges)
{
    done({"select", demo, "Club Racer", "Show Day", "Open House", "--save", path("saved.gltf")});
    const QJsonValue after = sceneJson(path("saved.gltf"));
    const QStringList changed = differences(sceneJson(demo), after);
    for (const QString &pointer : changed)
        EXPECT_TRUE(isForASelection(pointer, after)) << pointer.toStdString();
    for (const char *kind :
         {"/qxSwitch", "/qxTransformChoice", "/extensions", "/qxPose", "/primitives/.*/material$"})
        EXPECT_FALSE(changed.filter(QRegularExpression(kind)).isEmpty()) << kind;
}

TEST_F(DemoTest, ClonesStepTogetherAndAreReportedOnce)
{
    const QJsonArray changes =
        done({"select", demo, "Next Wheel", "--json"}).array()[0]["changes"].toArray();
    ASSERT_EQ(changes.size(), 1);
    EXPECT_TRUE(changes[0]["object"].toString().endsWith("/Wheels"));
    EXPECT_EQ(changes[0]["clones"], 3);
    EXPECT_EQ(changes[0]["from"], "Five Spoke");
    EXPECT_EQ(changes[0]["to"], "Turbine");
}
