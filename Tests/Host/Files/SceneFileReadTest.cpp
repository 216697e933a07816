#include "Files/SceneFileFixture.h"

namespace {

/// What is no scene at all, and words of the message that it must cause.
const std::pair<const char *, const char *> _texts[] = {
    {"", "not valid JSON"},
    {"{\"asset\"", "not valid JSON"},
    {"[]", "the JSON is not an object"},
    {"{}", "states no version"},
    {R"({"asset": {"version": "1.0"}})", "made for glTF version 1.0"},
    {R"({"asset": {"version": "2.1", "minVersion": "2.1"}})", "made for glTF version 2.1"},
    {"{\"asset\": \"\xff\"}", "not valid JSON"},
};

} // namespace

class SceneFileReadTest : public SceneFileFixture {
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
};

TEST_F(SceneFileReadTest, NodesKeepNamesOrderTransformsAndStates)
{
    // Each with a title, what follows the "asset", the expected tree and the warnings.
    const QString text = bytesOf(testData("Scenes/trees.txt")).trimmed();
    for (const QString &each : text.split("\n\n")) {
        SCOPED_TRACE(each.section('\n', 0, 0).toStdString());
        const QStringList warnings = each.section('\n', 1).split("\n! ");
        loadText(warnings[0].section("\n= ", 0, 0).toUtf8());
        EXPECT_EQ(tree(), ' ' + warnings[0].section("\n= ", 1).toStdString());
        EXPECT_EQ(file.warnings(), warnings.mid(1));
        saveAndLoad();
        expectSaved(jsonOf(path("scene.gltf")));
    }
}

TEST_F(SceneFileReadTest, TheStatedSceneIsShownWithItsVariantsDocument)
{
    loadText(R"("scene": 1, "nodes": [{"name": "A"}, {"name": "B"}], "scenes": [
        {"nodes": [0], "extras": {"qxVariants": "<other/>"}},
        {"nodes": [1], "extras": {"qxVariants": "<VariantSets/>"}}])");
    EXPECT_EQ(tree(), " (Group 'B')");
    EXPECT_EQ(file.variantsDocument(), "<VariantSets/>");

    // Without any scene: the nodes without parents.
    loadText(R"("nodes": [{"name": "Child"}, {"name": "Top", "children": [0]}],
        "extras": {"qxVariants": "<root/>"})");
    EXPECT_EQ(tree(), " (Group 'Top' (Group 'Child'))");
    EXPECT_EQ(file.variantsDocument(), "<root/>");
}

TEST_F(SceneFileReadTest, AMeshOfItsNodesNameIsHiddenWithTheNode)
{
    qxJson json = sample("triangle");
    json["nodes"][0]["name"] = "Shape";
    const qxJson shown = json;
    json["nodes"][0]["extras"]["qxHiddenParts"] = {0};
    qxJson hidden = json;
    hidden["nodes"][0]["extensions"]["KHR_node_visibility"]["visible"] = false;
    for (const qxJson &each : {json, hidden}) {
        load(each);
        EXPECT_EQ(tree(), " (Group 'Shape' hidden (Geometry - <>))");
        expectSaved(each);
        find("Shape").setMask(0xFFFFFFFF);
        expectSaved(shown);
    }
    json["meshes"][0]["primitives"].push_back(qxJson(json["meshes"][0]["primitives"][0]));
    load(json);
    EXPECT_EQ(tree(), " (Group 'Shape' (Geometry - <> hidden, Geometry - <>))") << "a part of it";
}

TEST_F(SceneFileReadTest, ChainsOfAHundredThousandNodesLoadAndComeBack)
{
    const int depth = 100000;
    qxJson json = {{"asset", {{"version", "2.0"}}}};
    for (int i = 0; i + 1 < depth; ++i)
        json["nodes"].push_back({{"children", qxJson::array({i + 1})}});
    json["nodes"].push_back({{"name", "Deepest"}});
    load(json);
    find("Deepest").setMask(0);
    save(path("deep.gltf"));
    load(path("deep.gltf"));
    EXPECT_EQ(find("Deepest").mask(), 0u);
    EXPECT_EQ(qxScenegraph::findNodes("Deepest").size(), 1u);
    qxScenegraph::initFindCache();
    EXPECT_EQ(find("Deepest").mask(), 0u);
    qxScenegraph::clearFindCache();
}

TEST_F(SceneFileReadTest, EveryFaultIsSaidInPlainWords)
{
    // A line of what follows the "asset", and below it words of the message.
    const QList<QByteArray> lines = bytesOf(testData("Scenes/faults.txt")).split('\n');
    ASSERT_GT(lines.size(), 90);
    for (int line = 0; line + 1 < lines.size(); line += 2)
        expectRefused(sceneText(lines[line]), lines[line + 1].trimmed());
    for (const auto &[text, words] : _texts)
        expectRefused(QByteArray(text), words);
    EXPECT_TRUE(loadError(path("nowhere.gltf")).contains("the file does not exist"));
    EXPECT_TRUE(loadError(folder.path()).contains("it is not a file"));
}

TEST_F(SceneFileReadTest, DamagedContainersAreRefused)
{
    load(testData("Scenes/triangle.gltf"));
    save(path("good.glb"));
    const QByteArray good = bytesOf(path("good.glb"));
    for (int length = 4; length < good.size(); ++length)
        expectRefused(good.left(length), "");

    expectRefused(good + "1234", "the header says");
    expectRefused(QByteArray(good).replace(13, 1, "\x7f"), "JSON chunk is cut off");
    expectRefused(QByteArray(good).replace(4, 1, "\1"), "container version 1");
}

TEST_F(SceneFileReadTest, WhatIsMadeToExhaustTheReaderIsRefusedAtOnce)
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

TEST_F(SceneFileReadTest, AFailedLoadKeepsWhatWasLoadedBefore)
{
    loadText(R"("nodes": [{"name": "Kept"}], "extras": {"qxVariants": "<kept/>"})");
    EXPECT_FALSE(file.load(write("bad.gltf", QByteArray("{}"))));
    EXPECT_EQ(find("Kept").name(), "Kept");
    EXPECT_EQ(file.variantsDocument(), "<kept/>");
    save(path("again.gltf"));
    EXPECT_EQ(jsonOf(path("again.gltf"))["nodes"][0]["name"], "Kept");
}
