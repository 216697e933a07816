#include "SceneFileFixture.h"
#include "qxAnimManager.h"
#include "qxUberCameraPool.h"

#include <OpenSG/OSGQuaternion.h>

namespace {

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

void expectViewpoint(int id, const qxUberCamera &expected)
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

} // namespace

class SceneFileViewpointTest : public SceneFileFixture {};

TEST_F(SceneFileViewpointTest, CamerasBecomeViewpointsAndNewOnesAreSavedBehindThem)
{
    loadText(R"("scenes": [{"nodes": [0, 2]}], "nodes": [
        {"translation": [0, 0, 5], "children": [1]}, {"name": "Front", "camera": 0}, {"camera": 1}],
        "cameras": [{"type": "perspective", "perspective": {"yfov": 0.5, "znear": 0.25}},
            {"name": "Plan", "type": "orthographic",
             "orthographic": {"xmag": 2, "ymag": 3, "znear": 1, "zfar": 9}}],
        "animations": [{"name": "Open", "channels": [], "samplers": []}, {}])");
    EXPECT_EQ(qxAnimManager::the()->clips(), (std::vector<std::string>{"Open", ""}));
    osg::Matrix inFront;
    inFront.setTranslate(0, 0, 5);
    qxUberCameraPool &pool = *qxUberCameraPool::the();
    ASSERT_EQ(pool.count(), 2);
    expectViewpoint(0, {"Front", inFront, 0.5f, 0, 0.25f, 0});
    expectViewpoint(1, {"Plan", osg::Matrix(), 0, 6, 1, 9});

    const qxUberCamera perspective = camera("Türgriff", 0.8f, 0);
    const qxUberCamera parallel = camera("Section", 0, 6);
    pool.add(perspective);
    pool.add(parallel);
    save(path("saved.gltf"));
    load(path("saved.gltf"));
    ASSERT_EQ(pool.count(), 4);
    expectViewpoint(2, perspective);
    expectViewpoint(3, parallel);
    saveAndLoad(); // known ones are not added again
}
