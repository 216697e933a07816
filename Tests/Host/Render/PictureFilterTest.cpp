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
            for (osg::UInt32 i = 0; i < 3 && isNoisy; ++i) {
                const float root =
                    std::sqrt(pixel.light[i]) + noise(random) * std::sqrt(pixel.variance);
                pixel.light[i] = root * root;
            }
            filter.set(x, y, pixel);
        }
    }
    for (int pass = 0; pass < qxPictureFilter::passes; ++pass) {
        filter.prepare(pass);
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

static qxPictureFilter::Pixel grey(float light, float deviation)
{
    qxPictureFilter::Pixel pixel;
    pixel.light = osg::Vec3f(light, light, light);
    pixel.variance = deviation * deviation;
    pixel.colour = osg::Vec3f(0.5f, 0.5f, 0.5f);
    return pixel;
}

TEST(PictureFilterTest, NoiseGoesAndWhatStandsOutOfItStays)
{
    const float noise = 0.05f;
    const auto plain = filtered([&](int, int) { return grey(0.4f, noise); });
    EXPECT_LT(error(plain, 0, _size, 0.4f), 0.04f) << "single pixels were 0.2 off";
    // Half in shadow, on one and the same surface.
    const auto shadow = filtered([&](int x, int) { return grey(x < 24 ? 0.1f : 0.6f, noise); });
    EXPECT_LT(error(shadow, 0, 24, 0.1f), 0.05f);
    EXPECT_LT(error(shadow, 24, _size, 0.6f), 0.06f);
    const auto stripes = filtered([](int x, int) { return grey(0.4f + 0.02f * float(x % 2), 0); });
    EXPECT_LT(error(stripes, 24, 25, 0.4f), 1e-5f);
    EXPECT_LT(error(stripes, 25, 26, 0.42f), 1e-5f);
}

TEST(PictureFilterTest, SurfacesThatAreDifferentDoNotMixHoweverNoisyTheirLightIs)
{
    // The noise is declared only: what differs is the light, and the surface or not.
    const auto middle = [](const osg::Vec3f &leftColour, const osg::Vec3f &leftNormal) {
        const auto content = [&](int x, int) {
            qxPictureFilter::Pixel pixel = grey(x < 24 ? 0.3f : 0.5f, 0.3f);
            if (x < 24) {
                pixel.colour = leftColour;
                pixel.normal = leftNormal;
            }
            return pixel;
        };
        return error(filtered(content, false), 23, 24, 0.3f);
    };
    const osg::Vec3f same(0.5f, 0.5f, 0.5f);
    EXPECT_GT(middle(same, osg::Vec3f()), 0.02f) << "they would mix";
    EXPECT_LT(middle(osg::Vec3f(0.9f, 0.1f, 0.1f), osg::Vec3f()), 1e-4f);
    EXPECT_LT(middle(same, osg::Vec3f(0, 1, 0)), 1e-4f);
}
