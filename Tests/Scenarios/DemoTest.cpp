#include "Program.h"

#include <QRegularExpression>
#include <QXmlStreamReader>

/// The demo scene with its many sets, from the first selection to the last save.
class DemoTest : public ProgramFixture {
protected:
    /// The states of node variants that a set of the document names, in order.
    typedef QList<QPair<QString, QString>> States;

    static QStringList setNames(const QString &file)
    {
        QStringList names;
        for (const QJsonValue &set : done({"list", file, "--json"}).object()["sets"].toArray())
            names += set["name"].toString();
        return names;
    }

    static QMap<QString, QString> currentStates(const QString &file)
    {
        QMap<QString, QString> states;
        for (const QJsonValue &variant : done({"state", file, "--json"}).array())
            states[variant["name"].toString()] = variant["current"].toString();
        return states;
    }

    static QMap<QString, States> statesOfSets(const QByteArray &document)
    {
        QMap<QString, States> sets;
        QString set;
        for (QXmlStreamReader xml(document); !xml.atEnd(); xml.readNext()) {
            const QXmlStreamAttributes attributes = xml.attributes();
            if (xml.isStartElement() && xml.name() == "VariantSet")
                set = attributes.value("name").toString();
            else if (xml.isStartElement() && xml.name() == "NodeVariantRef")
                sets[set] +=
                    {attributes.value("ref").toString(), attributes.value("state").toString()};
        }
        return sets;
    }

    /// Whether a selection may change what the pointer leads to.
    static bool isForASelection(const QString &pointer, const QJsonValue &scene)
    {
        static const QRegularExpression choice(
            "^(/extras|/scenes/0/extras/qxVariants|/meshes/\\d+/primitives/\\d+/(material|extras)"
            "|/nodes/\\d+/(extras/"
            "(qxSwitch|qxTransformChoice|qxPose|qxHiddenParts)|extensions.*))$");
        if (choice.match(pointer).hasMatch())
            return true;
        const QStringList steps = pointer.split('/');
        if (steps.value(1) != "nodes" || steps.size() < 4)
            return false;
        const QJsonObject extras = scene["nodes"][steps[2].toInt()]["extras"].toObject();
        if (steps[3] == "extras") {
            const QStringList keys = extras.keys();
            return steps.size() == 4
                && (keys.isEmpty() || keys == QStringList("qxHiddenParts")
                    || keys == QStringList("qxLightOn"));
        }
        // Other programs see the chosen place of transform switches and poses as that of the node.
        return QStringList({"translation", "rotation", "scale"}).contains(steps[3])
            && (extras.contains("qxTransformStates") || extras.contains("qxPoses"));
    }

    const QString demo = QStringLiteral(QX_DEMO_SCENE);
};

TEST_F(DemoTest, EverySetInTurnShowsTheStatesItNamesAndNothingIsLost)
{
    const QStringList sets = setNames(demo);
    ASSERT_GE(sets.size(), 10);
    const QMap<QString, States> wanted = statesOfSets(documentOf(demo));
    const QString inTurn = path("in turn.gltf");
    ASSERT_TRUE(QFile::copy(demo, inTurn));
    for (const QString &set : sets) {
        SCOPED_TRACE(set.toStdString());
        done({"select", inTurn, set, "--save", inTurn});
        const QMap<QString, QString> states = currentStates(inTurn);
        for (const auto &state : wanted[set]) {
            // Stepping and the places of transform switches are no states to come back to.
            if (QRegularExpression("^(!Next|!Previous|!Toggle|Transform)")
                    .match(state.second)
                    .hasMatch())
                EXPECT_FALSE(states[state.first].isEmpty()) << state.first.toStdString();
            else
                EXPECT_EQ(states[state.first], state.second) << state.first.toStdString();
        }
    }

    const QString atOnce = path("at once.gltf");
    done(QStringList{"select", demo} + sets + QStringList{"--save", atOnce});
    EXPECT_EQ(currentStates(atOnce), currentStates(inTurn));
    // A saved exchange of materials leaves the list of switch materials behind, also when the last
    // set takes it back.
    QStringList unlike = differences(sceneJson(atOnce), sceneJson(inTurn));
    for (const QString &pointer :
         unlike.filter(QRegularExpression("^(/extras|/meshes/.*/extras)$")))
        unlike.removeAll(pointer);
    EXPECT_EQ(unlike, QStringList());
    EXPECT_EQ(setNames(inTurn), sets);
    EXPECT_EQ(statesOfSets(documentOf(inTurn)), wanted);
}

TEST_F(DemoTest, SavingChangesOnlyWhatASelectionChanges)
{
    const QJsonValue before = sceneJson(demo);
    done({"select", demo, "Club Racer", "Show Day", "Open House", "--save", path("saved.gltf")});
    const QJsonValue after = sceneJson(path("saved.gltf"));

    const QStringList changed = differences(before, after);
    for (const QString &pointer : changed)
        EXPECT_TRUE(isForASelection(pointer, after)) << pointer.toStdString();
    EXPECT_FALSE(changed.filter("/qxSwitch").isEmpty());
    EXPECT_FALSE(changed.filter("/qxTransformChoice").isEmpty());
    EXPECT_FALSE(changed.filter("/extensions").isEmpty());
    EXPECT_FALSE(changed.filter(QRegularExpression("/primitives/.*/material$")).isEmpty());
    EXPECT_FALSE(changed.filter("/qxPose").isEmpty());
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

TEST_F(DemoTest, ASequentialSetStartsOneClipPerSelection)
{
    QStringList started;
    const QStringList four{"Demonstration", "Demonstration", "Demonstration", "Demonstration"};
    for (const QJsonValue &report : done(QStringList{"select", demo, "--json"} + four).array()) {
        ASSERT_EQ(report["animations"].toArray().size(), 1);
        started += report["animations"][0].toString();
    }
    EXPECT_EQ(started, (QStringList{"Doors open", "Roof opens", "Turntable", "Doors open"}));
}
