#include "Files/SceneFileFixture.h"
#include "Materials/qxSurface.h"
#include "OSGSwitchComponentTransform.h"
#include "Scene/qxTransformStates.h"
#include "qxMaterials.h"
#include "qxNodeUtils.h"
#include "qxScenegraph.h"

#include <OpenSG/OSGComponentTransform.h>
#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGMaterialGroup.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGSimpleGeometry.h>
#include <OpenSG/OSGSimpleMaterial.h>
#include <OpenSG/OSGSwitch.h>

#include <QDir>

#include <sys/resource.h>

#include <csignal>

namespace {

/// Holds everything that a save may change, and much that it must not.
const char *const _car = R"({
  "asset": {"version": "2.0", "generator": "Somebody", "unknown": [1.50, 1e3, -0.0]},
  "extensionsUsed": ["EXT_strange"], "extensions": {"EXT_strange": {"deep": [{"er": null}]}},
  "scene": 0, "scenes": [{"name": "Car", "nodes": [0, 4], "extras": {"other": 1}}],
  "nodes": [
    {"name": "Body", "children": [1, 2], "extras": {"mine": true}, "unknown": 7},
    {"name": "Wheels", "translation": [0.1, 0, 0], "extras": {"qxSwitch": 0, "tool": "x"},
     "children": [3]},
    {"name": "Lid", "extras": {"qxTransformStates": [0,0,0,0,0,0,1,1,1,1, 0,1,0,0,0,0,1,1,1,1]}},
    {"name": "Steel", "mesh": 0, "skin": 0, "weights": [0.5]},
    {"name": "Clone", "mesh": 0, "extras": {"qxSharesCoreOf": "Wheels"}}],
  "skins": [{"joints": [3]}],
  "meshes": [{"name": "Rim", "primitives": [
    {"attributes": {"POSITION": 0}, "material": 0, "extensions": {"EXT_strange": {}}},
    {"attributes": {"POSITION": 0}, "material": 1}]}],
  "materials": [{"name": "Chrome", "normalTexture": {"index": 0}}, {"name": "Black"}],
  "textures": [{}],
  "accessors": [{"bufferView": 0, "componentType": 5126, "count": 3, "type": "VEC3"}],
  "bufferViews": [{"buffer": 0, "byteLength": 36}],
  "buffers": [{"uri": "car%20data.bin", "byteLength": 36}]
})";

QByteArray triangle()
{
    const float values[] = {0, 0, 0, 1, 0, 0, 0, 1, 0};
    return QByteArray(reinterpret_cast<const char *>(values), sizeof(values));
}

template <class Core>
void setNewCore(const osg::NodePtr &node)
{
    const osg::CPEditor edit(node, osg::Node::CoreFieldMask);
    node->setCore(Core::create());
}

osg::GeometryPtr partOf(const TestNode &node, unsigned int index)
{
    return osg::GeometryPtr::dcast(node.child(index).core());
}

} // namespace

class SceneFileSaveTest : public SceneFileFixture {
protected:
    void SetUp() override
    {
        write("car data.bin", triangle());
        load(write("car.gltf", QByteArray(_car)));
        original = jsonOf(path("car.gltf"));
    }
    /// Saves to car.gltf and returns what stands there.
    qxJson saved()
    {
        save(path("car.gltf"));
        return jsonOf(path("car.gltf"));
    }

    qxJson original;
};

TEST_F(SceneFileSaveTest, WithoutChangesTheFileStaysByteForByte)
{
    save(path("car.gltf"));
    EXPECT_EQ(bytesOf(path("car.gltf")), QByteArray(_car));
}

TEST_F(SceneFileSaveTest, ChoicesVisibilityNamesAndTransformsAreTheOnlyChanges)
{
    find("Wheels").choose(-2);
    find("Lid").choose(1);
    find("Steel").setMask(0);
    osg::setName(find("Body").node(), "Shell");
    const TestNode upper(find("Wheels").node()->getParent());
    const osg::ComponentTransformPtr transform = osg::ComponentTransformPtr::dcast(upper.core());
    {
        const osg::CPEditor edit(transform, osg::ComponentTransform::ScaleFieldMask);
        transform->setScale(osg::Vec3f(2, 2, 0.1f));
    }

    original["extensionsUsed"].push_back("KHR_node_visibility");
    qxJson &nodes = original["nodes"];
    nodes[0]["name"] = "Shell";
    nodes[1]["extras"]["qxSwitch"] = -2;
    nodes[1]["scale"] = {2, 2, 0.1};
    nodes[2]["extras"]["qxTransformChoice"] = 1;
    nodes[2]["translation"] = {0, 1, 0}; // the chosen state, for other programs
    nodes[3]["extensions"] = {{"KHR_node_visibility", {{"visible", false}}}};
    EXPECT_EQ(saved(), original);
    EXPECT_EQ(find("Clone").choice(), -2);

    // And back.
    load(path("car.gltf"));
    EXPECT_EQ(find("Clone").choice(), -2);
    find("Steel").setMask(0xFFFFFFFF);
    nodes[3].erase("extensions");
    EXPECT_EQ(saved(), original);
}

TEST_F(SceneFileSaveTest, TheVariantsDocumentLiesInTheScene)
{
    const QByteArray document = "<VariantSets name=\"T\xc3\xbcr\">\n</VariantSets>";
    file.setVariantsDocument(document);
    original["scenes"][0]["extras"]["qxVariants"] = document.toStdString();
    EXPECT_EQ(saved(), original);
    load(path("car.gltf"));
    EXPECT_EQ(file.variantsDocument(), document);

    file.setVariantsDocument("");
    original["scenes"][0]["extras"].erase("qxVariants");
    EXPECT_EQ(saved(), original);
}

TEST_F(SceneFileSaveTest, AGroupThatBecameASwitchIsOneAfterLoading)
{
    setNewCore<osg::Switch>(find("Body"));
    find("Body").choose(1);
    original["nodes"][0]["extras"]["qxSwitch"] = 1;
    EXPECT_EQ(saved(), original);

    load(path("car.gltf"));
    EXPECT_EQ(find("Body").choice(), 1);
    setNewCore<osg::Group>(find("Body"));
    original["nodes"][0]["extras"].erase("qxSwitch");
    EXPECT_EQ(saved(), original);
}

TEST_F(SceneFileSaveTest, AHiddenGeometryStaysAPartOfItsMesh)
{
    MeshText text;
    text.primitive["attributes"]["POSITION"] = text.addPositions({0, 0, 0, 1, 0, 0, 0, 1, 0});
    original = text.scene();
    load(write("car.gltf", original));
    find("Part").child(0).setMask(0);
    original["nodes"][0]["extras"]["qxHiddenParts"] = {0};
    EXPECT_EQ(saved(), original);
    EXPECT_TRUE(find("Part").shown());
    EXPECT_EQ(find("Part").child(0).mask(), 0u);

    load(path("car.gltf"));
    find("Part").child(0).setMask(0xFFFFFFFF);
    original["nodes"][0].erase("extras");
    EXPECT_EQ(saved(), original);
}

TEST_F(SceneFileSaveTest, NodesMoveComeAndGo)
{
    // Steel moves out of Wheels, which is removed; a new transform comes below Lid.
    osg::NodeRefPtr steel(find("Steel").node());
    TestNode(steel.get()).moveTo(find("Body"));
    TestNode(find("Wheels").node()->getParent()).remove();
    const TestNode fresh = scene.addTransform("Fresh", find("Lid"));
    fresh.setMask(0);

    const qxJson json = saved();
    EXPECT_EQ(json["nodes"].size(), 6u)
        << "what left stays in the list, other parts may refer to it";
    EXPECT_EQ(json["nodes"][0]["children"], qxJson({2, 3}));
    EXPECT_FALSE(json["nodes"][1].contains("children")) << "or Steel would have two parents";
    EXPECT_EQ(json["nodes"][2]["children"], qxJson::array({5}));
    // The clone has taken over what its owner said.
    EXPECT_EQ(json["nodes"][4]["extras"], qxJson({{"qxSwitch", 0}}));

    load(path("car.gltf"));
    EXPECT_EQ(find("Fresh").mask(), 0u);
    EXPECT_EQ(find("Steel").node()->getParent(), find("Body").node());
    EXPECT_EQ(qxScenegraph::findNode("Wheels"), osg::NullFC);
    EXPECT_EQ(find("Clone").choice(), 0);
}

TEST_F(SceneFileSaveTest, NewSwitchesAndTheirClonesComeBackSharing)
{
    const TestNode roofs = scene.addSwitch("Roofs", {"Soft", "Hard"});
    roofs.choose(1);
    scene.addClone(roofs, find("Lid"));
    scene.addTransformSwitch("Seat", 3).choose(2);
    scene.addPoses("Door", {"Shut", "Open"});
    qxTransformStates::select(find("Door"), 1);
    saveAndLoad();

    EXPECT_EQ(find("Roofs").child(1).name(), "Hard");
    const std::vector<qxNodePtr> both = qxScenegraph::findNodes("Roofs");
    ASSERT_EQ(both.size(), 2u);
    EXPECT_EQ(both[0]->getCore(), both[1]->getCore());
    EXPECT_EQ(TestNode(both[1]).choice(), 1);
    EXPECT_EQ(find("Seat").choice(), 2);
    EXPECT_EQ(find("Seat").node()->getToWorld()[3][0], 2.0f);
    EXPECT_EQ(qxNodeUtils::getSelectedTransformVariantName(find("Door")), "Open");
    EXPECT_EQ(find("Door").node()->getToWorld()[3][0], 1.0f);
}

TEST_F(SceneFileSaveTest, APrimitiveTakesAnotherMaterial)
{
    const osg::GeometryPtr part = partOf(find("Steel"), 0);
    {
        const osg::CPEditor edit(part, osg::Geometry::MaterialFieldMask);
        part->setMaterial(qxMaterials::findMaterial("Black"));
    }
    original["meshes"][0]["primitives"][0]["material"] = 1;
    EXPECT_EQ(saved(), original);
}

TEST_F(SceneFileSaveTest, EditedAndNewMaterialsAreWritten)
{
    const osg::SimpleMaterialPtr chrome =
        osg::SimpleMaterialPtr::dcast(qxMaterials::findMaterial("Chrome"));
    {
        const osg::CPEditor edit(chrome);
        chrome->setDiffuse(osg::Color3f(1, 0, 0.5f));
        qxSurface surface = qxSurface::of(chrome);
        surface.roughness = 0.25f;
        surface.setTo(chrome);
    }
    qxMaterials::setName(chrome, "Red", true);
    const osg::SimpleMaterialPtr glass =
        osg::SimpleMaterialPtr::dcast(scene.addMaterial("Glass").material());
    {
        const osg::CPEditor edit(glass);
        glass->setTransparency(0.75f);
    }

    original["materials"][0]["name"] = "Red";
    original["materials"][0]["pbrMetallicRoughness"] = {{"baseColorFactor", {1, 0, 0.5, 1}},
                                                        {"roughnessFactor", 0.25}};
    original["materials"].push_back(
        {{"name", "Glass"},
         {"pbrMetallicRoughness", {{"baseColorFactor", {0, 0, 0, 0.25}}}},
         {"emissiveFactor", {0, 0, 0}},
         {"alphaMode", "BLEND"}});
    original["materials"][2].erase("emissiveFactor");
    EXPECT_EQ(saved(), original);
    load(path("car.gltf"));
    const osg::MaterialPtr again = qxMaterials::findMaterial("Glass");
    EXPECT_EQ(osg::SimpleMaterialPtr::dcast(again)->getTransparency(), 0.75f);
}

TEST_F(SceneFileSaveTest, AMeshThatLostAPartBecomesAMeshOfItsOwn)
{
    find("Steel").child(0).remove();
    const qxJson json = saved();
    EXPECT_EQ(json["nodes"][3]["mesh"], 1);
    EXPECT_EQ(json["nodes"][4]["mesh"], 0) << "the clone still shows both";
    EXPECT_EQ(json["meshes"][0], original["meshes"][0]);
    EXPECT_EQ(json["meshes"][1]["name"], "Rim 2"); // after what is left of it
    EXPECT_EQ(json["meshes"][1]["primitives"],
              qxJson::array({original["meshes"][0]["primitives"][1]}));

    load(path("car.gltf"));
    EXPECT_EQ(find("Steel").node()->getNChildren(), 1u);
    find("Steel").child(0).remove();
    EXPECT_EQ(saved()["nodes"][3], qxJson({{"name", "Steel"}}));
}

TEST_F(SceneFileSaveTest, NewGeometriesLieInTheFileItself)
{
    const osg::NodePtr box = osg::makeBox(2, 4, 6, 1, 1, 1);
    osg::setName(box, "Box");
    TestNode(box).moveTo(find("Lid"));
    for (const char *name : {"box.gltf", "box.glb"}) {
        save(path(name));
        load(path(name));
        const osg::GeometryPtr loaded = partOf(find("Box"), 0);
        ASSERT_NE(loaded, osg::NullFC);
        EXPECT_EQ(file.info().triangles, 12 + 2);
        find("Box").node()->updateVolume();
        osg::Pnt3f low;
        osg::Pnt3f high;
        find("Box").node()->getVolume().getBounds(low, high);
        EXPECT_EQ(high - low, osg::Vec3f(2, 4, 6));
    }
}

TEST_F(SceneFileSaveTest, ContainersAreConvertedBothWays)
{
    save(path("car.glb"));
    qxJson packed = jsonOf(path("car.glb"));
    EXPECT_FALSE(packed["buffers"][0].contains("uri"));
    EXPECT_TRUE(binOf(path("car.glb")).endsWith(triangle()));
    load(path("car.glb"));
    EXPECT_EQ(find("Steel").node()->getNChildren(), 2u);

    save(path("un packed/car.gltf"));
    packed["buffers"][0]["uri"] = "car.bin";
    EXPECT_EQ(jsonOf(path("un packed/car.gltf")), packed);
    EXPECT_EQ(bytesOf(path("un packed/car.bin")), triangle());
    load(path("un packed/car.gltf"));
    EXPECT_EQ(find("Steel").node()->getNChildren(), 2u);
}

TEST_F(SceneFileSaveTest, FilesOfTheSceneGoWithItAndReplaceNobodyElses)
{
    save(path("b/car.gltf"));
    EXPECT_EQ(bytesOf(path("b/car data.bin")), triangle());
    EXPECT_EQ(bytesOf(path("b/car.gltf")), QByteArray(_car));

    write("c/car data.bin", QByteArray("somebody else's"));
    save(path("c/car.gltf"));
    EXPECT_EQ(bytesOf(path("c/car data.bin")), "somebody else's");
    original["buffers"][0]["uri"] = "car%20data-1.bin";
    EXPECT_EQ(jsonOf(path("c/car.gltf")), original);
    load(path("c/car.gltf"));
    EXPECT_EQ(find("Steel").node()->getNChildren(), 2u);
}

TEST_F(SceneFileSaveTest, NamesOutsideAsciiWorkForFilesAndTheirParts)
{
    const QString bin = QString::fromUtf8("räder/größe.bin");
    write(bin, triangle());
    original["buffers"][0]["uri"] = "r%C3%A4der/gr\u00f6\u00dfe.bin";
    load(write(QString::fromUtf8("Auto ☂.gltf"), original));
    save(path(QString::fromUtf8("目/Auto.gltf")));
    load(path(QString::fromUtf8("目/Auto.gltf")));
    EXPECT_EQ(bytesOf(path(QString::fromUtf8("目/räder/größe.bin"))), triangle());
    EXPECT_EQ(find("Steel").node()->getNChildren(), 2u);
}

TEST_F(SceneFileSaveTest, WhatHasNoFormIsNamedAndNothingIsWritten)
{
    scene.addMaterialGroup("Painted", qxMaterials::findMaterial("Black"), find("Body"));
    EXPECT_FALSE(file.save(path("car.gltf")));
    EXPECT_EQ(
        file.errorString(),
        path("car.gltf")
            + ": node \"Painted\" cannot be written: scene files have no form for a MaterialGroup");
    EXPECT_EQ(bytesOf(path("car.gltf")), QByteArray(_car));

    find("Painted").remove();
    osg::setName(find("Wheels").node(), static_cast<const char *>(nullptr));
    EXPECT_FALSE(file.save(path("car.gltf")));
    EXPECT_TRUE(
        file.errorString().contains("node \"Clone\" shares the switch of a node without a name"));
    EXPECT_FALSE(file.save(path("car.obj")));
    EXPECT_TRUE(file.errorString().endsWith("scene files end in .gltf or .glb"));
}

TEST_F(SceneFileSaveTest, FailedWritesLeaveTheOldFilesWhole)
{
    find("Wheels").choose(-2);
    write("blocked", QByteArray("a file where a folder is needed"));
    EXPECT_FALSE(file.save(path("blocked/car.gltf")));
    EXPECT_TRUE(file.errorString().contains(path("blocked/car data.bin") + " cannot be written"));
    QDir().mkdir(path("folder.gltf"));
    EXPECT_FALSE(file.save(path("folder.gltf")));

    // A disk that is full after thirty bytes.
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit before;
    getrlimit(RLIMIT_FSIZE, &before);
    rlimit full = before;
    full.rlim_cur = 30;
    setrlimit(RLIMIT_FSIZE, &full);
    const bool done = file.save(path("car.gltf"));
    const bool copied = file.save(path("d/car.gltf"));
    setrlimit(RLIMIT_FSIZE, &before);

    EXPECT_FALSE(done);
    EXPECT_FALSE(copied);
    EXPECT_TRUE(file.errorString().contains("cannot be written"))
        << file.errorString().toStdString();
    EXPECT_EQ(bytesOf(path("car.gltf")), QByteArray(_car));
    EXPECT_TRUE(QDir(path("d")).entryList(QDir::Files | QDir::Hidden).isEmpty());
    save(path("car.gltf"));
    EXPECT_EQ(jsonOf(path("car.gltf"))["nodes"][1]["extras"]["qxSwitch"], -2);
}
