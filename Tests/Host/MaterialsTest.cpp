#include "HostFixture.h"
#include "qxMaterials.h"
#include "qxModuleBase.h"
#include "qxNodeUtils.h"
#include "qxScenegraph.h"

#include <OpenSG/OSGChangeList.h>
#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGMaterialGroup.h>
#include <OpenSG/OSGMultiPassMaterial.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGSimpleMaterial.h>
#include <OpenSG/OSGSwitchMaterial.h>
#include <OpenSG/OSGThread.h>

#include <algorithm>
#include <random>

namespace {

typedef std::vector<osg::MaterialPtr> Materials;
typedef std::vector<qxNodePtr> Nodes;

Nodes users(const osg::MaterialPtr &material)
{
    Nodes nodes;
    qxMaterials::getNodesWithMaterial(nodes, material);
    return nodes;
}

/// The users as a walk through all nodes finds them.
Nodes walkedUsers(const osg::MaterialPtr &material)
{
    Nodes nodes;
    for (const qxNodePtr &node : qxNodeUtils::getSubTreeNodes(qxScenegraph::getRoot())) {
        const osg::MaterialGroupPtr group = osg::MaterialGroupPtr::dcast(node->getCore());
        const osg::GeometryPtr geometry = osg::GeometryPtr::dcast(node->getCore());
        if ((group != osg::NullFC && group->getMaterial() == material)
            || (geometry != osg::NullFC && geometry->getMaterial() == material))
            nodes.push_back(node);
    }
    return nodes;
}

/// The material and what it contains, behind those in `all`; each once.
void appendWithContents(const osg::MaterialPtr &material, Materials &all)
{
    if (std::find(all.begin(), all.end(), material) != all.end())
        return;
    all.push_back(material);
    const osg::SwitchMaterialPtr choices = osg::SwitchMaterialPtr::dcast(material);
    if (choices == osg::NullFC)
        return;
    for (const osg::MaterialPtr &contained : choices->getMaterials())
        appendWithContents(contained, all);
}

/// The materials of that name as a walk through the whole pool finds them.
Materials walked(const std::string &name)
{
    Materials pooled, all, found;
    qxScenegraph::getMaterialPool()->get(pooled);
    for (const osg::MaterialPtr &material : pooled)
        appendWithContents(material, all);
    for (const osg::MaterialPtr &material : all) {
        if (qxMaterials::getName(material) == name)
            found.push_back(material);
    }
    return found;
}

void setMaterial(const TestNode &node, const osg::MaterialPtr &material)
{
    const osg::GeometryPtr geometry = osg::GeometryPtr::dcast(node.core());
    const osg::CPEditor edit(geometry, osg::Geometry::MaterialFieldMask);
    geometry->setMaterial(material);
}

template <class Change>
void editContents(const osg::SwitchMaterialPtr &choices, const Change &change)
{
    const osg::CPEditor edit(choices, osg::SwitchMaterial::MaterialsFieldMask);
    change();
}

void removeFromPool(const osg::MaterialPtr &material)
{
    const osg::MaterialPoolPtr pool = qxScenegraph::getMaterialPool();
    const osg::CPEditor edit(pool, osg::MaterialPool::MaterialsFieldMask);
    pool->sub(material);
}

} // namespace

class MaterialsTest : public HostFixture {};

TEST_F(MaterialsTest, MaterialsAreFoundInPoolOrderWithTheirContentsBehindThem)
{
    const TestMaterial first = scene.addMaterial("Paint");
    const osg::MultiPassMaterialPtr passes = osg::MultiPassMaterial::create();
    const osg::SwitchMaterialPtr inner = osg::SwitchMaterial::create();
    osg::setName(inner, "Paint");
    {
        const osg::CPEditor edit(passes);
        passes->addMaterial(inner);
        passes->addMaterial(first); // known already
    }
    {
        const osg::MaterialPoolPtr pool = qxScenegraph::getMaterialPool();
        const osg::CPEditor edit(pool, osg::MaterialPool::MaterialsFieldMask);
        pool->add(osg::MaterialPtr(passes));
    }
    const TestMaterial last = scene.addMaterial("Paint");

    EXPECT_EQ(qxMaterials::findMaterials("Paint"),
              (Materials{first.material(), inner, last.material()}));
    EXPECT_EQ(qxMaterials::findMaterial("Paint"), first.material());
    EXPECT_EQ(qxMaterials::getName(passes), "");
    EXPECT_TRUE(qxMaterials::findMaterials("").empty());
    EXPECT_TRUE(qxMaterials::findMaterial(nullptr) == osg::NullFC);
    EXPECT_TRUE(qxMaterials::isEditable(first) && !qxMaterials::isEditable(osg::NullFC));
}

TEST_F(MaterialsTest, NamesFollowAlsoWhenTheChangeListWasEmptiedOrStopped)
{
    const TestMaterial paint = scene.addMaterial("Paint");
    const TestMaterial other = scene.addMaterial("Other");
    osg::ChangeList *const changes = osg::Thread::getCurrentChangeList();
    // The list grows beyond its old length after it was emptied: a length alone tells nothing.
    for (int i = 0; i < 3; ++i) {
        const std::string name = "Paint" + std::to_string(i);
        changes->clearAll();
        osg::setName(paint.material(), name);
        for (int more = 0; more < 20 * i; ++more)
            scene.root().setMask(osg::UInt32(more));
        EXPECT_EQ(qxMaterials::findMaterial(name.c_str()), paint.material());
        EXPECT_EQ(qxMaterials::findMaterial("Other"), other.material());
    }
    changes->setReadOnly(true);
    osg::setName(other.material(), "Another");
    EXPECT_TRUE(qxMaterials::findMaterial("Other") == osg::NullFC);
    EXPECT_EQ(qxMaterials::findMaterial("Another"), other.material());
    changes->setReadOnly(false);
}

TEST_F(MaterialsTest, NamesEqualThoseOfAWalkAfterRandomChanges)
{
    std::mt19937 random(11);
    const auto anyName = [&] { return "M" + std::to_string(random() % 6); };
    for (int step = 0; step < 1500; ++step) {
        Materials pooled;
        qxScenegraph::getMaterialPool()->get(pooled);
        const osg::MaterialPtr any =
            pooled.empty() ? scene.addMaterial("M0").material() : pooled[random() % pooled.size()];
        const osg::SwitchMaterialPtr choices = osg::SwitchMaterialPtr::dcast(any);
        const osg::MaterialPtr plain =
            osg::SimpleMaterialPtr::dcast(qxMaterials::findMaterial("M1"));
        const unsigned int action = random() % 7;
        if (action == 0 || pooled.size() < 4)
            scene.addMaterial(anyName());
        else if (action == 1)
            removeFromPool(any); // destroys it, and a later one may take its storage
        else if (action == 2)
            osg::setName(any, anyName());
        else if (action == 3 && pooled.size() < 40)
            scene.addSwitchMaterial(anyName(), {anyName(), anyName()});
        else if (choices != osg::NullFC && action == 4)
            editContents(choices, [&] { choices->addMaterial(plain); });
        else if (choices != osg::NullFC && !choices->getMaterials().empty() && action == 5)
            editContents(choices, [&] { choices->subMaterial(choices->getMaterials(0)); });
        const std::string asked = anyName();
        if (random() % 2 == 0)
            continue;
        ASSERT_EQ(qxMaterials::findMaterials(asked.c_str()), walked(asked)) << "step " << step;
    }
}

TEST_F(MaterialsTest, AMaterialInTheStorageOfADestroyedOneIsAnotherOne)
{
    scene.addMaterial("Stays");
    std::string old = "Paint";
    for (int i = 0; i < 20; ++i) {
        const TestMaterial material = scene.addMaterial(old);
        EXPECT_EQ(qxMaterials::findMaterial(old.c_str()), material.material());
        removeFromPool(material);
        const std::string name = "Paint" + std::to_string(i);
        const TestMaterial next = scene.addMaterial(name); // mostly at the same address
        EXPECT_EQ(qxMaterials::findMaterial(name.c_str()), next.material());
        EXPECT_TRUE(qxMaterials::findMaterial(old.c_str()) == osg::NullFC);
        old = name + "b";
    }
}

TEST_F(MaterialsTest, AUniqueNameIsMadeOnDemand)
{
    scene.addMaterial("Paint");
    const TestMaterial copy = scene.addMaterial("");
    qxMaterials::setName(copy, "Paint", false);
    EXPECT_EQ(copy.name(), "Paint 2");
    qxMaterials::setName(copy, "Paint", true);
    EXPECT_EQ(copy.name(), "Paint");
}

TEST_F(MaterialsTest, UniqueNamesAreTheFirstFreeOnesAfterRandomChanges)
{
    std::mt19937 random(5);
    std::vector<TestMaterial> materials;
    for (int i = 0; i < 12; ++i)
        materials.push_back(scene.addMaterial(""));
    for (int step = 0; step < 1000; ++step) {
        const TestMaterial &material = materials[random() % materials.size()];
        if (random() % 3 == 0) {
            osg::setName(material.material(), random() % 2 == 0 ? "M" : "M 3");
            continue;
        }
        std::vector<std::string> names;
        for (const TestMaterial &each : materials)
            names.push_back(each.name());
        const std::string expected = qxNodeUtils::getUniqueName("M", names);
        qxMaterials::setName(material, "M", false);
        ASSERT_EQ(material.name(), expected) << "step " << step;
    }
}

TEST_F(MaterialsTest, UsersAreGroupsAndGeometriesOfTheSceneInItsOrder)
{
    const TestMaterial paint = scene.addMaterial("Paint");
    const TestNode group = scene.addMaterialGroup("Group", paint);
    const TestNode body = scene.addGeometry("Body", paint, group);
    const TestNode clone = scene.addClone(body);
    scene.addGeometry("Bare");

    EXPECT_EQ(users(paint), (Nodes{group.node(), body.node(), clone.node()}));
    EXPECT_TRUE(users(osg::NullFC).empty());

    Nodes appended = {scene.root().node()};
    qxMaterials::getNodesWithMaterial(appended, paint);
    EXPECT_EQ(appended.size(), 4u);
}

TEST_F(MaterialsTest, UsersEqualThoseOfAWalkAfterRandomChanges)
{
    std::mt19937 random(7);
    Materials materials;
    for (int i = 0; i < 8; ++i)
        materials.push_back(scene.addMaterial("M" + std::to_string(i)));
    std::vector<TestNode> nodes = {scene.root()};
    for (int step = 0; step < 600; ++step) {
        const osg::MaterialPtr material = materials[random() % materials.size()];
        const TestNode node = nodes[random() % nodes.size()];
        const unsigned int action = random() % 8;
        if (action == 0)
            nodes.push_back(scene.addGeometry("G", material, node));
        else if (action == 1 && nodes.size() > 4)
            nodes.push_back(scene.addClone(nodes.back(), node));
        else if (osg::GeometryPtr::dcast(node.core()) != osg::NullFC)
            setMaterial(node, action == 2 ? osg::MaterialPtr() : material);
        const osg::MaterialPtr asked = materials[random() % materials.size()];
        ASSERT_EQ(users(asked), walkedUsers(asked)) << "step " << step;
    }
}

TEST_F(MaterialsTest, RemovedNodesAreNoUsersAnyMore)
{
    const TestMaterial paint = scene.addMaterial("Paint");
    const TestNode group = scene.add("Group");
    scene.addGeometry("Body", paint, group);
    const TestNode stays = scene.addGeometry("Roof", paint);
    EXPECT_EQ(users(paint).size(), 2u);
    group.remove();
    EXPECT_EQ(users(paint), (Nodes{stays.node()}));
}

TEST_F(MaterialsTest, TheModuleMessageOutdatesEverythingThatWasRead)
{
    const TestMaterial paint = scene.addMaterial("Paint");
    const TestNode body = scene.addGeometry("Body", paint);
    const TestMaterial other = scene.addMaterial("Other");
    EXPECT_TRUE(users(other).empty());
    osg::GeometryPtr::dcast(body.core())->setMaterial(other); // outside of an edit

    qxMessage changed(qxModuleBase::MaterialsChanged);
    qxModuleBase::sendMessage(changed, false);
    EXPECT_EQ(users(other), (Nodes{body.node()}));
}
