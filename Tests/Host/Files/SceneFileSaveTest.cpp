#include "Files/SceneFileFixture.h"
#include "Materials/qxSurface.h"

#include <OpenSG/OSGComponentTransform.h>
#include <OpenSG/OSGMaterialGroup.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGSimpleGeometry.h>
#include <OpenSG/OSGSimpleMaterial.h>
#include <OpenSG/OSGSwitch.h>

#include <QDir>

template <class Core>
static void setNewCore(const osg::NodePtr &node)
{
    const osg::CPEditor edit(node, osg::Node::CoreFieldMask);
    node->setCore(Core::create());
}

/// The scene holds everything that a save may change, and much that it must not.
class SceneFileSaveTest : public SceneFileFixture {
protected:
    void SetUp() override
    {
        write("car data.bin", bin);
        load(write("car.gltf", text));
        original = jsonOf(path("car.gltf"));
    }
    /// Saves to car.gltf and returns what stands there.
    qxJson saved()
    {
        save(path("car.gltf"));
        return jsonOf(path("car.gltf"));
    }

    const float corners[9] = {0, 0, 0, 1, 0, 0, 0, 1, 0};
    const QByteArray bin{reinterpret_cast<const char *>(corners), sizeof(corners)};
    const QByteArray text = bytesOf(testData("Scenes/car.gltf"));
    qxJson original;
};

TEST_F(SceneFileSaveTest, WhatChangedInTheSceneIsAllThatChangesInTheFile)
{
    const QByteArray document = "<VariantSets name=\"T\xc3\xbcr\">\n</VariantSets>";
    file.setVariantsDocument(document);
    find("Wheels").choose(-2);
    find("Lid").choose(1);
    find("Steel").setMask(0);
    find("Steel").child(1).setMask(0);
    setMaterial(part(0, "Steel"), qxMaterials::findMaterial("Black"));
    setNewCore<osg::Switch>(find("Body"));
    find("Body").choose(1);
    osg::setName(find("Body").node(), "Shell");
    {
        const TestNode upper(find("Wheels").node()->getParent());
        const osg::ComponentTransformPtr place = osg::ComponentTransformPtr::dcast(upper.core());
        const osg::CPEditor edit(place, osg::ComponentTransform::ScaleFieldMask);
        place->setScale(osg::Vec3f(2, 2, 0.1f));
    }

    qxJson changed = sample("car-changed");
    EXPECT_EQ(saved(), changed);

    // And back.
    saveAndLoad("car.gltf");
    EXPECT_EQ(file.variantsDocument(), document);
    file.setVariantsDocument("");
    find("Steel").setMask(0xFFFFFFFF);
    find("Steel").child(1).setMask(0xFFFFFFFF);
    setNewCore<osg::Group>(find("Shell"));
    changed["scenes"][0]["extras"].erase("qxVariants");
    changed["nodes"][0]["extras"].erase("qxSwitch");
    for (const char *member : {"extensions", "extras"})
        changed["nodes"][3].erase(member);
    EXPECT_EQ(saved(), changed);
}

TEST_F(SceneFileSaveTest, NodesMoveComeAndGo)
{
    // Steel moves out of Wheels, which is removed; a new node comes below Lid.
    osg::NodeRefPtr steel(find("Steel").node());
    TestNode(steel.get()).moveTo(find("Body"));
    TestNode(find("Wheels").node()->getParent()).remove();
    scene.add("Fresh", find("Lid")).setMask(0);
    saveAndLoad("car.gltf");
    const qxJson json = jsonOf(path("car.gltf"));
    EXPECT_EQ(json["nodes"].size(), 6u)
        << "what left stays in the list, other parts may refer to it";
    EXPECT_EQ(json["nodes"][0]["children"], qxJson({2, 3}));
    EXPECT_FALSE(json["nodes"][1].contains("children")) << "or Steel would have two parents";
    EXPECT_EQ(json["nodes"][2]["children"], qxJson::array({5}));
    // The clone has taken over what its owner said.
    EXPECT_EQ(json["nodes"][4]["extras"], qxJson({{"qxSwitch", 0}}));
}

TEST_F(SceneFileSaveTest, EditedAndNewMaterialsAreWritten)
{
    const osg::SimpleMaterialPtr chrome =
        osg::SimpleMaterialPtr::dcast(qxMaterials::findMaterial("Chrome"));
    const osg::SimpleMaterialPtr glass =
        osg::SimpleMaterialPtr::dcast(scene.addMaterial("Glass").material());
    {
        const osg::CPEditor edit(chrome);
        const osg::CPEditor editGlass(glass);
        chrome->setDiffuse(osg::Color3f(1, 0, 0.5f));
        glass->setTransparency(0.75f);
        qxSurface surface = qxSurface::of(chrome);
        surface.roughness = 0.25f;
        surface.setTo(chrome);
    }
    qxMaterials::setName(chrome, "Red", true);

    original["materials"][0]["name"] = "Red";
    original["materials"][0]["pbrMetallicRoughness"] = {{"baseColorFactor", {1, 0, 0.5, 1}},
                                                        {"roughnessFactor", 0.25}};
    original["materials"].push_back(
        {{"name", "Glass"},
         {"pbrMetallicRoughness", {{"baseColorFactor", {0, 0, 0, 0.25}}}},
         {"alphaMode", "BLEND"}});
    EXPECT_EQ(saved(), original);
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
    saveAndLoad("car.glb");
    qxJson packed = jsonOf(path("car.glb"));
    EXPECT_FALSE(packed["buffers"][0].contains("uri"));
    EXPECT_EQ(bytesOf(path("car.glb")).left(8), QByteArray("glTF\2\0\0\0", 8));
    EXPECT_EQ(bytesOf(path("car.glb")).mid(16, 4), "JSON");
    EXPECT_EQ(binOf(path("car.glb")), QByteArray("\x24\0\0\0BIN\0", 8) + bin);

    saveAndLoad("un packed/car.gltf");
    packed["buffers"][0]["uri"] = "car.bin";
    EXPECT_EQ(jsonOf(path("un packed/car.gltf")), packed);
    EXPECT_EQ(bytesOf(path("un packed/car.bin")), bin);
}

TEST_F(SceneFileSaveTest, AnUnchangedSceneIsCopiedByteForByteWithItsFilesReplacingNobodyElses)
{
    save(path("b/car.gltf"));
    EXPECT_EQ(bytesOf(path("b/car data.bin")), bin);
    EXPECT_EQ(bytesOf(path("b/car.gltf")), text);
    EXPECT_FALSE(file.save(path("none/car.gltf"))) << "only folders below it are made";
    EXPECT_TRUE(file.errorString().endsWith("cannot be written: its folder does not exist"));

    write("c/car data.bin", QByteArray("somebody else's"));
    saveAndLoad("c/car.gltf");
    EXPECT_EQ(bytesOf(path("c/car data.bin")), "somebody else's");
    EXPECT_EQ(bytesOf(path("c/car data-1.bin")), bin);
    original["buffers"][0]["uri"] = "car%20data-1.bin";
    EXPECT_EQ(jsonOf(path("c/car.gltf")), original);

    const QString own = write("own.gltf", bin); // any name may be that of a buffer
    original["buffers"][0]["uri"] = "own.gltf";
    load(write("car.gltf", original));
    EXPECT_FALSE(file.save(own));
    EXPECT_EQ(file.errorString(),
              own + ": the file cannot be written: it is a file that the scene uses");
    EXPECT_EQ(bytesOf(own), bin);
    saveAndLoad("d/own.gltf");
    EXPECT_EQ(bytesOf(path("d/own-1.gltf")), bin);
}

TEST_F(SceneFileSaveTest, OnlyBuffersAndPicturesAreCopiedAndNeverToHiddenNames)
{
    const QByteArray png = "\x89PNG\r\n\x1a\n";
    write(".config/auto.bin", bin + "and what the scene does not call its own");
    for (const char *name : {"a.png", ".b/.c.png"})
        write(name, png);
    write("secret.txt", QByteArray("a text"));
    original["buffers"][0]["uri"] = ".config/auto.bin";
    original["images"] = qxJson::parse(
        R"([{"uri": "a.png"}, {"uri": ".b/.c.png"}, {"name": "Note", "uri": "secret.txt"}])");
    load(write("car.gltf", original));
    save(path("e/car.gltf"));
    EXPECT_EQ(file.warnings(),
              QStringList({"the copy of \".config/auto.bin\" is called \"_config/auto.bin\"",
                           "the copy of \".b/.c.png\" is called \"_b/_c.png\"",
                           "image 2 \"Note\" is not copied: it is no picture"}));
    EXPECT_EQ(bytesOf(path("e/_config/auto.bin")), bin);
    EXPECT_EQ(bytesOf(path("e/_b/_c.png")), png);
    EXPECT_EQ(QDir(path("e")).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
              QStringList({"_b", "_config", "a.png", "car.gltf"}));

    // Not through what leads out of the folder either.
    made("elsewhere");
    QFile::link("../elsewhere", made("f") + "/_config");
    EXPECT_FALSE(file.save(path("f/car.gltf")));
    EXPECT_TRUE(QDir(path("elsewhere")).isEmpty());
    QDir().mkdir(path("g"));
    QFile::link("../e/car.gltf", path("g/link.gltf"));
    save(path("g/link.gltf"));
    EXPECT_FALSE(QFile::exists(path("g/a.png"))) << "a link stands for the file in its folder";
}

TEST_F(SceneFileSaveTest, NamesOutsideAsciiWorkForFilesAndTheirParts)
{
    write(QStringLiteral("räder/größe.bin"), bin);
    original["buffers"][0]["uri"] = "r%C3%A4der/gr\u00f6\u00dfe.bin";
    load(write(QStringLiteral("Auto ☂.gltf"), original));
    saveAndLoad(QStringLiteral("目/Auto.gltf"));
    EXPECT_EQ(bytesOf(path(QStringLiteral("目/räder/größe.bin"))), bin);
}

TEST_F(SceneFileSaveTest, WhatHasNoFormIsNamedAndNothingIsWritten)
{
    scene.addMaterialGroup("Painted", qxMaterials::findMaterial("Black"), find("Body"));
    EXPECT_FALSE(file.save(path("car.gltf")));
    EXPECT_EQ(
        file.errorString(),
        path("car.gltf")
            + ": node \"Painted\" cannot be written: scene files have no form for a MaterialGroup");
    EXPECT_EQ(bytesOf(path("car.gltf")), text);

    EXPECT_FALSE(file.save(path("car.obj")));
    EXPECT_TRUE(file.errorString().endsWith("scene files end in .gltf or .glb"));
}
