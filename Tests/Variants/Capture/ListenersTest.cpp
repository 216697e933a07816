#include "Cameras/qxMainView.h"
#include "CaptureFixture.h"
#include "Core/qxRenderRequests.h"

#include <OpenSG/OSGMultiPassMaterial.h>
#include <OpenSG/OSGSwitchMaterial.h>

/// What listeners may do while a capture runs, and arguments that name nothing.
class ListenersTest : public CaptureFixture {
protected:
    template <class Reaction>
    void captureWhile(const std::string &notification, const Reaction &react)
    {
        listen(notification, react, [this] { captureAll(set); });
    }

    /// Removes everything below the node from the given child on.
    static void removeFrom(const osg::NodePtr &parent, osg::UInt32 first)
    {
        while (parent->getNChildren() > first)
            parent->subChild(parent->getNChildren() - 1);
    }
};

TEST_F(ListenersTest, NodesThatAListenerRemovesArePassedOver)
{
    const TestNode car = scene.add("Car");
    const TestNode wheels = scene.addSwitch("Wheels", {"Steel"}, car).choose(0);
    const osg::NodeRefPtr kept(scene.addSwitch("Seats", {"Cloth"}, car).choose(0).node());
    scene.addPoses("Lid", {"Closed"}, car);
    scene.addGeometry("Door", scene.addMaterial("Paint"));
    captureWhile("nodeVariantAdded", [&] {
        removeFrom(car, 1);
        removeFrom(scene.root(), 1);
    });
    EXPECT_EQ(contentsOf(*set), Names{"node Wheels=Steel"});
    const osg::NodeRefPtr keptToo(wheels.node()); // with what is below it
    scene.addSwitch("Tyres", {"Winter"}, wheels.child(0)).choose(0);
    qxVariants::clearNodeVariants();
    captureWhile("nodeVariantAdded", [&] { removeFrom(scene.root(), 0); });
    EXPECT_EQ(contentsOf(*set), Names{"node Wheels=Steel"});
}

TEST_F(ListenersTest, PassesMayBeEditedWhileTheyAreCaptured)
{
    const osg::MultiPassMaterialPtr layers = osg::MultiPassMaterial::create();
    for (const char *name : {"First", "Second", "Third"})
        layers->addMaterial(scene.addSwitchMaterial(name, {"Red", "Blue"}));
    qxMaterials::setName(layers, "Layers", true);
    scene.addGeometry("Body", layers);
    captureWhile("materialVariantAdded", [&] {
        while (layers->getMaterials().size() > 0)
            layers->subMaterial(layers->getMaterials(0));
    });
    EXPECT_EQ(set->materialVariants.size(), 3u); // those that were there
}

TEST_F(ListenersTest, SwitchMaterialsThatHoldEachOtherAreCapturedOnce)
{
    const TestMaterial matt = scene.addSwitchMaterial("Matt", {"Gloss"});
    const TestMaterial gloss = scene.addSwitchMaterial("Gloss Switch", {"Matt"});
    const auto holder = osg::SwitchMaterialPtr::dcast(matt.material());
    matt.choose(1); // before the ring is closed, in which OpenSG bears no edit
    holder->addMaterial(gloss);
    scene.addGeometry("Body", matt);
    captureAll(set);
    EXPECT_EQ(contentsOf(*set),
              (Names{"material Matt=Gloss Switch", "material Gloss Switch=Matt", "Body: Matt"}));
    holder->subMaterial(gloss);
}

TEST_F(ListenersTest, ViewpointsThatAListenerGivesToANewSetAreNotHome)
{
    scene.addViewpoint("Side");
    scene.addViewpoint("Front");
    qxMainView::the().hasHome = true;
    listen(
        "variantSetAdded", [] { qxVariants::_variantSets.back()->addViewpoint("Front"); },
        [] { qxVariants::createAndCaptureVariantSet("New", "Cars"); });
    EXPECT_EQ(qxMainView::the().home.name, "Front");
    EXPECT_FALSE(qxMainView::the().hasHome);
}

TEST_F(ListenersTest, ACapturedSetIsActivatedWhateverItsNameIs)
{
    const char *const odd = "It's a \\ set\\'\r\n)";
    const TestNode wheels = scene.addSwitch("Wheels", {"Steel", "Alloy"}).choose(1);
    captureAll(newSet(odd));
    wheels.choose(0);
    notifications.clear();
    qxVariants::activateCapturedVariantSet("Unknown");
    EXPECT_EQ(wheels.choice(), 0);
    EXPECT_EQ(heard("variantSetAdded").size(), 1u); // what is shown is restored all the same
    const int pictures = qxRenderRequests::count();
    qxVariants::activateCapturedVariantSet(odd);
    EXPECT_EQ(wheels.choice(), 1);
    EXPECT_EQ(qxRenderRequests::count() - pictures, 2) << "one of the selection, one of its own";
}

TEST_F(ListenersTest, ArgumentsThatNameNothingAreIgnored)
{
    const TestNode hidden = scene.add("Hidden").setMask(0);
    bool yes = true;
    EXPECT_FALSE(qxVariants::checkAndSetNodeActive(osg::NullFC, set, yes, yes));
    EXPECT_FALSE(qxVariants::checkAndSetNodeActive(hidden, nullptr, yes, yes));
    qxVariants::changeMaterial(osg::NullFC, scene.addMaterial("Paint"));
    qxVariants::addMaterialGroupIgnoreToVSet(osg::NullFC, osg::NullFC, set);
    osg::MultiPassMaterialPtr passes;
    qxVariants::captureMaterialVariantFromMultiPassMaterial(set, passes, true);
    QMap<QString, QString> materials;
    QSet<QString> names;
    std::set<osg::SwitchMaterialPtr> switches;
    std::set<osg::MaterialPtr> visited;
    qxVariants::captureVariantsFromRootNode(nullptr, scene.root().node(), true, true, true, true,
                                            true, materials, {}, names, switches, visited, true);
    const osg::NodePtr bare = osg::Node::create();
    qxVariants::handleMaterialSnapshots(set, bare, "Bare", scene.addMaterial("Bare"), {}, names,
                                        switches, visited, true, true);
    osg::subRefCP(bare);
    captureAll(nullptr);
    qxVariants::initVSetProgressDialog(nullptr);
    EXPECT_TRUE(names.isEmpty());
    EXPECT_EQ(contentsOf(*set), Names());
    EXPECT_TRUE(qxVariants::_nodeVariants.empty());
}
