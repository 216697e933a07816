#include "qxNodeVariantCreator.h"
#include "qxVariantSet.h"
#include "qxVariantTable.h"
#include "qxVariantWords.h"
#include "qxVariantWriter.h"
#include "qxVariants.h"

#include "Program.h"
#include "Script/qxScriptRunner.h"
#include "TestScene.h"
#include "qxNodeUtils.h"
#include "qxScenegraph.h"
#include "qxSession.h"
#include "qxShownStates.h"
#include "qxTestPaths.h"

#include <QRegularExpression>

#include <memory>

/// Scenes that are configured in one session and opened in later ones.
class SessionsTest : public testing::Test, protected TestFolder {
protected:
    /// Ends the session with all that it knows and opens the file in a new one.
    void start(const QString &name)
    {
        session.reset();
        session = std::make_unique<qxSession>();
        ASSERT_TRUE(qxVariants::_variantSets.empty());
        ASSERT_TRUE(session->open(name));
    }
    /// Saves the scene and opens it in a new session.
    void startAgain(const QString &name)
    {
        ASSERT_TRUE(session->save(path(name)));
        start(path(name));
    }
    static TestNode find(const char *name)
    {
        const qxNodePtr node = qxScenegraph::findNode(name);
        EXPECT_TRUE(node != osg::NullFC) << name;
        return TestNode(node);
    }
    /// States by kind and name of their variants, such as "node Doors".
    typedef QMap<QString, QString> States;

    /// The current state of every variant.
    static States states()
    {
        States all;
        const qxShownStates shown;
        for (const qxVariantRow &row : qxVariantTable::all())
            all[QString("%1 %2").arg(row.kind, row.variant->name)] = shown.of(row).state;
        return all;
    }
    /// Steps are no states to come back to.
    static void expectStatesOf(const qxVariantSet &set)
    {
        static const QRegularExpression other("^(!Next|!Previous|!Toggle)");
        States reached = states();
        for (const auto &[kind, wanted] :
             {std::pair("node ", &set.nodeVariants), std::pair("material ", &set.materialVariants),
              std::pair("light ", &set.lightVariants), std::pair("overlay ", &set.overlayVariants),
              std::pair("transform ", &set.transformVariants)}) {
            for (const qxVariantState &each : *wanted) {
                if (other.match(each.state).hasMatch())
                    continue;
                EXPECT_EQ(reached[kind + each.variant], each.state) << each.variant.toStdString();
            }
        }
    }
    std::unique_ptr<qxSession> session;
    TestScene scene;
};

TEST_F(SessionsTest, DoorsOfARealVehicleBelowANewSwitchAreChosenInALaterSession)
{
    if (qEnvironmentVariableIsEmpty("QX_SCENES"))
        GTEST_SKIP() << "QX_SCENES names no folder of real scenes";
    start(qEnvironmentVariable("QX_SCENES") + "/vehicle_example/vehicle_example.gltf");
    const size_t nodes = qxNodeUtils::getSubTreeNodes(qxScenegraph::getRoot()).size();
    const TestNode doors = scene.addSwitch("Doors", {}, find("Grp_Exterior_Dynamic"));
    for (const char *door : {"Grp_Door_Left_0", "Grp_Door_Right_0"})
        find(door).moveTo(doors);
    qxNodeVariantCreator().traverse(qxScenegraph::getRoot());
    qxVariants::createVariantSet("Left door", true, nullptr)
        ->addNodeVariant("Doors", "Grp_Door_Left_0");
    qxVariantSet *right = qxVariants::createVariantSet("Right door", true, nullptr);
    right->addNodeVariant("Doors", "Grp_Door_Right_0");
    right->select(true, false);
    startAgain("vehicle.gltf");
    EXPECT_EQ(qxNodeUtils::getSubTreeNodes(qxScenegraph::getRoot()).size(), nodes + 1);
    EXPECT_EQ(states(), (States{{"node Doors", "Grp_Door_Right_0"}}));
    EXPECT_EQ(find("Door_FR").node()->getParent(), find("Doors").child(1).node());
    qxVariants::selectVariantSet("Left door", false);
    EXPECT_EQ(find("Doors").choice(), 0);
    startAgain("vehicle.gltf");
    EXPECT_EQ(states(), (States{{"node Doors", "Grp_Door_Left_0"}}));
}

TEST_F(SessionsTest, EverySetOfTheDemoShowsItsStatesAndSessionsBetweenThemLoseNothing)
{
    qxVariantWords::setArguments({});
    start(QX_DEMO_SCENE);
    const QByteArray document = qxVariantWriter().write();
    std::vector<QString> names;
    for (const qxVariantSet *set : qxVariants::_variantSets)
        names.push_back(set->name);
    ASSERT_GE(names.size(), 10u);
    for (std::size_t i = 0; i < names.size(); ++i) {
        SCOPED_TRACE(names[i].toStdString());
        qxVariants::selectVariantSet(names[i].toUtf8(), false);
        expectStatesOf(*qxVariants::findVariantSet(names[i]));
        if (i % 6 != 5)
            continue;
        const States reached = states();
        startAgain("in turn.gltf");
        EXPECT_EQ(states(), reached);
    }
    EXPECT_EQ(qxVariantWriter().write(), document);
    EXPECT_FALSE(qxScriptRunner::haveFailed());
    const States last = states();
    start(QX_DEMO_SCENE);
    for (const QString &name : names)
        qxVariants::selectVariantSet(name.toUtf8(), false);
    EXPECT_EQ(states(), last);
    startAgain("at once.gltf");
    // A saved exchange of materials leaves the list of switch materials behind, also when the last
    // set takes it back.
    static const QRegularExpression lists("^(/extras|/meshes/.*/extras)/");
    for (const QString &pointer :
         differences(sceneJson(path("at once.gltf")), sceneJson(path("in turn.gltf"))))
        EXPECT_TRUE(lists.match(pointer).hasMatch()) << pointer.toStdString();
}
