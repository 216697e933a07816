#include "qxLightVariant.h"
#include "qxLightVariantCreator.h"
#include "qxNodeVariant.h"
#include "qxNodeVariantCreator.h"
#include "qxOverlayVariant.h"
#include "qxOverlayVariantCreator.h"
#include "qxTransformVariant.h"
#include "qxTransformVariantCreator.h"
#include "qxVariants.h"

#include "HostFixture.h"
#include "qxOverlays.h"

#include <OpenSG/OSGGraphOpFactory.h>

#include <cstring>
#include <memory>

typedef std::vector<std::string> Texts;

template <class List>
static QString namesOf(const List &variants)
{
    QStringList names;
    for (const auto *variant : variants)
        names << variant->name;
    return names.join(' ');
}

class CreatorsTest : public HostFixture {
protected:
    /// Runs the operation over the tree and returns what it sent, each with its flag in front.
    template <class Creator>
    Texts run(const osg::NodePtr &root)
    {
        notifications.clear();
        m_madeWhenTold = -1;
        const int listener = qxController::addListener([this](const char *, qxMessage *, int) {
            m_madeWhenTold =
                int(qxVariants::_lightVariants.size() + qxVariants::_transformVariants.size());
        });
        EXPECT_TRUE(Creator().traverse(root));
        qxController::removeListener(listener);
        return notifications.lines();
    }

    /// What all have in common; `sent` is what one sends that finds nothing.
    template <class Creator>
    void expectCommon(const char *name, const Texts &sent)
    {
        SCOPED_TRACE(name);
        Creator prototype;
        osg::GraphOpFactory &ops = osg::GraphOpFactory::the();
        ops.registerOp(&prototype);
        ops.unRegisterOp(&prototype);
        EXPECT_FALSE(ops.create(name));
        ops.registerOp(&prototype);
        const std::unique_ptr<osg::GraphOp> made(ops.create(name));
        ops.unRegisterOp(name);
        EXPECT_FALSE(ops.create(name));
        ASSERT_TRUE(made);
        EXPECT_EQ(made->getName(), name);
        EXPECT_TRUE(dynamic_cast<Creator *>(made.get()));
        made->setParams("name=value");
        EXPECT_EQ(made->usage(), "");

        EXPECT_EQ(run<Creator>(scene.root()), sent);
        osg::NodePtr none;
        EXPECT_EQ(prototype.traverseEnter(none), osg::Action::Continue);
        EXPECT_EQ(prototype.traverseLeave(none, osg::Action::Quit), osg::Action::Continue);
    }

    int m_madeWhenTold = -1; ///< lights and transforms that had variants at the notification
};

/// The place of a virtual function in its class's table, as the Itanium C++ ABI lays it out.
template <class Function>
static std::size_t slotOf(Function function)
{
    std::size_t offsetAndOne = 0;
    std::memcpy(&offsetAndOne, &function, sizeof offsetAndOne);
    return offsetAndOne / sizeof(void *);
}

// The host calls operations through the table.
TEST_F(CreatorsTest, CreateStandsBeforeTheTwoDestructors)
{
    EXPECT_EQ(slotOf(&qxNodeVariantCreator::create), 0u);
    EXPECT_EQ(slotOf(&qxNodeVariantCreator::setParams), 3u);
    EXPECT_EQ(slotOf(&qxNodeVariantCreator::usage), 4u);
}

TEST_F(CreatorsTest, EachIsMadeByTheFactoryUnderItsName)
{
    const osg::NodePtr hollow = scene.add("Hollow");
    {
        const osg::CPEditor edit(hollow, osg::Node::CoreFieldMask);
        hollow->setCore(osg::NullFC);
    }
    expectCommon<qxNodeVariantCreator>("qxNodeVariantCreator", {});
    expectCommon<qxLightVariantCreator>("qxLightVariantCreator", {"1 lightVariantChanged"});
    expectCommon<qxOverlayVariantCreator>("qxOverlayVariantCreator", {});
    expectCommon<qxTransformVariantCreator>("qxTransformVariantCreator",
                                            {"0 transformVariantChanged"});
}

TEST_F(CreatorsTest, SwitchesInsideSwitchesGetNodeVariantsOfTheirOwn)
{
    const TestNode car = scene.addSwitch("Car", {"Coupe", "Estate"});
    scene.addSwitch("Roof", {"Steel", "Glass"}, car.child(1));
    scene.addSwitch("Empty", {});
    scene.addTransformSwitch("Seat", 3, scene.addSwitch("Cabin", {}, scene.add("Inside")));
    scene.addSwitch("Car", {"Other"});
    car.setMask(0);

    EXPECT_EQ(run<qxNodeVariantCreator>(scene.root()), Texts());
    EXPECT_EQ(namesOf(qxVariants::_nodeVariants), "Car Roof Cabin");
    EXPECT_TRUE(qxVariants::findNodeVariant("Car")->find("Estate"));
    EXPECT_TRUE(qxVariants::_overlayVariants.empty());
}

TEST_F(CreatorsTest, LightsAreFoundBelowLightsAndSwitches)
{
    const TestNode lamps = scene.addSwitch("Lamps", {"Off", "On"});
    scene.addLight("Moon", scene.addLight("Sun", lamps.child(1)));
    EXPECT_EQ(run<qxLightVariantCreator>(scene.root()), Texts({"1 lightVariantChanged"}));
    EXPECT_EQ(namesOf(qxVariants::_lightVariants), "Sun Moon");
    EXPECT_EQ(m_madeWhenTold, 2);
    EXPECT_EQ(qxVariants::findLightVariant("Sun")->defaultState, "!Enable");
}

TEST_F(CreatorsTest, NodesWithNamedStatesGetTransformVariants)
{
    scene.addPoses("Handle", {"Up", "Down"}, scene.addPoses("Door", {"Shut", "Open"}));
    scene.addTransform("Wheel");
    scene.addTransformSwitch("Seat", 3);
    EXPECT_EQ(run<qxTransformVariantCreator>(scene.root()), Texts({"0 transformVariantChanged"}));
    EXPECT_EQ(namesOf(qxVariants::_transformVariants), "Door Handle");
    EXPECT_EQ(m_madeWhenTold, 2);
    EXPECT_TRUE(qxVariants::findTransformVariant("Handle")->find("Down"));
}

TEST_F(CreatorsTest, SwitchesOfTheOverlayTreeGetOverlayVariants)
{
    scene.addSwitch("Car", {"Coupe", "Estate"});
    scene.addOverlay("Logo");
    scene.addOverlaySwitch("Pages", {"One", "Two"});
    scene.addOverlaySwitch("Blank", {});

    EXPECT_EQ(run<qxOverlayVariantCreator>(qxOverlays::getPoolRoot()), Texts());
    EXPECT_EQ(namesOf(qxVariants::_overlayVariants), "Pages");
    EXPECT_EQ(qxVariants::_overlayVariants[0]->overlayName, "Pages");
    EXPECT_TRUE(qxVariants::_overlayVariants[0]->find("Two"));
    EXPECT_TRUE(qxVariants::_nodeVariants.empty());
}
