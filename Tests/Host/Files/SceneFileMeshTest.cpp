#include "Files/SceneFileFixture.h"
#include "Files/qxMemoryBudget.h"
#include "Materials/qxSurface.h"
#include "Pictures/qxEncodedPicture.h"
#include "Render/qxRenderTexture.h"

#include <OpenSG/OSGImage.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGSimpleTexturedMaterial.h>
#include <OpenSG/OSGTriangleIterator.h>

#include <QBuffer>

#include <cmath>

class SceneFileMeshTest : public SceneFileFixture {
protected:
    osg::SimpleMaterialPtr material(const char *name) const
    {
        return osg::SimpleMaterialPtr::dcast(qxMaterials::findMaterial(name));
    }
};

TEST_F(SceneFileMeshTest, AnIndexedTriangleListWithAllItsAttributes)
{
    load(sample("indexed"));
    const osg::GeometryPtr geometry = part();
    EXPECT_STREQ(osg::getName(geometry), "Shape");
    EXPECT_EQ(file.info().triangles, 2);
    EXPECT_EQ(geometry->getLengths()->getValue(0), 6u);
    EXPECT_EQ(geometry->getIndices()->getValue(5), 3u);
    EXPECT_EQ(geometry->getPositions()->getValue(2), osg::Pnt3f(1, 1, 0));
    EXPECT_EQ(geometry->getNormals()->getValue(2), osg::Vec3f(0, 1, 0));
    // Pictures begin with the bottom row.
    EXPECT_EQ(geometry->getTexCoords()->getValue(2), osg::Vec2f(1, 0.75f));
}

TEST_F(SceneFileMeshTest, EveryModeShowsItsTriangles)
{
    const int expected[] = {0, 0, 0, 0, 1, 2, 2};
    qxJson square = sample("square");
    for (int mode = 0; mode < 7; ++mode) {
        SCOPED_TRACE(mode);
        square["meshes"][0]["primitives"][0]["mode"] = mode;
        load(square);
        const osg::GeometryPtr geometry = part();
        int shown = 0;
        for (auto i = geometry->beginTriangles(); i != geometry->endTriangles(); ++i)
            ++shown;
        EXPECT_EQ(shown, expected[mode]);
        EXPECT_EQ(file.info().triangles, expected[mode]);
        EXPECT_EQ(geometry->getTypes()->getValue(0), osg::UInt32(mode));
        if (mode >= 4) {
            EXPECT_NEAR(std::fabs(geometry->getNormals()->getValue(0)[2]), 1, 1e-5);
        }
    }
}

TEST_F(SceneFileMeshTest, QuantisedValuesAreTheirNumbersAndSparseOnesReplaceOthersOrZeros)
{
    // The positions are bytes 0, 255, 0; 127, 0, 0; ... and the normals signed bytes.
    load(sample("quantised"));
    EXPECT_EQ(part()->getPositions()->getValue(0), osg::Pnt3f(0, 1, 0));
    EXPECT_NEAR(part()->getPositions()->getValue(1)[0], 127.0 / 255.0, 1e-6);
    const float expected[] = {-1, -1, 1}; // -128 and -127 both stand for -1.
    for (osg::UInt32 i = 0; i < 3; ++i)
        EXPECT_EQ(part()->getNormals()->getValue(i), osg::Vec3f(expected[i], 0, 0));

    qxJson sparse = sample("sparse"); // (7, 8, 9) instead of the second (2, 2, 2)
    for (const osg::Pnt3f &rest : {osg::Pnt3f(1, 1, 1), osg::Pnt3f(0, 0, 0)}) {
        load(sparse);
        EXPECT_EQ(part()->getPositions()->getValue(0), rest);
        EXPECT_EQ(part()->getPositions()->getValue(1), osg::Pnt3f(7, 8, 9));
        sparse["accessors"][0].erase("bufferView");
    }
}

TEST_F(SceneFileMeshTest, NodesOfOneMeshShareItsPartsBehindTheirChildren)
{
    qxJson json = sample("square");
    qxJson &parts = json["meshes"][0]["primitives"];
    parts.push_back(qxJson(parts[0]));
    json["nodes"][0]["children"] = qxJson::array({1});
    json["nodes"].push_back({{"name", "Twin"}, {"mesh", 0}});
    load(json);
    const TestNode top = find("Part");
    ASSERT_EQ(top.node()->getNChildren(), 3u);
    EXPECT_EQ(top.child(0).name(), "Twin");
    EXPECT_EQ(osg::getName(top.child(1).node()), nullptr);
    EXPECT_EQ(part(1), part(0, "Twin"));
    EXPECT_EQ(part(2), part(1, "Twin"));
    EXPECT_NE(part(1), part(2));
}

TEST_F(SceneFileMeshTest, MaterialsKeepTheirLook)
{
    qxJson json = sample("square");
    json["meshes"][0]["primitives"][0]["material"] = 0;
    json["materials"] = qxJson::parse(R"([
        {"name": "Glass", "alphaMode": "BLEND", "doubleSided": true, "emissiveFactor": [0, 0, 0.5],
         "pbrMetallicRoughness": {"baseColorFactor": [0.25, 0.5, 1, 0.25], "metallicFactor": 0,
                                  "roughnessFactor": 0.125}},
        {"name": "Leaf", "alphaMode": "MASK", "alphaCutoff": 0.75,
         "pbrMetallicRoughness": {"baseColorFactor": [1, 1, 1, 0.5]},
         "extensions": {"KHR_materials_unlit": {}}},
        {"name": "Cloth", "emissiveFactor": [1, 1, 1], "emissiveTexture": {"index": 0},
         "pbrMetallicRoughness": {"metallicRoughnessTexture": {"index": 0}}}])");
    json["textures"] = {qxJson::object()};
    load(json);
    expectSaved(json);

    const osg::SimpleMaterialPtr glass = material("Glass");
    EXPECT_EQ(part()->getMaterial(), glass);
    EXPECT_EQ(glass->getDiffuse(), osg::Color3f(0.25f, 0.5f, 1));
    EXPECT_EQ(glass->getEmission(), osg::Color3f(0, 0, 0.5f));
    EXPECT_EQ(glass->getTransparency(), 0.75f);
    const qxSurface surface = qxSurface::of(glass);
    EXPECT_EQ(surface.metallic, 0);
    EXPECT_EQ(surface.roughness, 0.125f);
    EXPECT_TRUE(surface.doubleSided);
    EXPECT_EQ(surface.alphaMode, qxSurface::Blend);
    const qxSurface leaf = qxSurface::of(material("Leaf"));
    EXPECT_EQ(leaf.alphaCutoff, 0.75f);
    EXPECT_EQ(leaf.alphaMode, qxSurface::Mask);
    EXPECT_TRUE(leaf.unlit);
    EXPECT_FALSE(surface.unlit);
    EXPECT_EQ(material("Leaf")->getTransparency(), 0.5f);
    material("Leaf")->setTransparency(0.75f);
    saveAndLoad();
    EXPECT_EQ(material("Leaf")->getTransparency(), 0.75f);
    EXPECT_EQ(qxSurface::of(material("Leaf")).alphaMode, qxSurface::Mask);
}

/// The numbers count up from 1, in the order of the file.
static void expectNumbered(const qxSurface &all)
{
    float next = 1;
    const auto expectNext = [&next](float number) { EXPECT_EQ(number, next++); };
    const auto expectColour = [&](const osg::Color3f &colour) {
        for (const float channel : {colour.red(), colour.green(), colour.blue()})
            expectNext(channel);
    };
    for (const float number : {all.metallic, all.roughness, all.alphaCutoff, all.normalScale,
                               all.occlusionStrength, all.emissiveStrength, all.ior, all.specular})
        expectNext(number);
    expectColour(all.specularColour);
    for (const float number : {all.clearcoat, all.clearcoatRoughness, all.clearcoatNormalScale})
        expectNext(number);
    expectColour(all.sheenColour);
    for (const float number :
         {all.sheenRoughness, all.transmission, all.thickness, all.attenuationDistance})
        expectNext(number);
    expectColour(all.attenuationColour);
    for (const float number :
         {all.iridescence, all.iridescenceIor, all.iridescenceThinnest, all.iridescenceThickest,
          all.anisotropy, all.anisotropyRotation, all.diffuseTransmission})
        expectNext(number);
    expectColour(all.diffuseTransmissionColour);
}

TEST_F(SceneFileMeshTest, EveryNumberOfAMaterialIsReadAndWrittenWhereItBelongs)
{
    qxJson json = sample("square");
    json["materials"] = qxJson::parse(R"([{"name": "All", "alphaMode": "MASK", "alphaCutoff": 3,
        "pbrMetallicRoughness": {"metallicFactor": 1, "roughnessFactor": 2},
        "normalTexture": {"index": 0, "scale": 4}, "occlusionTexture": {"index": 0, "strength": 5},
        "extensions": {
            "KHR_materials_emissive_strength": {"emissiveStrength": 6},
            "KHR_materials_ior": {"ior": 7},
            "KHR_materials_specular": {"specularFactor": 8, "specularColorFactor": [9, 10, 11]},
            "KHR_materials_clearcoat": {"clearcoatFactor": 12, "clearcoatRoughnessFactor": 13,
                "clearcoatNormalTexture": {"index": 0, "scale": 14}},
            "KHR_materials_sheen": {"sheenColorFactor": [15, 16, 17], "sheenRoughnessFactor": 18},
            "KHR_materials_transmission": {"transmissionFactor": 19},
            "KHR_materials_volume": {"thicknessFactor": 20, "attenuationDistance": 21,
                "attenuationColor": [22, 23, 24]},
            "KHR_materials_iridescence": {"iridescenceFactor": 25, "iridescenceIor": 26,
                "iridescenceThicknessMinimum": 27, "iridescenceThicknessMaximum": 28},
            "KHR_materials_anisotropy": {"anisotropyStrength": 29, "anisotropyRotation": 30},
            "KHR_materials_diffuse_transmission": {"diffuseTransmissionFactor": 31,
                "diffuseTransmissionColorFactor": [32, 33, 34]}}}, {"name": "Bare"}])");
    json["textures"] = {qxJson::object()};
    json["extensionsUsed"] = qxJson::array();
    json["meshes"][0]["primitives"][0]["material"] = 0;
    load(json);
    expectSaved(json);
    const qxSurface all = qxSurface::of(material("All"));
    expectNumbered(all);
    // Edited ones; what stands for a picture that is not there has no place.
    all.setTo(material("Bare"));
    qxJson expected = json["materials"][0];
    expected["name"] = "Bare";
    expected["pbrMetallicRoughness"].erase("metallicFactor"); // as it was
    expected.erase("normalTexture");
    expected.erase("occlusionTexture");
    expected["extensions"]["KHR_materials_clearcoat"].erase("clearcoatNormalTexture");
    saveAndLoad();
    const qxJson saved = jsonOf(path("saved.gltf"));
    EXPECT_EQ(qxJson::diff(saved["materials"][1], expected), qxJson::array());
    EXPECT_EQ(saved["materials"][0], json["materials"][0]);
    EXPECT_EQ(saved["extensionsUsed"].size(), 10u);
    EXPECT_EQ(qxSurface::of(material("Bare")).attenuationColour, all.attenuationColour);
}

TEST_F(SceneFileMeshTest, PicturesAreThereOnceAndBeginWithTheirBottomRow)
{
    // One pixel wide, red above blue.
    const QByteArray png = "iVBORw0KGgoAAAANSUhEUgAAAAEAAAACCAIAAAAW4yFwAAAADUlEQVR4nGP4zwAC/wEIAA"
                           "H/2ZC7NQAAAABJRU5ErkJggg==";
    qxMemoryBudget::setLimit(qxMemoryBudget::fromText("1MB"));
    loadText(R"("materials": [
        {"name": "M0", "pbrMetallicRoughness": {"baseColorTexture": {"index": 0}}},
        {"name": "M1", "pbrMetallicRoughness": {"baseColorTexture": {"index": 1, "extensions": {
         "KHR_texture_transform": {"offset": [0.5, 0.25], "rotation": 1.57079633, "scale": [2, 4]}
        }}}},
        {"name": "M2", "pbrMetallicRoughness": {"baseColorTexture": {"index": 2}}},
        {"name": "M3", "pbrMetallicRoughness": {"baseColorTexture": {"index": 3}}},
        {"name": "M4", "pbrMetallicRoughness": {"baseColorTexture": {"index": 4}}},
        {"name": "M5", "pbrMetallicRoughness": {"baseColorTexture": {"index": 5}}}],
        "textures": [{"source": 0, "sampler": 0}, {"source": 1, "sampler": 1}, {"source": 2},
                     {"source": 3}, {"source": 4}, {"source": 5}],
        "samplers": [{"wrapS": 33071, "wrapT": 33648}, {"wrapS": "x"}],
        "buffers": [{"byteLength": 70, "uri": "data:;base64,)"
             + png + R"("}], "bufferViews": [{"buffer": 0, "byteLength": 70}],
        "images": [{"bufferView": 0}, {"bufferView": 0}, {"name": "Lost", "uri": "lost.png"},
                   {"name": "Torn", "uri": "data:;base64,)"
             + png.left(60) + R"("}, {"name": "Text", "uri": "data:;base64,AAAA"},
                   {"name": "Wide", "uri": "data:;base64,)"
             + R"(iVBORw0KGgoAAAANSUhEUgAAQAAAAC7gCAIAAADrZ6vpAAAADUlEQVR4nGP4"}])");
    qxMemoryBudget::setLimit(qxMemoryBudget::fromText("2GB"));
    const auto placeOf = [this](const char *name) {
        return qxSurface::of(material(name)).pictures[qxSurface::BaseColour];
    };
    const qxSurfacePicture first = placeOf("M0");
    EXPECT_EQ(first.wrapS, osg::UInt32(GL_CLAMP_TO_EDGE));
    EXPECT_EQ(first.wrapT, osg::UInt32(GL_MIRRORED_REPEAT));
    EXPECT_EQ(first.matrix, qxSurfacePicture().matrix);
    const qxSurfacePicture second = placeOf("M1");
    EXPECT_EQ(second.wrapS, osg::UInt32(GL_REPEAT));
    // From the top of the picture, (s, t) leads to (4 t + 0.5, -2 s + 0.25).
    const float expected[] = {0, -4, 4.5f, 2, 0, 0.75f};
    for (std::size_t i = 0; i < 6; ++i)
        EXPECT_NEAR(second.matrix[i], expected[i], 1e-5f);
    const auto image = [this](const char *name) {
        return osg::SimpleTexturedMaterialPtr::dcast(material(name))->getImage();
    };
    ASSERT_NE(image("M0"), osg::NullFC);
    EXPECT_EQ(image("M0"), image("M1"));
    EXPECT_FALSE(image("M0")->isValid()) << "decoded before it is drawn";
    const QImage pixels = qxEncodedPicture::pixels(image("M0"));
    ASSERT_EQ(pixels.size(), QSize(1, 2));
    EXPECT_EQ(pixels.pixelColor(0, 0), QColor(Qt::blue)) << "below";
    EXPECT_EQ(pixels.pixelColor(0, 1), QColor(Qt::red)) << "above";
    EXPECT_EQ(osg::SimpleTexturedMaterialPtr::dcast(material("M2")), osg::NullFC);
    ASSERT_EQ(file.warnings().size(), 3);
    EXPECT_TRUE(file.warnings()[0].startsWith("image 2 \"Lost\" is left out: \"lost.png\""));
    EXPECT_EQ(file.warnings()[1], "image 4 \"Text\" is left out: it is neither PNG, JPEG nor WebP");
    EXPECT_TRUE(file.warnings()[2].startsWith("image 5 \"Wide\" is left out: 1000 MB of memory"));

    // Nothing in its header says so.
    EXPECT_EQ(qxRenderTexture::make(image("M3"), qxRenderTexture::Colours), nullptr);
    ASSERT_EQ(logged(qxLog::Warning).size(), 1u);
    EXPECT_EQ(logged(qxLog::Warning)[0].find("image 3 \"Torn\" is left out: "), 0u);
}

TEST_F(SceneFileMeshTest, WebPIsPreferredAndWhatCannotBeDecodedIsKept)
{
    const auto encoded = [](int width, const char *format) {
        QImage image(width, 1, QImage::Format_RGB32);
        image.fill(Qt::red);
        QByteArray bytes;
        QBuffer buffer(&bytes);
        EXPECT_TRUE(image.save(&buffer, format, 100));
        return bytes;
    };
    const QByteArray webp = encoded(3, "webp");
    const QByteArray ktx = QByteArray::fromHex("ab4b5458203230bb0d0a1a0a") + QByteArray(99, 'k');
    write("in/plain.png", encoded(2, "png"));
    write("in/small.webp", webp);
    write("in/torn.webp", webp.left(14));
    write("in/basis.ktx2", ktx);
    load(write("in/scene.gltf", sceneText(R"(
        "extensionsRequired": ["EXT_texture_webp", "KHR_texture_basisu"],
        "images": [{"uri": "plain.png"}, {"uri": "small.webp"}, {"uri": "torn.webp"},
                   {"uri": "basis.ktx2"}],
        "textures": [{"source": 0, "extensions": {"EXT_texture_webp": {"source": 1}}},
                     {"source": 0, "extensions": {"EXT_texture_webp": {"source": 2}}},
                     {"source": 0, "extensions": {"KHR_texture_basisu": {"source": 3}}},
                     {"extensions": {"KHR_texture_basisu": {"source": 3}}},
                     {"source": 3}],
        "materials": [
        {"name": "M0", "pbrMetallicRoughness": {"baseColorTexture": {"index": 0}}},
        {"name": "M1", "pbrMetallicRoughness": {"baseColorTexture": {"index": 1}}},
        {"name": "M2", "pbrMetallicRoughness": {"baseColorTexture": {"index": 2}}},
        {"name": "M3", "pbrMetallicRoughness": {"baseColorTexture": {"index": 3}}},
        {"name": "M4", "pbrMetallicRoughness": {"baseColorTexture": {"index": 4}}}])")));
    std::vector<int> widths;
    for (const char *name : {"M0", "M1", "M2", "M3", "M4"}) {
        const auto textured = osg::SimpleTexturedMaterialPtr::dcast(material(name));
        widths.push_back(
            textured == osg::NullFC ? 0 : qxEncodedPicture::pixels(textured->getImage()).width());
    }
    EXPECT_EQ(widths, (std::vector<int>{3, 2, 2, 0, 0}));
    ASSERT_EQ(file.warnings().size(), 3);
    EXPECT_EQ(file.warnings()[0], "what needs the extension KHR_texture_basisu is not shown");
    EXPECT_TRUE(file.warnings()[1].startsWith("image 2 is left out"));
    EXPECT_TRUE(file.warnings()[2].startsWith("image 3 is left out"));
    EXPECT_EQ(file.info().extensionsMissing, QStringList("KHR_texture_basisu"));
    save(path("out/scene.gltf"));
    EXPECT_EQ(bytesOf(path("out/basis.ktx2")), ktx);
    EXPECT_EQ(bytesOf(path("out/small.webp")), webp);
}
