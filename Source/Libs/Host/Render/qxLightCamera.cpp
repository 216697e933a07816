#include "Render/qxLightCamera.h"

#include "Render/qxRenderCamera.h"
#include "Render/qxTiles.h"
#include "Render/qxTracer.h"

qxLightPicture qxTakeLightPicture(const qxRenderGroup &surroundings, const qxBox &scene)
{
    qxLightPicture picture(128, 64);
    const qxRenderLights lights;
    const qxRenderClipping clipping{qxClipping(), qxBox()};
    const qxRenderCamera camera{qxUberCamera(), scene, picture.width, picture.height};
    const qxEnvironmentLight studio = qxEnvironmentLight::studio();
    const qxTracer tracer({surroundings, lights, clipping, camera, studio, false, 1.0f, nullptr});
    const auto takeRow = [&](int y) {
        for (int x = 0; x < picture.width; ++x) {
            qxSampler sampler{std::uint32_t(x), std::uint32_t(y)};
            qxRay ray;
            ray.origin = scene.isEmpty() ? osg::Vec3f() : scene.centre();
            ray.direction =
                qxLightPicture::directionOf(osg::Vec2f((float(x) + 0.5f) / float(picture.width),
                                                       (float(y) + 0.5f) / float(picture.height)));
            const qxTracer::RayResult seen = tracer.trace(ray, sampler);
            picture.at(x, y) = seen.plain + studio.light(ray.direction) * seen.transmittance;
        }
    };
    qxForAllTiles(picture.height, 0, takeRow, [](int) { return true; });
    return picture;
}
