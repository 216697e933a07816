#include "RenderFixture.h"

#include <OpenSG/OSGImage.h>
#include <OpenSG/OSGMaterialChunk.h>
#include <OpenSG/OSGMultiPassMaterial.h>
#include <OpenSG/OSGRefPtr.h>
#include <OpenSG/OSGSimpleTexturedMaterial.h>
#include <OpenSG/OSGSwitchMaterial.h>
#include <OpenSG/OSGTextureChunk.h>

class RenderMaterialTest : public RenderFixture {
protected:
    static qxSurface surface(qxSurface::AlphaMode mode)
    {
        qxSurface result;
        result.alphaMode = mode;
        return result;
    }
    osg::MaterialPtr translucent(float r, float g, float b, float transparency)
    {
        const osg::MaterialPtr material = flat(r, g, b, surface(qxSurface::Blend));
        osg::SimpleMaterialPtr::dcast(material)->setTransparency(transparency);
        return material;
    }
    /// Red and green in the lower half, blue and a colour of half alpha in the upper one.
    static osg::ImagePtr fourFields()
    {
        const osg::UInt8 fields[4][4] = {
            {255, 0, 0, 255}, {0, 255, 0, 255}, {0, 0, 255, 255}, {90, 60, 30, 127}};
        std::vector<osg::UInt8> bytes;
        for (int pixel = 0; pixel < 64; ++pixel) {
            const osg::UInt8 *field = fields[pixel / 32 * 2 + pixel % 8 / 4];
            bytes.insert(bytes.end(), field, field + 4);
        }
        const osg::ImagePtr image = osg::Image::create();
        image->set(osg::Image::OSG_RGBA_PF, 8, 8, 1, 1, 1, 0.0, bytes.data());
        return image;
    }
    /// The whole picture, with texture coordinates from 0 to `r`.
    TestNode addTextured(const osg::MaterialPtr &material, float r)
    {
        const TestNode square = addSquare(material, osg::Vec3f(0, 0, 0), 2);
        const auto core = osg::GeometryPtr::dcast(square.core());
        const auto places = osg::GeoTexCoords2f::create();
        for (const osg::Vec2f &place : {osg::Vec2f(0, 0), osg::Vec2f(r, 0), osg::Vec2f(r, r),
                                        osg::Vec2f(0, 0), osg::Vec2f(r, r), osg::Vec2f(0, r)})
            places->push_back(place);
        const osg::CPEditor edit(core);
        core->setTexCoords(places);
        return square;
    }
    static osg::MaterialPtr textured(osg::UInt32 mode, const osg::ImagePtr &image)
    {
        const auto material = osg::SimpleTexturedMaterial::create();
        const osg::CPEditor edit(material); // the material takes its reference at the end
        material->setDiffuse(osg::Color3f(1, 1, 1));
        material->setLit(false);
        material->setImage(image);
        material->setEnvMode(mode);
        return material;
    }
};

TEST_F(RenderMaterialTest, ASwitchMaterialShowsItsChosenOneAndFollowsIt)
{
    const auto choices = osg::SwitchMaterial::create();
    choices->addMaterial(red);
    choices->addMaterial(green);
    addSquare(choices, osg::Vec3f(0, 0, 0), 1);
    EXPECT_EQ(picture().at(0, 0), "255 0 0");
    choices->setChoice(1);
    EXPECT_EQ(picture().at(0, 0), "0 255 0");
    osg::SimpleMaterialPtr::dcast(green)->setDiffuse(osg::Color3f(0, 1, 1));
    EXPECT_EQ(picture().at(0, 0), "0 255 255");
}

TEST_F(RenderMaterialTest, TheOutermostMaterialGroupThatIsNotIgnoredWins)
{
    const TestNode outer = scene.addMaterialGroup("Outer", red);
    const TestNode inner = scene.addMaterialGroup("Inner", green, outer);
    addSquare(blue, osg::Vec3f(0, 0, 0), 1, inner);
    EXPECT_EQ(picture().at(0, 0), "255 0 0");
    qxMaterials::setIgnoreMaterialGroup(outer, true);
    EXPECT_EQ(picture().at(0, 0), "0 255 0");
    qxMaterials::setIgnoreMaterialGroup(outer, false);
    qxNodeUtils::setMaterial(outer, osg::NullFC, false, false);
    EXPECT_EQ(picture().at(0, 0), "0 255 0");
    qxNodeUtils::setMaterial(inner, osg::NullFC, false, false);
    EXPECT_EQ(picture().at(0, 0), "0 0 255");
}

TEST_F(RenderMaterialTest, PassesLieOnTopOfEachOther)
{
    const auto passes = osg::MultiPassMaterial::create();
    passes->addMaterial(red);
    passes->addMaterial(green);
    passes->addMaterial(translucent(0, 0, 1, 0.5f));
    addSquare(passes, osg::Vec3f(0, 0, 0), 1);
    EXPECT_EQ(picture().at(0, 0), "0 188 188");
}

TEST_F(RenderMaterialTest, MaterialsThatHoldThemselvesAreStillShownSoon)
{
    std::vector<osg::RefPtr<osg::MultiPassMaterialPtr>> crowd;
    for (int i = 0; i < 40; ++i)
        crowd.emplace_back(osg::MultiPassMaterial::create());
    for (const auto &one : crowd) {
        one->addMaterial(one.get());
        one->addMaterial(one.get());
        one->addMaterial(green);
        for (const auto &other : crowd)
            one->addMaterial(other.get());
    }
    addSquare(crowd.front().get(), osg::Vec3f(0, 0, 0), 1);
    EXPECT_EQ(picture().at(0, 0), "0 255 0");
    for (const auto &one : crowd) { // now nothing holds itself any more
        while (!one->getMaterials().empty())
            one->subMaterial(one->getMaterials()[0]);
    }
}

TEST_F(RenderMaterialTest, TranslucentSurfacesMixWithWhatIsBehind)
{
    addSquare(green, osg::Vec3f(0, 0, -1), 2);
    addSquare(translucent(1, 0, 0, 0.5f), osg::Vec3f(0, 0, 0), 1);
    EXPECT_EQ(picture().at(0, 0), "188 188 0");
    addSquare(translucent(0, 0, 1, 1), osg::Vec3f(0, 0, 1), 1);
    EXPECT_EQ(picture().at(0, 0), "188 188 0");
}

TEST_F(RenderMaterialTest, ASurfaceThatBecomesTranslucentNoLongerThrowsAFullShadow)
{
    addMattWall(0);
    addSun(2);
    addSquare(red, osg::Vec3f(0, 0, 20), 1);
    const int full = picture().brightness(0, 0);
    surface(qxSurface::Blend).setTo(red);
    osg::SimpleMaterialPtr::dcast(red)->setTransparency(0.5f);
    EXPECT_GT(picture().brightness(0, 0), full + 50);
    EXPECT_LT(picture().brightness(0, 0), picture().brightness(0, 0.8f) - 50);
}

TEST_F(RenderMaterialTest, OneSidedSurfacesAreNotSeenFromBehind)
{
    const TestNode turned = scene.addTransform("Turned");
    matrixOf(turned).setScale(-1, 1, -1);
    addSquare(red, osg::Vec3f(0.5f, 0, 0), 0.9f, turned);
    addSquare(flat(0, 1, 0, bothSides), osg::Vec3f(-0.5f, 0, 0), 0.9f, turned);
    EXPECT_EQ(picture().halves(), "0 0 0, 0 255 0");
    matrixOf(turned).setScale(-1, 1, 1); // a mirror
    EXPECT_EQ(picture().halves(), "255 0 0, 0 255 0");
}

TEST_F(RenderMaterialTest, TexturesAreShownAsTheirModeSaysAndAsTheyAreNowBottomRowFirst)
{
    const osg::ImagePtr image = fourFields();
    const TestNode square = addTextured(textured(GL_MODULATE, image), 1);
    addSquare(green, osg::Vec3f(0, 0, -1), 2);
    const TestPicture seen = picture();
    EXPECT_EQ(seen.at(-0.5f, -0.5f), "255 0 0");
    EXPECT_EQ(seen.at(0.5f, -0.5f), "0 255 0");
    EXPECT_EQ(seen.at(-0.5f, 0.5f), "0 0 255");
    EXPECT_EQ(seen.at(0.5f, 0.5f), "90 60 30"); // its alpha means nothing to an opaque material
    {
        const osg::CPEditor edit(image);
        image->clear(255);
    }
    EXPECT_EQ(picture().at(-0.5f, -0.5f), "255 255 255");
    qxNodeUtils::setMaterial(square, textured(GL_DECAL, fourFields()), false, false);
    EXPECT_EQ(picture().at(0.5f, 0.5f), "196 192 189");
}

TEST_F(RenderMaterialTest, AMaskShowsWhatIsOpaqueEnough)
{
    const osg::MaterialPtr material = textured(GL_MODULATE, fourFields());
    addTextured(material, 1);
    qxSurface masked = surface(qxSurface::Mask);
    masked.unlit = true;
    masked.alphaCutoff = 0.6f;
    masked.setTo(material);
    EXPECT_EQ(picture().at(0.5f, 0.5f), "0 0 0");
    EXPECT_EQ(picture().at(-0.5f, -0.5f), "255 0 0");
    masked.alphaCutoff = 0.4f;
    masked.setTo(material);
    EXPECT_EQ(picture().at(0.5f, 0.5f), "90 60 30");
    osg::SimpleMaterialPtr::dcast(material)->setTransparency(0.5f);
    EXPECT_EQ(picture().at(0.5f, 0.5f), "0 0 0");
    EXPECT_EQ(picture().at(-0.5f, -0.5f), "255 0 0");
}

TEST_F(RenderMaterialTest, APictureGoesOnAsItsSurfaceSays)
{
    const osg::MaterialPtr material = textured(GL_REPLACE, fourFields());
    qxSurface surface;
    qxSurfacePicture &place = surface.pictures[qxSurface::BaseColour];
    place.wrapS = GL_CLAMP_TO_EDGE;
    place.wrapT = GL_MIRRORED_REPEAT;
    surface.setTo(material);
    addTextured(material, 2);
    EXPECT_EQ(picture().at(-0.75f, -0.75f), "255 0 0");
    EXPECT_EQ(picture().at(0.25f, -0.75f), "0 255 0") << "the edge goes on";
    EXPECT_EQ(picture().at(-0.75f, 0.25f), "0 0 255") << "upside down";
    EXPECT_EQ(picture().at(-0.75f, 0.75f), "255 0 0");
    place.matrix = {0, 1, 0, 0.5f, 0, 0}; // exchanges the axes
    surface.setTo(material);
    EXPECT_EQ(picture().at(-0.75f, -0.25f), "0 255 0");
    EXPECT_EQ(picture().at(0.5f, -0.75f), "0 0 255");
}

TEST_F(RenderMaterialTest, PatternsSmallerThanThePixelsAreAveraged)
{
    addTextured(textured(GL_MODULATE, fourFields()), 300);
    for (const int quality : {0, 4}) {
        settings.quality = quality;
        const TestPicture seen = picture();
        for (const float x : {-0.9f, -0.33f, 0.1f, 0.77f}) {
            const int average = 143 + 140 + 138; // of the light of the four fields
            EXPECT_NEAR(seen.brightness(x, x * 0.7f), average, 8) << quality << " at " << x;
        }
    }
    settings.quality = 0;
    camera.height = 2.0f / 300.0f; // so near that one pattern fills the picture
    const float nearest = 0.25f / 150.0f;
    camera.toWorld.setTranslate(-1 + 2 * nearest, -1 + 2 * nearest, 10);
    EXPECT_EQ(picture().at(-0.5f, -0.5f), "255 0 0");
    EXPECT_EQ(picture().at(0.5f, -0.5f), "0 255 0");
}

TEST_F(RenderMaterialTest, ChunksGiveColourPictureAndWrap)
{
    const auto chunk = osg::TextureChunk::create();
    osg::ImagePtr image = fourFields();
    chunk->setImage(image);
    chunk->setWrapS(GL_CLAMP_TO_EDGE);
    chunk->setEnvMode(GL_REPLACE);
    const auto material = osg::ChunkMaterial::create();
    material->addChunk(osg::MaterialChunk::create());
    material->addChunk(chunk);
    addTextured(material, 4);
    // Four rows repeat upwards; to the right the last column goes on.
    EXPECT_EQ(picture().at(0.8f, -0.875f), "0 255 0");
    EXPECT_EQ(picture().at(0.8f, -0.375f), "0 255 0");
}
