#include "Files/Gltf/Read/qxGltfExtensions.h"
#include "Files/SceneFileFixture.h"
#include "Files/qxMemoryBudget.h"

#include <QDir>
#include <QRegularExpression>

#include <sys/stat.h>

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

class SceneFileReadTest : public SceneFileFixture {
protected:
    /// Expects that a file of these bytes is refused in these words, and that nothing is shown.
    void expectRefused(const qxJson &json, const QString &words)
    {
        expectRefused(QByteArray::fromStdString(json.dump()), words);
    }
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

TEST_F(SceneFileReadTest, NodesNestAThousandLevelsDeep)
{
    qxJson json = {{"asset", {{"version", "2.0"}}}};
    for (int i = 1; i < 1000; ++i)
        json["nodes"].push_back({{"children", qxJson::array({i})}});
    json["nodes"].push_back({{"name", "Deepest"}});
    load(json);
    find("Deepest").setMask(0);
    save(path("deep.gltf"));
    load(path("deep.gltf"));
    EXPECT_EQ(find("Deepest").mask(), 0u);
    qxScenegraph::initFindCache();
    EXPECT_EQ(find("Deepest").mask(), 0u);
    qxScenegraph::clearFindCache();

    // The order of the list is not that of the levels.
    qxJson deeper = json;
    deeper["nodes"].push_back({{"name", "Top"}, {"children", {0}}});
    expectRefused(deeper, "node 999 \"Deepest\" is nested deeper than 1000 levels");
    json["nodes"][0]["name"] = std::string(1000000, 'x');
    expectRefused(json, "the paths of all nodes together are longer than 32000000 characters");
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

TEST_F(SceneFileReadTest, DamagedContainersAndWhatIsMadeToExhaustTheReaderAreRefused)
{
    load(testData("Scenes/triangle.gltf"));
    save(path("good.glb"));
    const QByteArray good = bytesOf(path("good.glb"));
    for (int length = 4; length < good.size(); ++length)
        expectRefused(good.left(length), "");

    expectRefused(good + "1234", "the header says");
    expectRefused(QByteArray(good).replace(13, 1, "\x7f"), "JSON chunk is cut off");
    expectRefused(QByteArray(good).replace(4, 1, "\1"), "container version 1");

    expectRefused(sceneText(R"("extras": )" + QByteArray(1000000, '[')), "nested deeper than");
    QByteArray wide = R"("a": 0)";
    for (int i = 0; i < 200000; ++i)
        wide += ",\"" + QByteArray::number(i) + "\":0";
    expectRefused(sceneText(wide), "more than 10000 members");

    // A bracket in a text is no nesting.
    const QByteArray text = R"("extras": ")" + QByteArray(1000, '[') + '"';
    EXPECT_EQ(loadError(write("text.gltf", sceneText(text))), "");
}

TEST_F(SceneFileReadTest, WhatIsDecodedStaysWithinTheMemoryLimit)
{
    const auto mesh = [](int parts, int count, int nodes) {
        qxJson json = qxJson::parse(
            R"({"asset": {"version": "2.0"}, "meshes": [{"name": "M"}],
                "accessors": [{"componentType": 5126, "type": "VEC3"}]})");
        json["accessors"][0]["count"] = count;
        for (int i = 0; i < parts; ++i)
            json["meshes"][0]["primitives"].push_back(
                {{"mode", 0}, {"attributes", {{"POSITION", 0}, {"NORMAL", 0}}}});
        json["nodes"] = qxJson(std::size_t(nodes), {{"mesh", 0}});
        return json;
    };
    const QByteArray text(1000000, 'A');
    const QByteArray data = R"("buffers": [{"byteLength": 9, "uri": "data:;base64,)" + text;
    qxMemoryBudget::setLimit(3000000);
    EXPECT_EQ(loadError(write("fits.gltf", mesh(1, 30000, 1))), "");
    expectRefused(mesh(1, 60000, 1), "mesh 0 \"M\", primitive 0: 2.06 MB of memory are needed");
    expectRefused(mesh(4, 30000, 1), "mesh 0 \"M\", primitive 2: 1.03 MB of memory are needed");
    expectRefused(mesh(100, 1, 100), "of 2.861 MB are left (--memory-limit)");
    expectRefused(sceneText("\"extras\": [" + QByteArray(60000, ',').replace(",", "0,") + "0]"),
                  "its JSON: 5.723 MB of memory are needed");
    expectRefused(sceneText(data + text.left(200000) + "\"}]"),
                  "buffer 0: 0.8583 MB of memory are");
    expectRefused(sceneText(R"("nodes": [{}], "animations": [{"samplers": [{"input": 0}],
        "channels": [{"sampler": 0, "target": {"node": 0, "path": "scale"}}]}], "accessors":
        [{"componentType": 5126, "count": 900000, "type": "SCALAR"}])"),
                  "animation 0, channel 0: 3.433 MB of memory are needed");
    EXPECT_EQ(loadError(write("fits.gltf", sceneText(data + "\"}]"))), "");
    write("data.bin", QByteArray(4000000, 0));
    expectRefused(sceneText(R"("buffers": [{"byteLength": 9, "uri": "data.bin"}])"),
                  "buffer 0: \"data.bin\": 3.815 MB of memory are needed");
    loadText("\"extras\": 0");
    EXPECT_TRUE(file.hasRoomFor(QByteArray(1200, 'A').replace("A", "<A b=''>")));
    EXPECT_FALSE(file.hasRoomFor(QByteArray(1600, 'A').replace("A", "<A b=''>")));
    qxMemoryBudget::setLimit(qxMemoryBudget::fromText("2GB"));
    EXPECT_EQ(loadError(path("fits.gltf")), "");
}

TEST_F(SceneFileReadTest, NothingIsReadThatLiesOutsideOfTheFolderOrIsNoFile)
{
    const QString linked = write("in/scene.gltf",
                                 sceneText(R"("buffers": [{"byteLength": 4)"
                                           R"(, "uri": "d/data.bin"}])"));
    const auto error = [&](const QString &target, const char *link = "in/d") {
        EXPECT_TRUE(QFile::link(target, path(link)));
        const QString said = loadError(linked);
        QFile::remove(path(link));
        return said.mid(said.indexOf(": buffer 0: ") + 12);
    };
    const QString outside = "\"d/data.bin\": it leads out of the folder of the scene file";
    write("other/data.bin", QByteArray("data"));
    write("in/real/data.bin", QByteArray("data"));
    write("inner/data.bin", QByteArray("data")); // a name that begins as the folder's
    EXPECT_EQ(error("../other"), outside);
    EXPECT_EQ(error(path("inner")), outside);
    EXPECT_EQ(error("real"), QString());
    EXPECT_EQ(error("../in/real"), QString());
    EXPECT_TRUE(error("/proc/self/fd").contains("does not exist"));
    QDir().mkdir(path("in/d"));
    EXPECT_EQ(error("/proc/self/environ", "in/d/data.bin"), outside);
    EXPECT_EQ(error("../scene.gltf", "in/d/data.bin"), QString());
    EXPECT_EQ(error("..", "in/d/data.bin"), "\"d/data.bin\": it is not a file");
    EXPECT_EQ(error("/dev/zero", "in/d/data.bin"), "\"d/data.bin\": it is not a file");
    ASSERT_EQ(mkfifo(QFile::encodeName(path("in/d/data.bin")).constData(), 0600), 0);
    EXPECT_TRUE(loadError(linked).contains("it is not a file"));

    // A link stands for the scene itself.
    QFile::remove(path("in/d/data.bin"));
    write("in/d/data.bin", QByteArray("data"));
    ASSERT_TRUE(QFile::link("in/scene.gltf", path("link.gltf")));
    load(path("link.gltf"));
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

TEST_F(SceneFileReadTest, TheTableOfExtensionsSaysWhatInfoSays)
{
    QStringList drawn;
    for (const QByteArray &line : bytesOf(testData("../../Docs/SceneFiles.md")).split('\n')) {
        const QRegularExpression row("^\\| `([A-Z]{2,4}_[a-zA-Z0-9_]+)` \\| (drawn|kept) \\|");
        const QRegularExpressionMatch found = row.match(line);
        if (!found.hasMatch())
            continue;
        const QByteArray name = found.captured(1).toUtf8();
        loadText("\"extensionsUsed\": [\"" + name + "\"], \"extensionsRequired\": [\"" + name
                 + "\"]");
        const bool isDrawn = found.captured(2) == "drawn";
        EXPECT_EQ(file.info().extensionsNotUnderstood.isEmpty(), isDrawn) << name.toStdString();
        EXPECT_EQ(file.info().extensionsMissing.isEmpty(), isDrawn) << name.toStdString();
        EXPECT_EQ(file.warnings().join("").contains(name), !isDrawn) << name.toStdString();
        if (isDrawn)
            drawn << name;
    }
    EXPECT_EQ(drawn, qxGltfUnderstoodExtensions());
}
