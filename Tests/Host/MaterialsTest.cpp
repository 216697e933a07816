#include "HostFixture.h"
#include "Materials/qxSurface.h"
#include "qxModuleBase.h"

#include <OpenSG/OSGChangeList.h>
#include <OpenSG/OSGFieldContainerFactory.h>
#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGImage.h>
#include <OpenSG/OSGMultiPassMaterial.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGSimpleMaterial.h>
#include <OpenSG/OSGSwitchMaterial.h>
#include <OpenSG/OSGThread.h>

#include <algorithm>
#include <random>

typedef std::vector<osg::MaterialPtr> Materials;
typedef std::vector<qxNodePtr> Nodes;

static Nodes users(const osg::MaterialPtr &material)
{
    Nodes nodes;
    qxMaterials::getNodesWithMaterial(nodes, material);
    return nodes;
}

static std::string uniqueName(const std::string &wanted)
{
    qxMessage message;
    message.set("Switch", wanted);
    qxController::call("MaterialGetUniqueName", message, 1);
    const auto *reply = message.get<std::string>("newname");
    return reply ? *reply : "(no reply)";
}

/// The material and what it contains, behind those in `all`; each once.
static void appendWithContents(const osg::MaterialPtr &material, Materials &all)
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

/// Compares what is found with what a walk through the whole pool finds.
static void compareWithWalk(const std::string &asked)
{
    Materials pooled, all, found;
    qxScenegraph::getMaterialPool()->get(pooled);
    for (const osg::MaterialPtr &material : pooled)
        appendWithContents(material, all);
    std::vector<std::string> names;
    for (const osg::MaterialPtr &each : all) {
        names.push_back(qxMaterials::getName(each));
        if (names.back() == asked)
            found.push_back(each);
    }
    ASSERT_EQ(qxMaterials::findMaterials(asked.c_str()), found);
    ASSERT_EQ(uniqueName("M"), qxNodeUtils::getUniqueName("M", names));
}

class MaterialsTest : public HostFixture {};

TEST_F(MaterialsTest, MaterialsAreFoundInPoolOrderWithTheirContentsBehindThem)
{
    const TestMaterial first = scene.addMaterial("Paint");
    const auto passes = osg::MultiPassMaterial::create();
    const auto inner = osg::SwitchMaterial::create();
    osg::setName(inner, "Paint");
    passes->addMaterial(inner);
    passes->addMaterial(first); // known already
    qxScenegraph::getMaterialPool()->add(osg::MaterialPtr(passes));
    const TestMaterial last = scene.addMaterial("Paint");

    EXPECT_EQ(qxMaterials::findMaterials("Paint"),
              (Materials{first.material(), inner, last.material()}));
    EXPECT_EQ(qxMaterials::findMaterial("Paint"), first.material());
    EXPECT_EQ(qxMaterials::getName(passes), "");
    EXPECT_TRUE(qxMaterials::findMaterials("").empty());
    EXPECT_TRUE(qxMaterials::findMaterial(nullptr) == osg::NullFC);
    EXPECT_TRUE(qxMaterials::isEditable(first) && !qxMaterials::isEditable(osg::NullFC));
}

TEST_F(MaterialsTest, NamesEqualThoseOfAWalkAfterRandomChanges)
{
    osg::ChangeList *const changes = osg::Thread::getCurrentChangeList();
    const osg::MaterialPoolPtr pool = qxScenegraph::getMaterialPool();
    std::vector<osg::MaterialRefPtr> kept;
    std::mt19937 random(11);
    const auto anyName = [&] { return "M " + std::to_string(random() % 6); };
    for (int step = 0; step < 10000; ++step) {
        while (pool->getCount() < 4)
            scene.addMaterial(anyName());
        Materials pooled;
        pool->get(pooled);
        const osg::MaterialPtr any = pooled[random() % pooled.size()];
        const osg::MaterialPtr other = pooled[random() % pooled.size()];
        const osg::SwitchMaterialPtr choices = osg::SwitchMaterialPtr::dcast(any);
        const unsigned int action = random() % 11;
        if (action == 0)
            scene.addMaterial(anyName());
        else if (action == 1) {
            if (random() % 2 == 0)
                kept.emplace_back(any);
            pool->sub(any); // outside of an edit
        } else if (action == 2)
            osg::setName(any, anyName());
        else if (action == 3 && pooled.size() < 40)
            scene.addSwitchMaterial(anyName(), {anyName(), anyName()});
        else if (choices != osg::NullFC && action < 6) {
            const osg::CPEditor edit(choices, osg::SwitchMaterial::MaterialsFieldMask);
            if (action == 4)
                choices->addMaterial(osg::SimpleMaterialPtr::dcast(other));
            else if (!choices->getMaterials().empty())
                choices->subMaterial(choices->getMaterials(0));
        } else if (action == 6)
            qxMaterials::setName(any, "M", random() % 4 == 0);
        else if (action == 7) {
            const osg::MaterialRefPtr moved(any);
            const osg::CPEditor edit(pool, osg::MaterialPool::MaterialsFieldMask);
            pool->sub(any);
            pool->add(any);
        } else if (action == 8) {
            pool->sub(pooled.back());
            scene.addMaterial(anyName()); // often at the same address
        } else if (action == 9)
            changes->clearAll(); // and may soon be as long as before
        else if (action == 10 && step % 1000 < 100) {
            const osg::CPEditor edit(any, osg::Material::AttachmentsFieldMask);
            any->addAttachment(other->findAttachment(osg::Name::getClassType())); // for both
        }
        if (random() % 3 > 0)
            continue;
        ASSERT_NO_FATAL_FAILURE(compareWithWalk(anyName())) << "step " << step;
    }
}

TEST_F(MaterialsTest, ANameThatWentWhileNothingWasRecordedIsNotFound)
{
    const TestMaterial paint = scene.addMaterial("Paint");
    EXPECT_EQ(qxMaterials::findMaterial("Paint"), paint.material());
    osg::Thread::getCurrentChangeList()->setReadOnly(true);
    osg::setName(paint.material(), "Lacquer");
    EXPECT_TRUE(qxMaterials::findMaterial("Paint") == osg::NullFC);
    EXPECT_EQ(qxMaterials::findMaterial("Lacquer"), paint.material());
    osg::Thread::getCurrentChangeList()->setReadOnly(false);
}

TEST_F(MaterialsTest, NamesOfNewMaterialsAreNumberedWhenTaken)
{
    EXPECT_EQ(uniqueName("Paint Switch"), "Paint Switch");
    scene.addSwitchMaterial("Paint Switch", {"Paint"});
    EXPECT_EQ(uniqueName("Paint Switch"), "Paint Switch 2");
    EXPECT_EQ(uniqueName("Grün"), "Grün");
    const TestMaterial copy = scene.addMaterial("");
    qxMaterials::setName(copy, "Paint", false);
    EXPECT_EQ(copy.name(), "Paint 2");
    EXPECT_EQ(uniqueName("Paint"), "Paint 3");
    qxMaterials::setName(copy, "Paint", true);
    EXPECT_EQ(copy.name(), "Paint");
}

TEST_F(MaterialsTest, UsersEqualThoseOfAWalkAfterRandomChanges)
{
    std::mt19937 random(7);
    Materials materials;
    for (int i = 0; i < 8; ++i)
        materials.push_back(scene.addMaterial("M" + std::to_string(i)));
    for (int step = 0; step < 1000; ++step) {
        const Nodes nodes = qxNodeUtils::getSubTreeNodes(scene.root());
        const TestNode node = nodes[random() % nodes.size()];
        const osg::MaterialPtr material = materials[random() % materials.size()];
        const unsigned int action = random() % 8;
        if (action == 0)
            scene.addGeometry("G", material, node);
        else if (action == 1)
            scene.addMaterialGroup("G", material, node);
        else if (action == 2 && nodes.size() < 60)
            scene.addClone(nodes[random() % nodes.size()], node);
        else if (action == 3 && node.node() != scene.root().node()) {
            osg::NodePtr gone = node;
            gone->getParent()->subChild(gone); // outside of an edit
        } else
            qxNodeUtils::setMaterial(node, action == 4 ? osg::MaterialPtr() : material, false,
                                     false);
        const osg::MaterialPtr asked = materials[random() % materials.size()];
        Nodes walked = qxNodeUtils::getSubTreeNodes(scene.root());
        const auto isOther = [&](const qxNodePtr &each) {
            return qxNodeUtils::getMaterial(each) != asked;
        };
        walked.erase(std::remove_if(walked.begin(), walked.end(), isOther), walked.end());
        ASSERT_EQ(users(asked), walked) << "step " << step;
    }
}

TEST_F(MaterialsTest, TheModuleMessageOutdatesEverythingThatWasRead)
{
    const TestNode body = scene.addGeometry("Body", scene.addMaterial("Paint"));
    const TestMaterial other = scene.addMaterial("Other");
    qxMessage changed(qxModuleBase::MaterialsChanged);
    qxModuleBase::sendMessage(changed, false); // about the pool, as its edits are recorded
    EXPECT_TRUE(users(other).empty());
    osg::GeometryPtr::dcast(body.core())->setMaterial(other); // outside of an edit

    qxModuleBase::sendMessage(changed, false);
    Nodes appended = {scene.root().node()};
    qxMaterials::getNodesWithMaterial(appended, other);
    qxMaterials::getNodesWithMaterial(appended, osg::NullFC);
    EXPECT_EQ(appended, (Nodes{scene.root().node(), body.node()}));
}

TEST_F(MaterialsTest, UsersAreFoundInTheEnvironmentWhileItIsThere)
{
    const TestMaterial sky = scene.addMaterial("Sky");
    const TestNode body = scene.addGeometry("Body", sky);
    const TestNode environments = scene.addEnvironments("Environments", {"Studio"});
    const TestNode dome = scene.addGeometry("Dome", sky, environments.child(0));
    EXPECT_EQ(users(sky), (Nodes{body.node(), dome.node()}));
    scene.addEnvironments("Others", {});
    EXPECT_EQ(users(sky), (Nodes{body.node()}));
}

TEST_F(MaterialsTest, WhatContainsAMaterialForTheEnvironmentIsOne)
{
    const TestMaterial sky = scene.addEnvironmentMaterial("Sky");
    const TestMaterial paint = scene.addMaterial("Paint");
    const auto passes = osg::MultiPassMaterial::create();
    const osg::MaterialRefPtr kept{osg::MaterialPtr(passes)};
    passes->addMaterial(paint);
    for (const osg::MaterialPtr &other :
         {osg::MaterialPtr(), paint.material(), osg::MaterialPtr(passes),
          scene.addSwitchMaterial("Paints", {"Paint"}).material()})
        EXPECT_FALSE(qxMaterials::isEnvironmentMaterial(other));
    passes->addMaterial(sky);
    for (const osg::MaterialPtr &made :
         {sky.material(), osg::MaterialPtr(passes),
          scene.addSwitchMaterial("Skies", {"Paint", "Sky"}).material()})
        EXPECT_TRUE(qxMaterials::isEnvironmentMaterial(made));
}

TEST_F(MaterialsTest, PicturesLiveWithTheirMaterialAndItsClones)
{
    const osg::UInt8 pixel[] = {1, 2, 3, 4};
    osg::ImageRefPtr image(osg::Image::create());
    image->set(osg::Image::OSG_RGBA_PF, 1, 1, 1, 1, 1, 0.0, pixel);
    const osg::UInt32 id = image.get().getFieldContainerId();
    const auto isThere = [id] {
        return osg::FieldContainerFactory::the()->getContainer(id) != osg::NullFC;
    };
    osg::MaterialRefPtr material(osg::MaterialPtr(osg::SimpleMaterial::create()));
    qxSurface surface;
    for (const auto role : {qxSurface::Normal, qxSurface::SheenColour})
        surface.pictures[role].image = image.get();
    surface.pictures[qxSurface::Normal].texCoords = 2;
    surface.setTo(material.get());
    image = osg::NullFC;
    EXPECT_EQ(qxSurface::of(material.get()), surface);
    osg::MaterialRefPtr clone(osg::MaterialPtr::dcast(osg::deepClone(material.get())));
    surface = qxSurface::of(material.get());
    surface.pictures[qxSurface::Normal].image = osg::ImagePtr();
    surface.setTo(material.get());
    EXPECT_EQ(qxSurface::of(material.get()), surface);
    EXPECT_TRUE(isThere()) << "the other role has it still";
    material = osg::NullFC;
    EXPECT_FALSE(isThere());
    const qxSurfacePicture kept = qxSurface::of(clone.get()).pictures[qxSurface::Normal];
    EXPECT_EQ(kept.texCoords, 2u);
    ASSERT_NE(kept.image, osg::NullFC);
    EXPECT_EQ(kept.image->getData()[2], 3);
}
