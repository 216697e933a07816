#include "Animation/qxPose.h"
#include "Files/Gltf/Common/qxGltfJson.h"
#include "Files/qxSceneFile.h"
#include "Render/qxSceneBox.h"
#include "RenderFixture.h"
#include "TestFiles.h"

#include <OpenSG/OSGComponentTransform.h>

#include <array>

/// A white square from 0 to 1, far to the right, with two joints that have it on the left: an arm
/// above, and a hand below it.
class RenderShapeTest : public RenderFixture, protected TestFolder {
protected:
    RenderShapeTest()
    {
        primitive()["mode"] = 6;
        primitive()["material"] = 0;
        json["materials"] = qxJson::parse(R"([{"extensions": {"KHR_materials_unlit": {}}}])");
    }
    ~RenderShapeTest() override { qxPose::the() = qxPose(); }

    typedef std::array<float, 4> Weights;

    /// The same numbers for each of the four corners, as an accessor.
    template <class Value, std::size_t Size>
    void add(const std::array<Value, Size> &values, int component, const char *type, int count = 4)
    {
        const int begin = m_bytes.size();
        for (int i = 0; i < count; ++i)
            m_bytes.append(reinterpret_cast<const char *>(values.data()), sizeof(values));
        json["bufferViews"].push_back(
            {{"buffer", 1}, {"byteOffset", begin}, {"byteLength", m_bytes.size() - begin}});
        json["accessors"].push_back({{"bufferView", json["bufferViews"].size() - 1},
                                     {"componentType", component},
                                     {"count", count},
                                     {"type", type}});
        json["buffers"][1] = {{"byteLength", m_bytes.size()},
                              {"uri", "data:;base64," + m_bytes.toBase64().toStdString()}};
    }
    void addSkin(const Weights &weights)
    {
        json["nodes"] = qxJson::parse(R"([
            {"name": "Body", "mesh": 0, "skin": 0, "translation": [50, 0, 0]},
            {"name": "Arm", "translation": [-1, 0, 0], "children": [2]},
            {"name": "Hand", "translation": [0, -1, 0]}])");
        json["scenes"][0]["nodes"] = {0, 1};
        json["skins"] = {{{"joints", {1, 2}}}};
        qxJson &attributes = primitive()["attributes"];
        attributes["JOINTS_0"] = json["accessors"].size();
        add(std::array<quint8, 4>{0, 1, 0, 0}, 5121, "VEC4");
        attributes["WEIGHTS_0"] = json["accessors"].size();
        add(weights, 5126, "VEC4");
    }
    /// A morph target that moves all corners.
    void addTarget(const std::array<float, 3> &change)
    {
        primitive()["targets"].push_back({{"POSITION", json["accessors"].size()}});
        add(change, 5126, "VEC3");
    }
    qxJson &primitive() { return json["meshes"][0]["primitives"][0]; }

    /// Loads the scene and answers where the square is.
    std::string loaded()
    {
        host.clearScene();
        qxPose::the() = qxPose();
        EXPECT_TRUE(file.load(write("scene.gltf", QByteArray::fromStdString(json.dump()))))
            << file.errorString().toStdString();
        camera = qxUberCamera();
        camera.toWorld.setTranslate(0, 0, 10);
        camera.height = 2;
        return place();
    }
    /// The quarters of the picture that are white at their middle.
    std::string place()
    {
        const TestPicture seen = picture();
        EXPECT_EQ(seen.bytes(), freshPicture().bytes());
        std::string text;
        for (const char *name : {"top left", "top right", "bottom left", "bottom right"}) {
            const std::string words(name);
            const float x = words.find("left") != std::string::npos ? -0.5f : 0.5f;
            const float y = words.find("top") != std::string::npos ? 0.5f : -0.5f;
            const bool isThere = seen.at(x, y) == "255 255 255";
            const osg::NodePtr hit = renderer.nodeAt(settings, 24 + 24 * x, 24 + 24 * y);
            EXPECT_EQ(hit != osg::NullFC, isThere) << name;
            if (isThere)
                text += (text.empty() ? "" : ", ") + words;
        }
        return text;
    }
    static osg::UInt32 idOf(const char *name)
    {
        return qxScenegraph::findNode(name).getFieldContainerId();
    }

    qxJson json = qxJson::parse(bytesOf(testData("Scenes/square.gltf")).toStdString());
    qxSceneFile file;

private:
    QByteArray m_bytes;
};

TEST_F(RenderShapeTest, ASkinFollowsItsJointsWhereverItsNodeStands)
{
    for (const auto &[weights, expected] : {std::pair(Weights{1, 0, 0, 0}, "top left"),
                                            {Weights{0, 0, 0, 0}, "top left"},
                                            {Weights{0, 3, 0, 0}, "bottom left"},
                                            {Weights{0.25f, 0.75f, 0, 0}, "bottom left"},
                                            {Weights{0, 0.25f, 0, 0.5f}, "top left"}}) {
        addSkin(weights);
        EXPECT_EQ(loaded(), expected) << weights[0] << ' ' << weights[1];
        // Around what each of the joints would make of it, not where the node stands.
        osg::Pnt3f low, high;
        qxSceneBox(qxScenegraph::getRoot()).getBounds(low, high);
        EXPECT_EQ(low, osg::Pnt3f(-1, -1, 0));
        EXPECT_EQ(high, osg::Pnt3f(0, 1, 0));
    }
    // As they were bound: each joint where it is now, but the hand to the right of that.
    const std::array<float, 32> bound = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 1, 0, 0, 1,
                                         1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 1, 1, 0, 1};
    addSkin({0, 1, 0, 0});
    json["skins"][0]["inverseBindMatrices"] = json["accessors"].size();
    add(bound, 5126, "MAT4", 1);
    json["accessors"].back()["count"] = 2;
    EXPECT_EQ(loaded(), "top right");

    // What moves a joint moves the square.
    {
        const TestNode arm(qxScenegraph::findNode("Arm"));
        const osg::CPEditor edit(arm.core(), osg::ComponentTransform::TranslationFieldMask);
        osg::ComponentTransformPtr::dcast(arm.core())->setTranslation(osg::Vec3f(-2, -1, 0));
    }
    EXPECT_EQ(place(), "bottom left");
    qxPose::the().matrices[idOf("Arm")].setTranslate(-2, 0, 0);
    EXPECT_EQ(place(), "top left");
    qxPose::the().matrices[idOf("Hand")].setTranslate(1, -2, 0);
    EXPECT_EQ(place(), "bottom right");
    qxPose::the() = qxPose();
    EXPECT_EQ(place(), "bottom left");
}

TEST_F(RenderShapeTest, AMorphedMeshFollowsTheWeightsOfPoseNodeOrMesh)
{
    addTarget({-1, 0, 0});
    addTarget({0, -1, 0});
    EXPECT_EQ(loaded(), "top right");
    json["meshes"][0]["weights"] = {1, 0};
    EXPECT_EQ(loaded(), "top left");
    json["nodes"][0]["weights"] = {0, 1, 7};
    EXPECT_EQ(loaded(), "bottom right");
    qxPose::the().weights[idOf("Part")] = {1, 1};
    EXPECT_EQ(place(), "bottom left");
    qxPose::the().weights[idOf("Part")] = {0};
    EXPECT_EQ(place(), "top right");
    qxPose::the() = qxPose();
    EXPECT_EQ(place(), "bottom right");

    // Targets first, then the skin; nothing of it is in the saved file.
    addSkin({1, 0, 0, 0});
    json["nodes"][0]["weights"] = {0, 1};
    EXPECT_EQ(loaded(), "bottom left");
    ASSERT_TRUE(file.save(path("saved.gltf")));
    EXPECT_EQ(qxJson::parse(bytesOf(path("saved.gltf")).toStdString()), json);
}
