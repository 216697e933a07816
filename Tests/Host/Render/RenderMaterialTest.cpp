#include "TexturedFixture.h"

#include <OpenSG/OSGImage.h>
#include <OpenSG/OSGMaterialChunk.h>
#include <OpenSG/OSGMultiPassMaterial.h>
#include <OpenSG/OSGQuaternion.h>
#include <OpenSG/OSGRefPtr.h>
#include <OpenSG/OSGSwitchMaterial.h>
#include <OpenSG/OSGTextureChunk.h>

#include <array>
#include <cmath>

class RenderMaterialTest : public TexturedFixture {
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
    const TestNode square = addTextured(material, 2);
    EXPECT_EQ(picture().at(-0.75f, -0.75f), "255 0 0");
    EXPECT_EQ(picture().at(0.25f, -0.75f), "0 255 0") << "the edge goes on";
    EXPECT_EQ(picture().at(-0.75f, 0.25f), "0 0 255") << "upside down";
    EXPECT_EQ(picture().at(-0.75f, 0.75f), "255 0 0");
    place.matrix = {0, 1, 0, 0.5f, 0, 0}; // exchanges the axes
    surface.setTo(material);
    EXPECT_EQ(picture().at(-0.75f, -0.25f), "0 255 0");
    EXPECT_EQ(picture().at(0.5f, -0.75f), "0 0 255");
    place.texCoords = 3; // of which there are none: all is the first pixel
    surface.setTo(material);
    EXPECT_EQ(picture().at(0.5f, -0.75f), picture().at(-0.75f, -0.25f));
    const auto core = osg::GeometryPtr::dcast(square.core());
    {
        const osg::CPEditor edit(core);
        core->setTexCoords3(core->getTexCoords());
    }
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

TEST_F(RenderMaterialTest, AtFlatAnglesPicturesAreAveragedAlongTheViewOnly)
{
    // A pixel is an eighth of the pattern wide, and as long as all of it.
    const TestNode tilted = scene.addTransform("Tilted");
    matrixOf(tilted).setRotate(osg::Quaternion(osg::Vec3f(1, 0, 0), -std::acos(0.125f)));
    for (const bool goesAcross : {false, true}) {
        std::vector<osg::UInt8> bytes;
        for (int pixel = 0; pixel < 64; ++pixel)
            bytes.push_back((goesAcross ? pixel / 8 : pixel % 8) < 4 ? 255 : 0);
        const osg::ImagePtr image = osg::Image::create();
        image->set(osg::Image::OSG_L_PF, 8, 8, 1, 1, 1, 0.0, bytes.data());
        const TestNode floor = addTextured(textured(GL_MODULATE, image), 6);
        floor.moveTo(tilted);
        const TestPicture seen = picture();
        int darkest = 1000, brightest = 0;
        for (int i = 0; i < 24; ++i) {
            const int brightness = seen.brightness(float(i - 12) / 24.0f, float(i % 3 - 1) / 24.0f);
            darkest = std::min(darkest, brightness);
            brightest = std::max(brightest, brightness);
        }
        if (goesAcross)
            EXPECT_LT(brightest - darkest, 120);
        else
            EXPECT_GT(brightest - darkest, 600);
        floor.remove();
    }
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

/// A picture of one pixel, and what it stands for.
struct PictureRow {
    qxSurface::PictureRole role;
    std::array<osg::UInt8, 4> pixel;
    void (*common)(qxSurface &surface);
    void (*equal)(qxSurface &surface);
};

// A list, not a procedure.
static const std::vector<PictureRow> &pictureRows()
{
    typedef qxSurface S;
    static const float half = 0.5029f; // light of the sRGB value 188
    static const float share = 100 / 255.0f;
    static const std::vector<PictureRow> rows = {
        {S::MetallicRoughness,
         {255, 100, 200, 255},
         [](S &) {},
         [](S &s) { s.metallic = 200 / 255.0f, s.roughness = share; }},
        {S::Emissive,
         {188, 188, 188, 255},
         [](S &s) { s.emissiveStrength = 0.3f; },
         [](S &s) { s.emissiveStrength = 0.3f * half; }},
        {S::Specular,
         {255, 255, 255, 100},
         [](S &s) { s.metallic = 0, s.ior = 3; },
         [](S &s) { s.specular = share; }},
        {S::SpecularColour,
         {188, 0, 255, 255},
         [](S &s) { s.metallic = 0, s.ior = 3; },
         [](S &s) { s.specularColour = osg::Color3f(half, 0, 1); }},
        {S::Clearcoat,
         {100, 255, 255, 255},
         [](S &s) { s.clearcoat = 1; },
         [](S &s) { s.clearcoat = share; }},
        {S::ClearcoatRoughness,
         {0, 100, 0, 255},
         [](S &s) { s.metallic = 0, s.clearcoat = s.clearcoatRoughness = 1; },
         [](S &s) { s.clearcoatRoughness = share; }},
        {S::SheenColour,
         {188, 0, 255, 255},
         [](S &s) { s.sheenColour = osg::Color3f(1, 1, 1), s.sheenRoughness = 0.5f; },
         [](S &s) { s.sheenColour = osg::Color3f(half, 0, 1); }},
        {S::SheenRoughness,
         {0, 0, 0, 100},
         [](S &s) { s.sheenColour = osg::Color3f(1, 1, 1), s.sheenRoughness = 1; },
         [](S &s) { s.sheenRoughness = share; }},
        {S::Transmission,
         {100, 0, 0, 255},
         [](S &s) { s.metallic = 0, s.transmission = 1; },
         [](S &s) { s.transmission = share; }},
        {S::Iridescence,
         {100, 0, 0, 255},
         [](S &s) { s.iridescence = 1; },
         [](S &s) { s.iridescence = share; }},
        {S::IridescenceThickness,
         {0, 51, 0, 255},
         [](S &s) { s.iridescence = 1; },
         [](S &s) { s.iridescenceThickest = 160; }},
        {S::DiffuseTransmission,
         {0, 0, 0, 100},
         [](S &s) { s.metallic = 0, s.diffuseTransmission = 1; },
         [](S &s) { s.diffuseTransmission = share; }},
    };
    return rows;
}

TEST_F(RenderMaterialTest, ChannelsOfPicturesAreFactorsInTheirColourSpace)
{
    typedef qxSurface S;
    addSquare(flat(0.2f, 0.9f, 0.4f), osg::Vec3f(0, 0, -1), 2);
    const TestNode squares[] = {addSquare(red, osg::Vec3f(-0.5f, 0, 0), 0.9f),
                                addSquare(red, osg::Vec3f(0.5f, 0, 0), 0.9f),
                                addSquare(red, osg::Vec3f(0.5f, 1, 0), 0.9f)};
    for (const PictureRow &row : pictureRows()) {
        qxSurface surface;
        surface.roughness = row.role == S::MetallicRoughness ? 1 : 0.4f;
        row.common(surface);
        const auto shown = [&](const TestNode &square, const qxSurface &look) {
            const osg::MaterialPtr material = lit(0.6f, 0.5f, 0.4f, look);
            if (row.role == S::Emissive)
                osg::SimpleMaterialPtr::dcast(material)->setEmission(
                    osg::Color3f(0.2f, 0.2f, 0.2f));
            qxNodeUtils::setMaterial(square, material, false, false);
        };
        shown(squares[2], surface);
        surface.pictures[row.role].image = osg::Image::create();
        surface.pictures[row.role].image->set(osg::Image::OSG_RGBA_PF, 1, 1, 1, 1, 1, 0.0,
                                              row.pixel.data());
        shown(squares[0], surface);
        surface.pictures[row.role].image = osg::ImagePtr();
        row.equal(surface);
        shown(squares[1], surface);
        const TestPicture seen = picture();
        EXPECT_NEAR(seen.brightness(-0.5f, 0), seen.brightness(0.5f, 0), 3) << row.role;
        EXPECT_NE(seen.at(-0.5f, 0), seen.at(0.5f, 0.9f)) << row.role << " changes nothing";
    }
}

TEST_F(RenderMaterialTest, PicturesOfNormalsBendTheSurface)
{
    const TestNode turned = scene.addTransform("Turned");
    TestNode(addSun(2)).moveTo(turned);
    const auto shown = [&](std::array<osg::UInt8, 4> normal, float scale, bool fromBehind) {
        const auto material = osg::SimpleMaterialPtr::dcast(lit(0.5f, 0.5f, 0.5f));
        qxSurface surface;
        surface.metallic = 0;
        surface.doubleSided = true;
        surface.normalScale = scale;
        const osg::ImagePtr image = osg::Image::create();
        image->set(osg::Image::OSG_RGBA_PF, 1, 1, 1, 1, 1, 0.0, normal.data());
        surface.pictures[qxSurface::Normal].image = image;
        surface.setTo(material);
        const TestNode holder = scene.addTransform("Holder");
        if (fromBehind)
            matrixOf(holder).setScale(-1, 1, -1);
        addTextured(material, 1).moveTo(holder);
        const int result = picture().brightness(0.2f, -0.3f);
        holder.remove();
        return result;
    };
    const std::array<osg::UInt8, 4> flat = {128, 128, 255, 255}, right = {218, 128, 218, 255},
                                    up = {128, 218, 218, 255};
    for (const bool fromAbove : {false, true}) {
        matrixOf(turned).setRotate(fromAbove ? osg::Quaternion(osg::Vec3f(1, 0, 0), -0.9f)
                                             : osg::Quaternion(osg::Vec3f(0, 1, 0), 0.9f));
        const auto &towards = fromAbove ? up : right;
        const int plain = shown(flat, 1, false);
        EXPECT_GT(shown(towards, 1, false), plain + 20) << fromAbove;
        EXPECT_LT(shown(towards, -1, false), plain - 20) << fromAbove;
        // What is a bump from the front is a dent from behind; left and right are exchanged.
        if (fromAbove)
            EXPECT_LT(shown(towards, 1, true), plain - 20);
        else
            EXPECT_GT(shown(towards, 1, true), plain + 20);
    }
}
