#include "Files/SceneFileFixture.h"
#include "qxScenegraph.h"
#include "qxUberCameraPool.h"

#include <QDir>
#include <QElapsedTimer>

#include <cmath>

class SceneFileErrorTest : public SceneFileFixture {};

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
    {R"("nodes": [{"name": "Door", "children": [0]}])", "node 0 \"Door\" is its own ancestor"},
    {R"("nodes": [{"children": [2]}, {"children": [2]}, {"name": "Door"}])",
     "node 2 \"Door\" has two parents, node 0 and node 1"},
    {R"("nodes": [{"children": [1, 1]}, {}])", "node 1 has two parents, node 0 and node 0"},
    {R"("nodes": [{"children": [7]}])", "node 0 refers to node 7, the file has 1"},
    {R"("nodes": [{"children": [-1]}])", "refers to node -1"},
    {R"("nodes": [{"children": [99999999999999999999]}])", "something that is no index"},
    {R"("nodes": [{"children": [18446744073709551615]}])", "refers to node 18446744073709551615"},
    {R"("nodes": [{"children": 1}])", "\"children\" is not a list"},
    {R"("nodes": [{}, 5])", "\"nodes\" holds something that is no object"},
    {R"("nodes": {})", "\"nodes\" is not a list"},
    {R"("nodes": [{"mesh": 0}])", "node 0 refers to mesh 0, the file has 0"},
    {R"("nodes": [{"camera": "x"}], "cameras": [{}])", "something that is no index"},
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
    {R"("buffers": [{"uri": "../scene.gltf", "byteLength": 4}])", "leads out of the folder"},
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
    {R"("bufferViews": [{"buffer": 0, "byteLength": 1}])", "buffer view 0 refers to buffer 0"},
    {R"("buffers": [{"byteLength": 4}], "bufferViews": [{"buffer": 0, "byteOffset": 4, "byteLength": 1}])",
     "ends at byte 5 of buffer 0, which has 4"},
    {R"("buffers": [{"byteLength": 4}], "bufferViews": [{"buffer": 0, "byteOffset": 9223372036854775807,
        "byteLength": 9223372036854775807}])",
     "is no count"},
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

} // namespace

TEST_F(SceneFileErrorTest, EveryFaultIsSaidInPlainWordsAndLeavesTheSceneEmpty)
{
    for (const Fault &fault : _faults) {
        const QByteArray text = QByteArray(R"({"asset": {"version": "2.0"}, )") + fault.text + "}";
        const QString error = loadError(write("scene.gltf", text));
        EXPECT_TRUE(error.startsWith(path("scene.gltf") + ": ")) << error.toStdString();
        EXPECT_TRUE(error.contains(fault.words)) << error.toStdString() << "\n" << fault.text;
        EXPECT_EQ(scene.root().node()->getNChildren(), 0u);
        EXPECT_EQ(qxScenegraph::getMaterialPool()->getCount(), 0u);
    }
}

TEST_F(SceneFileErrorTest, WhatIsNoSceneAtAll)
{
    const Fault texts[] = {
        {"", "not valid JSON"},
        {"{\"asset\"", "not valid JSON"},
        {"[]", "the JSON is not an object"},
        {"{}", "states no version"},
        {R"({"asset": {"version": "1.0"}})", "made for glTF version 1.0"},
        {R"({"asset": {"version": "2.1", "minVersion": "2.1"}})", "made for glTF version 2.1"},
        {"{\"asset\": \"\xff\"}", "not valid JSON"},
    };
    for (const Fault &fault : texts) {
        const QString error = loadError(write("scene.gltf", QByteArray(fault.text)));
        EXPECT_TRUE(error.contains(fault.words)) << error.toStdString() << "\n" << fault.text;
    }
    EXPECT_TRUE(loadError(path("nowhere.gltf")).contains("the file does not exist"));
    EXPECT_TRUE(loadError(folder.path()).contains("it is not a file"));
}

TEST_F(SceneFileErrorTest, DamagedContainersAreRefused)
{
    const QByteArray good = glb(R"({"asset": {"version": "2.0"}})", "abcd");
    EXPECT_EQ(loadError(write("good.glb", good)), "");
    for (int length = 4; length < good.size(); ++length)
        EXPECT_NE(loadError(write("cut.glb", good.left(length))), "") << length;

    QByteArray longer = good + "1234";
    EXPECT_TRUE(loadError(write("long.glb", longer)).contains("the header says"));
    QByteArray chunk = good;
    chunk[12] = '\x7f';
    EXPECT_TRUE(loadError(write("chunk.glb", chunk)).contains("JSON chunk is cut off"));
    QByteArray version = good;
    version[4] = 1;
    EXPECT_TRUE(loadError(write("version.glb", version)).contains("container version 1"));
}

TEST_F(SceneFileErrorTest, FaultsInTheDataNameMeshAndPrimitive)
{
    const std::vector<float> triangle{0, 0, 0, 1, 0, 0, 0, 1, 0};
    MeshText index;
    index.primitive["attributes"]["POSITION"] = index.addPositions(triangle);
    index.primitive["indices"] = index.add<std::uint8_t>("SCALAR", 5121, {0, 1, 3}, 1);
    EXPECT_TRUE(
        loadError(write("index.gltf", index.scene()))
            .endsWith("mesh 0 \"Shape\", primitive 0: index 3 is used, there are 3 vertices"));

    MeshText count;
    count.primitive["attributes"]["POSITION"] = count.addPositions(triangle);
    count.primitive["attributes"]["NORMAL"] = count.addPositions({0, 0, 1});
    EXPECT_TRUE(loadError(write("count.gltf", count.scene()))
                    .endsWith("NORMAL is not there for every vertex"));

    MeshText finite;
    finite.primitive["attributes"]["POSITION"] = finite.addPositions({0, 0, 0, 1, NAN, 0, 0, 1, 0});
    EXPECT_TRUE(loadError(write("nan.gltf", finite.scene()))
                    .contains("POSITION holds something that is no finite"));
}

TEST_F(SceneFileErrorTest, WhatIsMadeToExhaustTheReaderIsRefusedAtOnce)
{
    QElapsedTimer time;
    time.start();
    const QByteArray deep =
        R"({"asset": {"version": "2.0"}, "extras": )" + QByteArray(1000000, '[');
    EXPECT_TRUE(loadError(write("deep.gltf", deep)).contains("nested deeper than"));

    QByteArray wide = R"({"asset": {"version": "2.0"}, "extras": {"a": 0)";
    for (int i = 0; i < 200000; ++i)
        wide += ",\"" + QByteArray::number(i) + "\":0";
    EXPECT_TRUE(loadError(write("wide.gltf", wide + "}}")).contains("more than 10000 members"));

    // A bracket in a text is no nesting.
    const QByteArray text =
        R"({"asset": {"version": "2.0"}, "extras": "\")" + QByteArray(1000, '[') + "\"}";
    EXPECT_EQ(loadError(write("text.gltf", text)), "");
    EXPECT_LT(time.elapsed(), 5000);
}

TEST_F(SceneFileErrorTest, AFailedLoadKeepsWhatWasLoadedBefore)
{
    loadText(R"({"asset": {"version": "2.0"}, "nodes": [{"name": "Kept"}],
        "extras": {"qxVariants": "<kept/>"}})");
    EXPECT_FALSE(file.load(write("bad.gltf", QByteArray("{}"))));

    EXPECT_EQ(find("Kept").name(), "Kept");
    EXPECT_EQ(file.variantsDocument(), "<kept/>");
    save(path("again.gltf"));
    EXPECT_EQ(jsonOf(path("again.gltf"))["nodes"][0]["name"], "Kept");
}
