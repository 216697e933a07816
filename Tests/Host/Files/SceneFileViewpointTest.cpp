#include "SceneFileFixture.h"
#include "qxUberCameraPool.h"

#include <OpenSG/OSGQuaternion.h>

namespace {

const char *const oneCamera = R"({"asset":{"version":"2.0"},"scene":0,
    "scenes":[{"nodes":[0]}],"nodes":[{"name":"Front","camera":0}],
    "cameras":[{"type":"perspective","perspective":{"yfov":0.5,"znear":0.1}}]})";

qxUberCamera camera(const char *name, float fieldOfView, float height)
{
    qxUberCamera made;
    made.name = name;
    made.fieldOfView = fieldOfView;
    made.height = height;
    made.farPlane = 40;
    made.toWorld.setTransform(osg::Vec3f(1, 2, 3), osg::Quaternion(osg::Vec3f(0, 1, 0), 0.5f));
    return made;
}

class SceneFileViewpointTest : public SceneFileFixture {
protected:
    static void expectViewpoint(int id, const qxUberCamera &expected)
    {
        const qxUberCamera *const found = qxUberCameraPool::the()->get(id);
        ASSERT_TRUE(found);
        EXPECT_EQ(found->name, expected.name);
        EXPECT_FLOAT_EQ(found->fieldOfView, expected.fieldOfView);
        EXPECT_FLOAT_EQ(found->height, expected.height);
        EXPECT_FLOAT_EQ(found->nearPlane, expected.nearPlane);
        EXPECT_FLOAT_EQ(found->farPlane, expected.farPlane);
        EXPECT_TRUE(found->toWorld.equals(expected.toWorld, 1e-5f));
    }
};

TEST_F(SceneFileViewpointTest, NewViewpointsAreSavedBehindThoseOfTheFile)
{
    loadText(oneCamera);
    const qxUberCamera perspective = camera("Türgriff", 0.8f, 0);
    const qxUberCamera parallel = camera("Plan", 0, 6);
    qxUberCameraPool::the()->add(perspective);
    qxUberCameraPool::the()->add(parallel);
    saveAndLoad();
    ASSERT_EQ(qxUberCameraPool::the()->count(), 3);
    expectViewpoint(1, perspective);
    expectViewpoint(2, parallel);
    saveAndLoad("again.gltf");
    EXPECT_EQ(qxUberCameraPool::the()->count(), 3); // known ones are not added again
    EXPECT_EQ(bytesOf(path("again.gltf")), bytesOf(path("saved.gltf")));
}

} // namespace
