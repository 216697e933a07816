#include "Render/qxRenderPicking.h"

#include "Render/qxEmbree.h"

namespace {

RTCRayHit firstAlong(const qxRay &ray, const qxRenderGroup &group)
{
    RTCIntersectContext context;
    rtcInitIntersectContext(&context);
    RTCRayHit found = {};
    found.ray.org_x = ray.origin[0];
    found.ray.org_y = ray.origin[1];
    found.ray.org_z = ray.origin[2];
    found.ray.dir_x = ray.direction[0];
    found.ray.dir_y = ray.direction[1];
    found.ray.dir_z = ray.direction[2];
    found.ray.tnear = ray.near;
    found.ray.tfar = ray.far;
    found.ray.mask = qxRenderGroup::Opaque | qxRenderGroup::Translucent;
    found.hit.geomID = RTC_INVALID_GEOMETRY_ID;
    found.hit.instID[0] = RTC_INVALID_GEOMETRY_ID;
    rtcIntersect1(group.scene(), &context, &found);
    return found;
}

} // namespace

osg::UInt32 qxNodeAlong(const qxRay &ray, const qxRenderGroup &group)
{
    const RTCRayHit found = firstAlong(ray, group);
    return found.hit.geomID == RTC_INVALID_GEOMETRY_ID ? 0 : group.instanceAt(found.hit).node;
}

float qxDistanceAlong(const qxRay &ray, const qxRenderGroup &group)
{
    return firstAlong(ray, group).ray.tfar;
}
