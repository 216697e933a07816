#include "Light/qxEnvironmentLight.h"
#include "Render/qxPictureColour.h"
#include "RenderFixture.h"

#include <OpenSG/OSGQuaternion.h>

#include <gtest/gtest.h>

namespace {

const std::vector<osg::Vec3f> directions{{0, 1, 0},
                                         {0, -1, 0},
                                         {1, 0, 0},
                                         {-1, 0, 0.001f},
                                         {0.6f, 0, 0.8f},
                                         {0.48f, 0.6f, -0.64f},
                                         {-0.36f, 0.8f, 0.48f},
                                         {0, -0.6f, -0.8f}};

qxLightPicture constant(const osg::Vec3f &light)
{
    qxLightPicture picture(64, 32);
    std::fill(picture.light.begin(), picture.light.end(), light);
    return picture;
}

/// Grey, with one small and very bright pixel in that direction.
qxLightPicture withLamp(const osg::Vec3f &direction)
{
    qxLightPicture picture = constant(osg::Vec3f(0.1f, 0.1f, 0.1f));
    const osg::Vec2f place = qxLightPicture::placeOf(direction);
    picture.at(int(place[0] * 64), int(place[1] * 32)) = osg::Vec3f(500, 400, 300);
    return picture;
}

/// The sum over all directions, each with its share of them.
template <class Function>
double integral(const Function &function)
{
    const int rows = 400;
    double sum = 0;
    for (int y = 0; y < rows; ++y) {
        for (int x = 0; x < 2 * rows; ++x) {
            const osg::Vec2f place((float(x) + 0.5f) / float(2 * rows),
                                   (float(y) + 0.5f) / float(rows));
            const double solidAngle = std::sin(double(place[1]) * M_PI) * M_PI * M_PI / rows / rows;
            sum += double(function(qxLightPicture::directionOf(place))) * solidAngle;
        }
    }
    return sum;
}

std::vector<std::pair<const char *, qxEnvironmentLight>> environments()
{
    qxLightPicture wrong = constant(osg::Vec3f(-1, std::nanf(""), INFINITY));
    return {{"studio", qxEnvironmentLight::studio()},
            {"lamp", qxEnvironmentLight(withLamp(osg::Vec3f(0.6f, 0.5f, -0.62f)))},
            {"lamp above", qxEnvironmentLight(withLamp(osg::Vec3f(0, 1, 0))).turned(77)},
            {"dark", qxEnvironmentLight(constant(osg::Vec3f()))},
            {"not finite", qxEnvironmentLight(wrong)},
            {"empty", qxEnvironmentLight(qxLightPicture())}};
}

} // namespace

TEST(EnvironmentLightTest, TheSameLightFromEverywhereIsTheSameOnEverySurface)
{
    const osg::Vec3f grey(0.5f, 0.25f, 2);
    const qxEnvironmentLight light = qxEnvironmentLight(constant(grey * 2)).scaled(0.5f).turned(33);
    for (const osg::Vec3f &direction : directions) {
        EXPECT_LT((light.light(direction) - grey).length(), 1e-5f);
        EXPECT_LT((light.scattered(direction) - grey).length(), 1e-4f);
        for (const float roughness : {0.0f, 0.03f, 0.2f, 0.51f, 1.0f, 2.0f})
            EXPECT_LT((light.mirrored(direction, roughness) - grey).length(), 1e-4f) << roughness;
    }
    EXPECT_LT(light.key().light.length(), 1e-5f);
}

TEST(EnvironmentLightTest, RandomDirectionsComeAsOftenAsTheirDensitySays)
{
    for (const auto &[name, light] : environments()) {
        const qxEnvironmentLight &one = light;
        EXPECT_NEAR(integral([&](const osg::Vec3f &d) { return one.density(d); }), 1.0, 0.02)
            << name;
        const osg::Vec3f normal(0.6f, 0.48f, -0.64f);
        osg::Vec3f sum;
        const int count = 4096;
        for (int i = 0; i < count; ++i) {
            const auto sample = one.sample(
                osg::Vec2f((float(i) + 0.37f) / count, std::fmod(float(i) * 0.618034f, 1.0f)));
            ASSERT_NEAR(sample.direction.length(), 1.0f, 1e-4f) << name;
            EXPECT_NEAR(sample.density, one.density(sample.direction),
                        1e-3f * sample.density + 1e-4f)
                << name;
            EXPECT_LE((sample.light - one.light(sample.direction)).length(),
                      0.02f * sample.light.length() + 1e-4f)
                << name;
            sum += sample.light
                * (std::max(normal.dot(sample.direction), 0.0f) / sample.density / count);
        }
        // What arrives by random directions is what a white surface scatters.
        const float scattered = one.scattered(normal)[1];
        EXPECT_NEAR(sum[1] / qxPi, scattered, 0.04f * scattered + 1e-4f) << name;
        EXPECT_NEAR(integral([&](const osg::Vec3f &d) {
                        return one.light(d)[1] * std::max(normal.dot(d), 0.0f) / qxPi;
                    }),
                    double(scattered), 0.05 * double(scattered) + 1e-4)
            << name;
    }
}

TEST(EnvironmentLightTest, ThePictureLooksAlongXAndTurnsToTheLeft)
{
    qxLightPicture picture(64, 32);
    picture.at(32, 15) = picture.at(32, 16) = osg::Vec3f(1, 0, 0); // the middle
    picture.at(48, 16) = osg::Vec3f(0, 1, 0); // right of it
    picture.at(10, 0) = osg::Vec3f(0, 0, 1); // above
    const qxEnvironmentLight light(picture);
    EXPECT_GT(light.light(osg::Vec3f(1, 0, 0))[0], 0.2f);
    EXPECT_GT(light.light(osg::Vec3f(0, -0.03f, 1))[1], 0.2f);
    EXPECT_GT(light.mirrored(osg::Vec3f(0, 1, 0), 0.3f)[2], 0.0f);
    EXPECT_GT(light.turned(90).light(osg::Vec3f(0, 0, -1))[0], 0.2f);
    EXPECT_GT(light.turned(30).turned(60).sample(osg::Vec2f(0.5f, 0.5f)).light.length(), 0.1f);
}

TEST(EnvironmentLightTest, TheKeyIsTheBrightestPartAndNoMoreThanAll)
{
    for (const auto &[name, light] : environments()) {
        const auto key = light.key();
        EXPECT_LE(key.light[1], light.scattered(key.direction)[1] * 1.01f + 1e-5f) << name;
    }
    const osg::Vec3f towards(0.6f, 0.5f, -0.62f);
    const auto key = qxEnvironmentLight(withLamp(towards)).turned(120).turned(-120).key();
    EXPECT_GT(key.direction.dot(qxUnit(towards)), 0.99f);
    EXPECT_GT(key.light[0], key.light[2]);
}

TEST(PictureColourTest, TheToneCurveHasItsFixedPoints)
{
    const auto grey = [](float light) { return qxToneMapped(osg::Vec3f(light, light, light))[1]; };
    for (const auto &[light, shown] : {std::pair(0.0f, 0.0f),
                                       {0.04f, 0.01f}, // squared below 0.08
                                       {0.08f, 0.04f},
                                       {0.5f, 0.46f},
                                       {0.8f, 0.76f}, // compressed above
                                       {1.04f, 0.88f},
                                       {1e6f, 1.0f}})
        EXPECT_NEAR(grey(light), shown, 1e-4f) << light;
    const osg::Vec3f red = qxToneMapped(osg::Vec3f(0.7f, 0.2f, 0.1f));
    EXPECT_LT((red - osg::Vec3f(0.66f, 0.16f, 0.06f)).length(), 1e-5f) << "hues stay";
    EXPECT_GT(qxToneMapped(osg::Vec3f(50, 1, 0))[1], 0.5f) << "what is too bright becomes white";
}

class ViewSettingsTest : public RenderFixture {
protected:
    /// Of the middle and of a corner.
    std::string alphas()
    {
        const std::vector<std::uint8_t> rgba = picture().bytes();
        return std::to_string(rgba[(24 * 48 + 24) * 4 + 3]) + ' ' + std::to_string(rgba[3]);
    }
};

TEST_F(ViewSettingsTest, WithoutABackgroundThePictureIsAsTransparentAsTheScene)
{
    const osg::MaterialPtr material = flat(1, 0, 0);
    addSquare(material, osg::Vec3f(0, 0, 0), 1);
    EXPECT_EQ(alphas(), "255 255");
    settings.view.background = qxViewSettings::None;
    for (const int quality : {0, 4}) {
        settings.quality = quality;
        EXPECT_EQ(alphas(), "255 0");
        EXPECT_EQ(picture().at(0, 0), "255 0 0");
    }
    qxSurface blended;
    blended.alphaMode = qxSurface::Blend;
    blended.unlit = true;
    blended.setTo(material);
    osg::SimpleMaterialPtr::dcast(material)->setTransparency(0.6f);
    EXPECT_EQ(alphas(), "102 0");
    EXPECT_EQ(picture().at(0, 0), "255 0 0") << "not darker for being translucent";
}

TEST_F(ViewSettingsTest, ExposureAndEnvironmentChangeWhatIsLitAndNothingElse)
{
    addSquare(lit(0.5f, 0.5f, 0.5f), osg::Vec3f(-0.5f, 0, 0), 0.9f);
    addSquare(flat(0.2f, 0.5f, 1), osg::Vec3f(0.5f, 0, 0), 0.9f);
    for (const int quality : {0, 4}) {
        settings.quality = quality;
        settings.view = qxViewSettings();
        settings.view.background = qxViewSettings::Plain;
        settings.view.plainColour = osg::Color3f(0.2f, 0.4f, 1);
        const auto check = [&](int more, int less) {
            const TestPicture seen = picture();
            EXPECT_GE(seen.brightness(-0.5f, 0), more) << quality;
            EXPECT_LT(seen.brightness(-0.5f, 0), less);
            EXPECT_EQ(seen.at(0.5f, 0), "124 188 255");
            EXPECT_EQ(seen.at(0, 0.9f), "51 102 255");
            return seen.brightness(-0.5f, 0);
        };
        const int normal = check(150, 700);
        settings.view.exposure = 1;
        check(normal + 30, 766);
        settings.view.exposure = -2;
        check(0, normal - 100);
        settings.view.exposure = 0;
        settings.view.environment =
            std::make_shared<const qxEnvironmentLight>(constant(osg::Vec3f(0.1f, 0.1f, 0.1f)));
        check(10, normal - 100);
    }
}

TEST_F(ViewSettingsTest, TheGroundDarkensTheBackgroundBelowAndOnlyWhereTheSceneHasNoFloor)
{
    const auto box = [this](const osg::Vec3f &middle, const osg::Vec3f &size) {
        const TestNode place = scene.addTransform("Place");
        matrixOf(place).setTransform(middle, osg::Quaternion(), size);
        const std::vector<osg::Pnt3f> c{{-1, 0, -1}, {1, 0, -1}, {1, 0, 1}, {-1, 0, 1},
                                        {-1, 1, -1}, {1, 1, -1}, {1, 1, 1}, {-1, 1, 1}};
        const osg::GeometryPtr core =
            trianglesOf({c[0], c[1], c[2], c[0], c[2], c[3], c[4], c[6], c[5], c[4], c[7], c[6],
                         c[3], c[2], c[6], c[3], c[6], c[7], c[0], c[5], c[1], c[0], c[4], c[5]});
        core->setMaterial(red);
        addNode(core, place);
        return place;
    };
    box(osg::Vec3f(0, 0, 0), osg::Vec3f(0.3f, 0.4f, 0.3f));
    settings.view.gradientTop = settings.view.gradientBottom = osg::Color3f(1, 1, 1);
    camera.toWorld.setIdentity();
    camera.toWorld.setRotate(osg::Quaternion(osg::Vec3f(1, 0, 0), -0.6f));
    camera.toWorld.setTranslate(0, 5.65f, 8.25f);
    for (const int quality : {0, 4}) {
        settings.quality = quality;
        settings.view.ground = qxViewSettings::NoGround;
        EXPECT_EQ(picture().at(0, -0.27f), "255 255 255");
        settings.view.ground = qxViewSettings::GroundWhereMissing;
        EXPECT_LT(picture().brightness(0, -0.27f), 740);
        EXPECT_EQ(picture().at(0, 0.98f), "255 255 255") << "it ends softly";
        settings.view.background = qxViewSettings::None;
        const std::vector<std::uint8_t> rgba = picture().bytes();
        const std::uint8_t *shadow = &rgba[std::size_t(17 * 48 + 24) * 4];
        EXPECT_TRUE(shadow[3] > 3 && shadow[3] < 230) << int(shadow[3]);
        EXPECT_EQ(shadow[0] + shadow[1] + shadow[2], 0);
        settings.view.background = qxViewSettings::Automatic;
    }
    // From below there is none.
    const osg::Matrix above = camera.toWorld;
    camera.toWorld.setIdentity();
    camera.toWorld.setRotate(osg::Quaternion(osg::Vec3f(1, 0, 0), 0.6f));
    camera.toWorld.setTranslate(0, -5.65f, 8.25f);
    EXPECT_EQ(picture().at(0, 0.6f), "255 255 255");
    camera.toWorld = above;
    const TestNode floor = box(osg::Vec3f(0, -0.02f, 0), osg::Vec3f(0.5f, 0.02f, 0.5f));
    EXPECT_EQ(picture().at(0, -0.42f), "255 255 255") << "a floor";
    settings.view.ground = qxViewSettings::AlwaysGround;
    EXPECT_LT(picture().brightness(0, -0.42f), 755);
    settings.view.ground = qxViewSettings::GroundWhereMissing;
    floor.setMask(0);
    EXPECT_LT(picture().brightness(0, -0.27f), 740);
}
