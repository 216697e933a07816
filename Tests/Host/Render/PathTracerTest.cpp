#include "Light/qxEnvironmentLight.h"
#include "Render/qxPictureColour.h"
#include "Render/qxSampler.h"
#include "Render/qxShading.h"
#include "RenderFixture.h"

#include <OpenSG/OSGQuaternion.h>
#include <OpenSG/OSGSimpleGeometry.h>

/// Pictures in best quality, in the light of an environment alone.
class PathTracerTest : public RenderFixture {
protected:
    PathTracerTest()
    {
        settings.quality = 32;
        settings.view.background = qxViewSettings::Environment;
    }
    template <class Light>
    void surround(const Light &light)
    {
        qxLightPicture picture(64, 32);
        for (int y = 0; y < picture.height; ++y) {
            for (int x = 0; x < picture.width; ++x)
                picture.at(x, y) = light(x, y);
        }
        settings.view.environment = std::make_shared<qxEnvironmentLight>(picture);
    }
    /// A box that stands askew.
    void addBox(const osg::MaterialPtr &material, const osg::Vec3f &size, const osg::Vec3f &middle)
    {
        const osg::GeometryPtr core = osg::makeBoxGeo(size[0], size[1], size[2], 1, 1, 1);
        core->setMaterial(material);
        const TestNode place = scene.addTransform("Place");
        matrixOf(place).setTransform(middle, osg::Quaternion(osg::Vec3f(0.6f, 0.8f, 0), 0.6f));
        addNode(core, place);
    }
    /// The mean of the brightness around the middle.
    float mean(const TestPicture &picture) const
    {
        float sum = 0;
        for (int i = 0; i < 81; ++i)
            sum += float(picture.brightness(float(i % 9 - 4) * 0.05f, float(i / 9 - 4) * 0.05f));
        return sum / 81;
    }
};

TEST_F(PathTracerTest, WhiteBodiesInEvenLightAreNotToBeSeen)
{
    surround([](int, int) { return osg::Vec3f(0.5f, 0.5f, 0.5f); });
    const float light = mean(picture());
    const struct {
        float metallic;
        float roughness;
        float transmission;
        float thickness;
        float tolerance;
    } rows[] = {{0, 1, 0, 0, 12},    {0, 0.3f, 0, 0, 12}, {0, 0.1f, 0, 0, 12}, {1, 0, 0, 0, 3},
                {1, 0.3f, 0, 0, 12}, {0, 0, 1, 0, 24},    {0, 0, 1, 1, 12}};
    const osg::MaterialPtr material = lit(1, 1, 1);
    addBox(material, osg::Vec3f(1.2f, 1.2f, 1.2f), osg::Vec3f(0, 0, 0));
    // With a valley, in which light goes to and fro.
    addBox(material, osg::Vec3f(0.4f, 2, 0.4f), osg::Vec3f(-0.6f, 0, 0.8f));
    for (const auto &row : rows) {
        qxSurface surface;
        surface.metallic = row.metallic;
        surface.roughness = row.roughness;
        surface.transmission = row.transmission;
        surface.thickness = row.thickness;
        surface.setTo(material);
        EXPECT_NEAR(mean(picture()), light, row.tolerance)
            << row.metallic << ' ' << row.roughness << ' ' << row.thickness;
    }
}

TEST_F(PathTracerTest, LightComesAsBothWaysOfLookingForItTell)
{
    // A small lamp, of which turning rays find little, in even light, where lamps are asked seldom.
    surround([](int x, int y) {
        return osg::Vec3f(0.2f, 0.2f, 0.2f) * (x > 40 && x < 46 && y < 10 && y > 6 ? 60.0f : 1.0f);
    });
    const osg::MaterialPtr material = lit(0.5f, 0.5f, 0.5f);
    addSquare(material, osg::Vec3f(0, 0, 0), 4);
    const qxEnvironmentLight &sky = *settings.view.environment;
    for (const float roughness : {0.25f, 0.5f, 1.0f}) {
        qxSurface surface;
        surface.metallic = 0.5f;
        surface.roughness = roughness;
        surface.setTo(material);
        qxShading::Surface wall;
        wall.base = osg::Vec3f(0.5f, 0.5f, 0.5f);
        wall.metallic = 0.5f;
        wall.roughness = roughness;
        wall.normal = osg::Vec3f(0, 0, 1);
        const qxShading shading(wall, osg::Vec3f(0, 0, 1));
        osg::Vec3f turned, asked;
        const std::uint32_t count = 60000;
        for (std::uint32_t i = 0; i < count; ++i) {
            qxSampler sampler(i, 0);
            const float choice = sampler.next();
            const qxShading::Bounce bounce = shading.bounce(choice, sampler.nextPair());
            turned += qxProduct(bounce.share, sky.light(bounce.direction)) * (1.0f / count);
            const qxEnvironmentLight::Sample sample = sky.sample(sampler.nextPair());
            asked += qxProduct(shading.reflected(sample.direction), sample.light)
                * (1.0f / sample.density / count);
        }
        const auto shown = [](const osg::Vec3f &light) {
            const osg::Vec3f colour = qxShownColour(qxToneMapped(light));
            return 255.0f * (colour[0] + colour[1] + colour[2]);
        };
        const float found = mean(picture());
        EXPECT_NEAR(found, shown(turned), 12) << roughness;
        EXPECT_NEAR(found, shown(asked), 12) << roughness;
    }
}

TEST_F(PathTracerTest, LightGoesFromSurfaceToSurfaceAsOftenAsItNeeds)
{
    surround([](int, int) { return osg::Vec3f(0.5f, 0.5f, 0.5f); });
    qxSurface mirror;
    mirror.metallic = 1;
    mirror.roughness = 0;
    mirror.doubleSided = true;
    // Down a shaft of mirrors to a glowing ground: some ten turns.
    const osg::MaterialPtr silver = lit(1, 1, 1, mirror);
    const auto ground = osg::SimpleMaterialPtr::dcast(lit(0, 0, 0));
    ground->setEmission(osg::Color3f(0, 0.5f, 0));
    addSquare(ground, osg::Vec3f(0, 0, -40), 200);
    const float r = 0.9f;
    const osg::GeometryPtr shaft = trianglesOf({{-r, -2, 2},
                                                {-r, -2, -38},
                                                {-r, 2, -38},
                                                {-r, -2, 2},
                                                {-r, 2, -38},
                                                {-r, 2, 2},
                                                {r, -2, 2},
                                                {r, -2, -38},
                                                {r, 2, -38},
                                                {r, -2, 2},
                                                {r, 2, -38},
                                                {r, 2, 2}});
    shaft->setMaterial(silver);
    addNode(shaft);
    camera.toWorld.setRotate(osg::Quaternion(osg::Vec3f(0, 1, 0), -0.4f));
    camera.toWorld[3] = osg::Vec4f(-0.2f, 0, 0, 1);
    camera.height = 0.2f;
    const TestPicture seen = picture();
    const std::string colour = seen.at(0, 0);
    EXPECT_EQ(colour.substr(0, 2), "0 ") << colour;
    EXPECT_GT(seen.brightness(0, 0), 120) << colour;
}

TEST_F(PathTracerTest, WhatLacquerReflectsStaysSharpHoweverNoisyTheColourBelow)
{
    surround([](int x, int y) {
        return osg::Vec3f(1, 1, 1) * (x % 16 == 4 && y == 10 ? 400.0f : 0.05f);
    });
    settings.quality = qxPictureSettings::Best;
    qxSurface lacquer;
    lacquer.metallic = lacquer.roughness = 0;
    lacquer.doubleSided = true;
    const osg::GeometryPtr wall = trianglesOf({{-4, -4, 4}, {4, -4, -4}, {0, 8, 0}});
    wall->setMaterial(lit(0.4f, 0.1f, 0.1f, lacquer));
    addNode(wall);
    const auto glow = osg::SimpleMaterialPtr::dcast(lit(0, 0, 0));
    glow->setEmission(osg::Color3f(1, 1, 1));
    const osg::GeometryPtr lamp = trianglesOf({{3, 0, -9}, {3, 0, 9}, {3, 9, 0}});
    lamp->setMaterial(glow);
    addNode(lamp);
    const TestPicture seen = picture();
    const auto step = [&seen](float y) { return seen.brightness(0, y) - seen.brightness(0, -y); };
    EXPECT_GT(step(0.3f), 15);
    EXPECT_GT(step(0.06f), 0.7f * float(step(0.3f)));
}

TEST_F(PathTracerTest, GlassTintsShadowsAndABodyOfItShiftsWhatIsBehind)
{
    surround([](int, int) { return osg::Vec3f(0.05f, 0.05f, 0.05f); });
    qxSurface glass;
    glass.metallic = glass.roughness = 0;
    glass.transmission = 1;
    addMattWall(-1);
    addSun(3);
    addSquare(lit(0.9f, 0.1f, 0.1f, glass), osg::Vec3f(0, 0, 20), 1); // behind the camera
    const std::string tinted = picture().at(0, 0);
    const int reds = std::stoi(tinted);
    EXPECT_GT(reds, 2 * std::stoi(tinted.substr(tinted.find(' ')))) << tinted;

    addSquare(red, osg::Vec3f(-1, 0, -0.9f), 2);
    addSquare(green, osg::Vec3f(1, 0, -0.9f), 2);
    const osg::MaterialPtr clear = lit(1, 1, 1, glass);
    addBox(clear, osg::Vec3f(1.2f, 1.2f, 1.2f), osg::Vec3f(0, 0, 1));
    const auto seen = [&](float x) { return picture().at(x, 0); };
    const std::string left = seen(-0.08f), right = seen(0.08f);
    EXPECT_GT(std::stoi(left), std::stoi(right) + 60) << "a thin wall shifts nothing";
    glass.thickness = 1;
    glass.setTo(clear);
    EXPECT_LT(std::abs(std::stoi(seen(-0.08f)) - std::stoi(seen(0.08f))), 60)
        << "both are on one side of the edge";
}
