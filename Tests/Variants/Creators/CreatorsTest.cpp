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

#include <memory>

namespace {

typedef std::vector<std::string> Texts;

template <class List>
Texts namesOf(const List &variants)
{
    Texts names;
    for (const auto *variant : variants)
        names.push_back(variant->name.toStdString());
    return names;
}

class CreatorsTest : public HostFixture {
protected:
    /// Runs the operation over the tree and returns what it sent, each with its flag in front.
    Texts run(qxVariantCreator &&creator, const osg::NodePtr &root)
    {
        notifications.clear();
        EXPECT_TRUE(creator.traverse(root)) << creator.getName();
        return notifications.lines();
    }

    /// A node with nothing in it.
    TestNode addHollow(const osg::NodePtr &parent)
    {
        const TestNode node = scene.add("Hollow", parent);
        const osg::CPEditor edit(node.node(), osg::Node::CoreFieldMask);
        node.node()->setCore(osg::NullFC);
        return node;
    }
};

/// With what the walk calls open to the test.
template <class Creator>
class Opened : public Creator {
public:
    using Creator::traverseEnter;
    using Creator::traverseLeave;
};

template <class Creator>
class EveryCreatorTest : public CreatorsTest {
protected:
    Creator prototype;
};

typedef testing::Types<qxNodeVariantCreator, qxLightVariantCreator, qxOverlayVariantCreator,
                       qxTransformVariantCreator>
    AllCreators;
const char *const names[] = {"qxNodeVariantCreator", "qxLightVariantCreator",
                             "qxOverlayVariantCreator", "qxTransformVariantCreator"};

} // namespace

TYPED_TEST_SUITE(EveryCreatorTest, AllCreators);

TYPED_TEST(EveryCreatorTest, IsMadeByTheFactoryUnderItsName)
{
    osg::GraphOpFactory &factory = osg::GraphOpFactory::the();
    factory.registerOp(&this->prototype);
    int found = 0;
    for (const char *name : names) {
        const std::unique_ptr<osg::GraphOp> made(factory.create(name));
        if (!made)
            continue;
        ++found;
        EXPECT_EQ(this->prototype.getName(), name);
        EXPECT_EQ(made->getName(), name);
        EXPECT_NE(made.get(), &this->prototype);
        EXPECT_TRUE(typeid(*made) == typeid(TypeParam)) << name;
        made->setParams("name=value");
        EXPECT_EQ(made->usage(), "");
    }
    EXPECT_EQ(found, 1);
    factory.unRegisterOp(&this->prototype);
}

TYPED_TEST(EveryCreatorTest, WalksOnWhateverItMeets)
{
    Opened<TypeParam> creator;
    const osg::NodePtr lamp = this->scene.addLight("Lamp", this->scene.addSwitch("Switch", {"A"}));
    osg::NodePtr all[] = {osg::NullFC, this->addHollow(this->scene.root()), lamp, lamp->getParent(),
                          this->scene.addPoses("Door", {"Shut", "Open"})};
    for (osg::NodePtr &node : all) {
        EXPECT_EQ(creator.traverseEnter(node), osg::Action::Continue);
        EXPECT_EQ(creator.traverseLeave(node, osg::Action::Quit), osg::Action::Continue);
    }
}

TYPED_TEST(EveryCreatorTest, FindsNothingInAnEmptySceneAndSaysSoAllTheSame)
{
    this->notifications.clear();
    EXPECT_TRUE(this->prototype.traverse(this->scene.root()));
    const bool announces = this->prototype.getName() == names[1] || //
        this->prototype.getName() == names[3];
    EXPECT_EQ(this->notifications.entries().size(), announces ? 1u : 0u);
}

TEST_F(CreatorsTest, SwitchesInsideSwitchesGetNodeVariantsOfTheirOwn)
{
    const TestNode car = scene.addSwitch("Car", {"Coupe", "Estate"});
    scene.addSwitch("Roof", {"Steel", "Glass"}, car.child(1));
    scene.addSwitch("Empty", {});
    scene.addTransformSwitch("Seat", 3, scene.addSwitch("Cabin", {}, scene.add("Inside")));
    scene.addSwitch("Car", {"Other"});
    addHollow(scene.root());
    car.setMask(0);

    EXPECT_EQ(run(qxNodeVariantCreator(), scene.root()), Texts());
    EXPECT_EQ(namesOf(qxVariants::_nodeVariants), Texts({"Car", "Roof", "Cabin"}));
    EXPECT_TRUE(qxVariants::findNodeVariant("Car")->find("Estate"));
    EXPECT_TRUE(qxVariants::_overlayVariants.empty());
}

TEST_F(CreatorsTest, TheWalkBeginsWithTheGivenNode)
{
    scene.addSwitch("Left", {"A"});
    const TestNode right = scene.addSwitch("Right", {"B"});
    run(qxNodeVariantCreator(), right);
    EXPECT_EQ(namesOf(qxVariants::_nodeVariants), Texts({"Right"}));
}

TEST_F(CreatorsTest, VariantsThatExistAreKept)
{
    scene.addSwitch("Car", {"Coupe", "Estate"});
    qxNodeVariant *const known = qxVariants::createNodeVariant("Car", false);
    run(qxNodeVariantCreator(), scene.root());
    EXPECT_EQ(qxVariants::findNodeVariant("Car"), known);
    EXPECT_TRUE(known->options.empty());
    EXPECT_EQ(qxVariants::_nodeVariants.size(), 1u);
}

TEST_F(CreatorsTest, LightsAreFoundBelowLightsAndSwitches)
{
    const TestNode lamps = scene.addSwitch("Lamps", {"Off", "On"});
    const TestNode sun = scene.addLight("Sun", lamps.child(1));
    scene.addLight("Moon", sun);
    run(qxNodeVariantCreator(), scene.root());

    EXPECT_EQ(run(qxLightVariantCreator(), scene.root()), Texts({"1 lightVariantChanged"}));
    EXPECT_EQ(namesOf(qxVariants::_lightVariants), Texts({"Sun", "Moon"}));
    EXPECT_EQ(qxVariants::findLightVariant("Sun")->defaultState, "!Enable");
}

TEST_F(CreatorsTest, NodesWithNamedStatesGetTransformVariants)
{
    const TestNode door = scene.addPoses("Door", {"Shut", "Open"});
    scene.addPoses("Handle", {"Up", "Down"}, door);
    scene.addTransform("Wheel");
    scene.addTransformSwitch("Seat", 3);

    EXPECT_EQ(run(qxTransformVariantCreator(), scene.root()), Texts({"0 transformVariantChanged"}));
    EXPECT_EQ(namesOf(qxVariants::_transformVariants), Texts({"Door", "Handle"}));
    EXPECT_TRUE(qxVariants::findTransformVariant("Handle")->find("Down"));
}

TEST_F(CreatorsTest, SwitchesOfTheOverlayTreeGetOverlayVariants)
{
    scene.addSwitch("Car", {"Coupe", "Estate"});
    scene.addOverlay("Logo");
    scene.addOverlaySwitch("Pages", {"One", "Two"});
    scene.addOverlaySwitch("Blank", {});

    EXPECT_EQ(run(qxOverlayVariantCreator(), qxOverlays::getPoolRoot()), Texts());
    EXPECT_EQ(namesOf(qxVariants::_overlayVariants), Texts({"Pages"}));
    EXPECT_EQ(qxVariants::_overlayVariants[0]->overlayName, "Pages");
    EXPECT_TRUE(qxVariants::_overlayVariants[0]->find("Two"));
    EXPECT_TRUE(qxVariants::_nodeVariants.empty());
}
