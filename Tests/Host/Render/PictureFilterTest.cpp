#include "Render/qxPictureFilter.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

const int _size = 48;

/// What is left of a picture, with noise of the variance that its pixels tell, or told only.
template <class Content>
static qxPictureFilter filtered(const Content &content, bool isNoisy = true)
{
    qxPictureFilter filter(_size, _size);
    std::mt19937 random(1);
    std::normal_distribution<float> noise;
    for (int y = 0; y < _size; ++y) {
        for (int x = 0; x < _size; ++x) {
            qxPictureFilter::Pixel pixel = content(x, y);
            const float factor = qxPictureFilter::divisor(pixel.colour)[0];
            for (osg::UInt32 i = 0; i < 3 && isNoisy; ++i)
                pixel.light[i] += noise(random) * std::sqrt(pixel.variance) * factor;
            filter.set(x, y, pixel);
        }
    }
    for (int pass = 0; pass < qxPictureFilter::passes; ++pass) {
        filter.prepare();
        for (int band = 0; band < filter.bandCount(); ++band)
            filter.filterBand(pass, band);
    }
    return filter;
}

/// The largest difference from a light among the columns from `first` to before `last`.
static float error(const qxPictureFilter &filter, int first, int last, float light)
{
    float worst = 0.0f;
    for (int y = 0; y < _size; ++y) {
        for (int x = first; x < last; ++x)
            worst = std::max(worst, std::fabs(filter.light(x, y)[0] - light));
    }
    return worst;
}

static void setSurface(qxPictureFilter::Pixel &pixel, const osg::Vec3f &colour,
                       const osg::Vec3f &normal = osg::Vec3f())
{
    pixel.colour = colour;
    pixel.surface = qxPictureFilter::surfaceOf(colour, normal);
}

static qxPictureFilter::Pixel grey(float light, float deviation)
{
    qxPictureFilter::Pixel pixel;
    pixel.light = osg::Vec3f(light, light, light);
    pixel.variance = deviation * deviation;
    setSurface(pixel, osg::Vec3f(0.5f, 0.5f, 0.5f));
    return pixel;
}

TEST(PictureFilterTest, NoiseGoesAndWhatStandsOutOfItStays)
{
    const float noise = 0.1f;
    const auto plain = filtered([&](int, int) { return grey(0.4f, noise); });
    EXPECT_LT(error(plain, 0, _size, 0.4f), 0.03f) << "single pixels were 0.2 off";
    // Half in shadow, on one and the same surface.
    const auto shadow = filtered([&](int x, int) { return grey(x < 24 ? 0.1f : 0.6f, noise); });
    EXPECT_LT(error(shadow, 0, 24, 0.1f), 0.06f);
    EXPECT_LT(error(shadow, 24, _size, 0.6f), 0.06f);
    const auto stripes = filtered([](int x, int) { return grey(0.4f + 0.02f * float(x % 2), 0); });
    EXPECT_LT(error(stripes, 24, 25, 0.4f), 1e-5f);
    EXPECT_LT(error(stripes, 25, 26, 0.42f), 1e-5f);
}

TEST(PictureFilterTest, APictureOnASurfaceStaysSharpInNoisyLight)
{
    const auto printed = filtered([](int x, int) {
        qxPictureFilter::Pixel pixel = grey(0, 0.1f);
        const float colour = x % 2 ? 0.5f : 0.45f;
        setSurface(pixel, osg::Vec3f(colour, colour, colour));
        pixel.light = pixel.colour * 0.8f;
        return pixel;
    });
    EXPECT_GT(printed.light(25, 24)[0] - printed.light(24, 24)[0], 0.02f);
}

TEST(PictureFilterTest, SurfacesThatAreDifferentDoNotMixHoweverNoisyTheirLightIs)
{
    // The noise is declared only: what differs is the light, and the surface or not.
    const auto middle = [](const osg::Vec3f &leftColour, const osg::Vec3f &leftNormal) {
        const auto content = [&](int x, int) {
            qxPictureFilter::Pixel pixel = grey(x < 24 ? 0.3f : 0.5f, 0.6f);
            if (x < 24)
                setSurface(pixel, leftColour, leftNormal);
            return pixel;
        };
        return error(filtered(content, false), 23, 24, 0.3f);
    };
    const osg::Vec3f same(0.5f, 0.5f, 0.5f);
    EXPECT_GT(middle(same, osg::Vec3f()), 0.02f) << "they would mix";
    EXPECT_LT(middle(osg::Vec3f(0.9f, 0.1f, 0.1f), osg::Vec3f()), 1e-4f);
    EXPECT_LT(middle(same, osg::Vec3f(0, 1, 0)), 1e-4f);
}
