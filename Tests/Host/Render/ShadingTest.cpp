#include "Render/qxSampler.h"
#include "Render/qxShading.h"

#include <gtest/gtest.h>

namespace {

/// A surface whose numbers are all it has, and what a white one must reflect of white surroundings.
struct Case {
    const char *name;
    float least; ///< share of light that is not lost, whatever roughness and angle
    bool isReciprocal; ///< light takes the same way in both directions
    void (*make)(qxShading::Surface &surface);
};

// The coat is layered by the angle of the eye alone, as its extension has it; light in bodies is
// denser. Rough glass loses what would go through several mirrors.
const Case _cases[] = {
    {"matt", 0.98f, true, [](qxShading::Surface &) {}},
    {"metal", 0.98f, true, [](qxShading::Surface &s) { s.metallic = 1; }},
    {"half metal", 0.98f, true, [](qxShading::Surface &s) { s.metallic = 0.5f; }},
    {"specular", 0.98f, true,
     [](qxShading::Surface &s) {
         s.ior = 2.4f;
         s.specularColour = osg::Vec3f(1, 1, 1) * 1.5f;
     }},
    {"dull", 0.99f, true, [](qxShading::Surface &s) { s.specular = 0; }},
    {"sheen", 0.87f, true,
     [](qxShading::Surface &s) {
         s.sheen = osg::Vec3f(1, 1, 1);
         s.sheenRoughness = 0.5f;
     }},
    {"coat", 0.93f, false,
     [](qxShading::Surface &s) {
         s.coat = 1;
         s.coatRoughness = 0.2f;
     }},
    {"bent coat", 0.98f, false,
     [](qxShading::Surface &s) {
         s.coat = 1;
         s.coatNormal = qxUnit(osg::Vec3f(0.3f, 0, 1));
     }},
    {"thin glass", 0.95f, true, [](qxShading::Surface &s) { s.transmission = 1; }},
    {"half glass", 0.97f, true, [](qxShading::Surface &s) { s.transmission = 0.5f; }},
    {"glass", 0.68f, false,
     [](qxShading::Surface &s) {
         s.transmission = 1;
         s.isBody = true;
     }},
    {"glass from inside", 0.4f, false,
     [](qxShading::Surface &s) {
         s.transmission = 1;
         s.isBody = s.isInside = true;
     }},
    {"leaf", 0.98f, true, [](qxShading::Surface &s) { s.diffuseTransmission = 0.6f; }},
    {"film", 0.89f, false,
     [](qxShading::Surface &s) {
         s.iridescence = 1;
         s.filmThickness = 450;
     }},
    {"brushed", 0.88f, true,
     [](qxShading::Surface &s) {
         s.metallic = 1;
         s.anisotropy = 0.7f;
     }},
};

osg::Vec3f towards(float cosine, float angle)
{
    const float sine = std::sqrt(1.0f - cosine * cosine);
    return osg::Vec3f(sine * std::cos(angle), sine * std::sin(angle), cosine);
}

osg::Vec3f anyDirection(const osg::Vec2f &place)
{
    return towards(2.0f * place[0] - 1.0f, 2.0f * qxPi * place[1]);
}

/// What a surface does with white light from everywhere.
struct Sums {
    Sums(const qxShading &shading, std::uint32_t count)
    {
        const float share = 1.0f / float(count);
        for (std::uint32_t i = 0; i < count; ++i) {
            qxSampler sampler(7, i);
            const float choice = sampler.next();
            const qxShading::Bounce bounce = shading.bounce(choice, sampler.nextPair());
            bounced += bounce.share * share;
            lost += bounce.density > 0.0f ? 0.0f : share;
            wrongSides +=
                bounce.density > 0.0f && bounce.through != (bounce.direction[2] < 0.0f) ? 1 : 0;
            const osg::Vec3f any = anyDirection(sampler.nextPair());
            reflected += shading.reflected(any) * (4.0f * qxPi * share);
            density += shading.density(any) * 4.0f * qxPi * share;
        }
    }

    osg::Vec3f bounced; ///< by random bounces
    osg::Vec3f reflected; ///< by random directions
    float density = 0; ///< in all directions
    float lost = 0; ///< share of bounces that lead nowhere
    int wrongSides = 0;
};

} // namespace

TEST(ShadingTest, WhiteSurfacesInWhiteSurroundingsNeitherGainNorLoseMuchLight)
{
    for (const Case &row : _cases) {
        for (const float roughness : {0.0f, 0.1f, 0.3f, 0.6f, 1.0f}) {
            for (const float cosine : {1.0f, 0.7f, 0.3f, 0.08f}) {
                qxShading::Surface surface;
                surface.roughness = roughness;
                row.make(surface);
                const Sums sums(qxShading(surface, towards(cosine, 0.4f)), 4096);
                const std::string where = std::string(row.name) + ", roughness "
                    + std::to_string(roughness) + ", cosine " + std::to_string(cosine);
                for (osg::UInt32 i = 0; i < 3; ++i) {
                    EXPECT_LT(sums.bounced[i], 1.02f) << where;
                    EXPECT_GT(sums.bounced[i], row.least) << where;
                }
                EXPECT_EQ(sums.wrongSides, 0) << where;
            }
        }
    }
}

TEST(ShadingTest, BouncesComeAsOftenAsTheirDensitySaysAndBringWhatIsReflected)
{
    for (const Case &row : _cases) {
        for (const float roughness : {0.4f, 1.0f}) {
            for (const float cosine : {0.9f, 0.4f}) {
                qxShading::Surface surface;
                surface.roughness = roughness;
                surface.base = osg::Vec3f(0.8f, 0.4f, 0.1f);
                row.make(surface);
                surface.coatRoughness = 0.4f;
                const Sums sums(qxShading(surface, towards(cosine, 2.0f)), 1u << 16);
                const std::string where = std::string(row.name) + ", roughness "
                    + std::to_string(roughness) + ", cosine " + std::to_string(cosine);
                EXPECT_NEAR(sums.density, 1.0f - sums.lost, 0.02f) << where;
                for (osg::UInt32 i = 0; i < 3; ++i)
                    EXPECT_NEAR(sums.bounced[i], sums.reflected[i], 0.02f) << where;
            }
        }
    }
}

TEST(ShadingTest, LightTakesTheSameWayInBothDirections)
{
    for (const Case &row : _cases) {
        for (std::uint32_t i = 0; i < 200 && row.isReciprocal; ++i) {
            qxSampler sampler(3, i);
            qxShading::Surface surface;
            surface.base = osg::Vec3f(0.7f, 0.3f, 0.2f);
            surface.roughness = 0.2f + 0.8f * sampler.next();
            row.make(surface);
            osg::Vec3f eye = anyDirection(sampler.nextPair());
            const osg::Vec3f light = anyDirection(sampler.nextPair());
            eye[2] = std::fabs(eye[2]);
            if (eye[2] < 0.05f || std::fabs(light[2]) < 0.05f)
                continue;
            // Seen from the other side the normal is that on this side.
            qxShading::Surface turned = surface;
            turned.normal = osg::Vec3f(0, 0, light[2] < 0.0f ? -1.0f : 1.0f);
            const osg::Vec3f there =
                qxShading(surface, eye).reflected(light) * (1.0f / std::fabs(light[2]));
            const osg::Vec3f back = qxShading(turned, light).reflected(eye) * (1.0f / eye[2]);
            for (osg::UInt32 k = 0; k < 3; ++k)
                EXPECT_NEAR(there[k], back[k], 1e-3f + 1e-3f * there[k]) << row.name << ' ' << i;
        }
    }
}
