#include "Files/SceneFileFixture.h"
#include "qxScenegraph.h"

#include <cmath>

namespace {

/// A scene with a fault, and words of the message that it must cause.
struct Fault {
    const char *text;
    const char *words;
};

/// What follows the "asset" of a file.
const Fault _faults[] = {
    {R"("nodes": [{"children": [1]}, {"name": "Door", "children": [0]}])",
     "node 0 is its own ancestor"},
    {R"("nodes": [{"children": [2]}, {"children": [2]}, {"name": "Door"}])",
     "node 2 \"Door\" has two parents, node 0 and node 1"},
    {R"("nodes": [{"children": [1, 1]}, {}])", "node 1 has two parents, node 0 and node 0"},
    {R"("nodes": [{"children": [7]}])", "node 0 refers to node 7, the file has 1"},
    {R"("nodes": [{"children": [-1]}])", "refers to node -1"},
    {R"("nodes": [{"children": [18446744073709551615]}])", "refers to node 18446744073709551615"},
    {R"("nodes": [{"children": 1}])", "\"children\" is not a list"},
    {R"("nodes": [{}, 5])", "\"nodes\" holds something that is no object"},
    {R"("nodes": {})", "\"nodes\" is not a list"},
    {R"("nodes": [{"mesh": 0}])", "node 0 refers to mesh 0, the file has 0"},
    {R"("nodes": [{"camera": 99999999999999999999}])", "something that is no index"},
    {R"("nodes": [{"matrix": [1, 2]}])", "\"matrix\" is not a list of 16 numbers"},
    {R"("nodes": [{"translation": [0, 0, 1e39]}])", "no finite number"},
    {R"("nodes": [{"translation": [0, 0, null]}])", "no finite number"},
    {R"("nodes": [{"translation": [0, 0, 1e999]}])", "not valid JSON"},
    {R"("nodes": [{"children": [1]}, {}], "scenes": [{"nodes": [1]}])",
     "scene 0 lists node 1, which is a child of node 0"},
    {R"("nodes": [{}], "scenes": [{"nodes": [0, 0]}])", "scene 0 lists node 0 twice"},
    {R"("nodes": [{}], "scenes": [{"nodes": [1]}])", "scene 0 refers to node 1"},
    {R"("scene": 2, "scenes": [{}])", "refers to scene 2, the file has 1"},
    {R"("extensionsRequired": ["EXT_a", "KHR_node_visibility", "EXT_b"])",
     "requires what is not supported: EXT_a, EXT_b"},
    {R"("nodes": [{"name": "Lamp", "extensions": {"KHR_lights_punctual": {"light": 0}}}])",
     "node 0 \"Lamp\" refers to light 0, the file has 0"},
    {R"("extensions": {"KHR_lights_punctual": {"lights": [{"color": [1, 1]}]}})", "light 0: "},
    {R"("extensions": {"KHR_lights_punctual": {"lights": [{"intensity": 1e300}]}})", "light 0: "},
    {R"("meshes": [{"name": "Box"}])", "mesh 0 \"Box\" has no \"primitives\""},
    {R"("meshes": [{"primitives": [{}]}])", "mesh 0, primitive 0 has no \"attributes\""},
    {R"("meshes": [{"primitives": [{"attributes": {"POSITION": 0}}]}])", "refers to accessor 0"},
    {R"("meshes": [{"primitives": [{"attributes": {}, "material": 3}]}])", "refers to material 3"},
    {R"("meshes": [{"primitives": [{"attributes": {}, "mode": 9}]}])", "unknown mode"},
    {R"("materials": [{"pbrMetallicRoughness": {"baseColorTexture": {"index": 0}}}])",
     "material 0 refers to texture 0"},
    {R"("textures": [{"source": 4}])", "texture 0 refers to image 4"},
    {R"("buffers": [{"uri": "gone.bin", "byteLength": 4}])",
     "buffer 0: \"gone.bin\": the file does not exist"},
    {R"("buffers": [{"uri": "a/%2e%2e/../b", "byteLength": 4}])", "leads out of the folder"},
    {R"("buffers": [{"uri": "/etc/passwd", "byteLength": 4}])", "leads out of the folder"},
    {R"("buffers": [{"uri": "file:///etc/passwd", "byteLength": 4}])", "leads out of the folder"},
    {R"("buffers": [{"uri": ".", "byteLength": 4}])", "it is not a file"},
    {R"("buffers": [{"uri": "data:;base64,AA==", "byteLength": 2}])",
     "too short: 2 bytes announced, 1 there"},
    {R"("buffers": [{"uri": "data:;base64,A*==", "byteLength": 1}])",
     "base64 of its data URI is damaged"},
    {R"("buffers": [{"uri": "data:,abc", "byteLength": 1}])", "not in base64"},
    {R"("buffers": [{}])", "no usable \"byteLength\""},
    {R"("buffers": [{"byteLength": 4e9}])", "is no count"},
    {R"("buffers": [{"byteLength": 9223372036854775807}])", "is no count"},
    {R"("bufferViews": [{"buffer": 0, "byteLength": 1}])", "buffer view 0 refers to buffer 0"},
    {R"("buffers": [{"byteLength": 4}],
        "bufferViews": [{"buffer": 0, "byteOffset": 4, "byteLength": 1}])",
     "ends at byte 5 of buffer 0, which has 4"},
    {R"("buffers": [{"byteLength": 4}], "bufferViews": [{"buffer": 0, "byteLength": 4}],
        "accessors": [{"bufferView": 0, "componentType": 5126, "count": 4000000000, "type": "VEC3"}])",
     "accessor 0 has 4000000000 elements, more than its buffer view holds"},
    {R"("accessors": [{"componentType": 5126, "count": 4000000000, "type": "VEC3"}])",
     "accessor 0 states no usable \"count\""},
    {R"("accessors": [{"componentType": 5124, "count": 1, "type": "SCALAR"}])",
     "unknown component type"},
    {R"("accessors": [{"componentType": 5126, "count": 1, "type": "VEC5"}])", "unknown type"},
    {R"("accessors": [{"componentType": 5126, "count": 1, "type": "SCALAR", "sparse": {"count": 2}}])",
     "replaces more elements than it has"},
};

/// What is no scene at all.
const Fault _texts[] = {
    {"", "not valid JSON"},
    {"{\"asset\"", "not valid JSON"},
    {"[]", "the JSON is not an object"},
    {"{}", "states no version"},
    {R"({"asset": {"version": "1.0"}})", "made for glTF version 1.0"},
    {R"({"asset": {"version": "2.1", "minVersion": "2.1"}})", "made for glTF version 2.1"},
    {"{\"asset\": \"\xff\"}", "not valid JSON"},
};

} // namespace

class SceneFileErrorTest : public SceneFileFixture {
protected:
    /// Expects that a file of these bytes is refused in these words, and that nothing is shown.
    void expectRefused(const QByteArray &bytes, const QString &words)
    {
        const QString error = loadError(write("scene.gltf", bytes));
        EXPECT_TRUE(error.startsWith(path("scene.gltf") + ": ")) << error.toStdString();
        EXPECT_TRUE(error.contains(words)) << error.toStdString() << '\n' << words.toStdString();
        EXPECT_EQ(scene.root().node()->getNChildren(), 0u);
        EXPECT_EQ(qxScenegraph::getMaterialPool()->getCount(), 0u);
    }
    void expectRefused(const qxJson &json, const QString &words)
    {
        expectRefused(QByteArray::fromStdString(json.dump()), words);
    }
};

TEST_F(SceneFileErrorTest, EveryFaultIsSaidInPlainWordsAndLeavesTheSceneEmpty)
{
    for (const Fault &fault : _faults)
        expectRefused(sceneText(fault.text), fault.words);
    for (const Fault &fault : _texts)
        expectRefused(QByteArray(fault.text), fault.words);
    EXPECT_TRUE(loadError(path("nowhere.gltf")).contains("the file does not exist"));
    EXPECT_TRUE(loadError(folder.path()).contains("it is not a file"));
}

TEST_F(SceneFileErrorTest, DamagedContainersAreRefused)
{
    load(write("mesh.gltf", MeshText(triangle).scene()));
    saveAndLoad("good.glb");
    const QByteArray good = bytesOf(path("good.glb"));
    for (int length = 4; length < good.size(); ++length)
        expectRefused(good.left(length), "");

    expectRefused(good + "1234", "the header says");
    expectRefused(QByteArray(good).replace(12, 1, "\x7f"), "JSON chunk is cut off");
    expectRefused(QByteArray(good).replace(4, 1, "\1"), "container version 1");
}

TEST_F(SceneFileErrorTest, FaultsInTheDataNameMeshAndPrimitive)
{
    MeshText index(triangle);
    index.primitive["indices"] = index.add<std::uint8_t>("SCALAR", 5121, {0, 1, 3}, 1);
    expectRefused(index.scene(),
                  "mesh 0 \"Shape\", primitive 0: index 3 is used, there are 3 vertices");

    MeshText count(triangle);
    count.attributes["NORMAL"] = count.addPositions({0, 0, 1});
    expectRefused(count.scene(), "NORMAL is not there for every vertex");

    const MeshText finite({0, 0, 0, 1, NAN, 0, 0, 1, 0});
    expectRefused(finite.scene(), "POSITION holds something that is no finite");
}

TEST_F(SceneFileErrorTest, WhatIsMadeToExhaustTheReaderIsRefusedAtOnce)
{
    expectRefused(sceneText(R"("extras": )" + QByteArray(1000000, '[')), "nested deeper than");
    QByteArray wide = R"("a": 0)";
    for (int i = 0; i < 200000; ++i)
        wide += ",\"" + QByteArray::number(i) + "\":0";
    expectRefused(sceneText(wide), "more than 10000 members");

    // A bracket in a text is no nesting.
    const QByteArray text = R"("extras": ")" + QByteArray(1000, '[') + '"';
    EXPECT_EQ(loadError(write("text.gltf", sceneText(text))), "");
}

TEST_F(SceneFileErrorTest, AFailedLoadKeepsWhatWasLoadedBefore)
{
    loadText(R"("nodes": [{"name": "Kept"}], "extras": {"qxVariants": "<kept/>"})");
    EXPECT_FALSE(file.load(write("bad.gltf", QByteArray("{}"))));
    EXPECT_EQ(find("Kept").name(), "Kept");
    EXPECT_EQ(file.variantsDocument(), "<kept/>");
    save(path("again.gltf"));
    EXPECT_EQ(jsonOf(path("again.gltf"))["nodes"][0]["name"], "Kept");
}
