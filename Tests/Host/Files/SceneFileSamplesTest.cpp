#include "Files/SceneFileFixture.h"
#include "qxNodeUtils.h"

#include <QDirIterator>

namespace {

/// The scene files below a folder of the samples.
QStringList scenesIn(const QString &folder)
{
    QStringList files;
    QDirIterator walk(folder, {"*.gltf", "*.glb"}, QDir::Files, QDirIterator::Subdirectories);
    while (walk.hasNext())
        files << walk.next();
    files.sort();
    return files;
}

} // namespace

/// Real scenes, in the folder that the environment variable QX_SCENES names.
class SceneFileSamplesTest : public SceneFileFixture {
protected:
    void SetUp() override
    {
        samples = qEnvironmentVariable("QX_SCENES");
        if (samples.isEmpty())
            GTEST_SKIP() << "QX_SCENES names no folder of sample scenes";
    }

    QString samples;
};

TEST_F(SceneFileSamplesTest, SavingWithoutChangesGivesTheSameJsonAndData)
{
    int count = 0;
    for (const QString &sample : scenesIn(samples)) {
        if (sample.contains("/edge-cases/"))
            continue;
        SCOPED_TRACE(sample.toStdString());
        load(sample);
        EXPECT_EQ(file.warnings(), QStringList());
        EXPECT_GT(scene.root().node()->getNChildren(), 0u);
        const QString saved = path(QString("%1/%2").arg(++count).arg(QFileInfo(sample).fileName()));
        save(saved);
        EXPECT_EQ(jsonOf(saved), jsonOf(sample));
        if (sample.endsWith(".glb")) {
            EXPECT_EQ(binOf(saved), binOf(sample));
        }
        load(saved);
        EXPECT_EQ(file.warnings(), QStringList());
    }
    EXPECT_GE(count, 10);
}

TEST_F(SceneFileSamplesTest, SamplesSurviveTheOtherContainer)
{
    for (const QString &sample : scenesIn(samples)) {
        if (sample.contains("/edge-cases/"))
            continue;
        SCOPED_TRACE(sample.toStdString());
        load(sample);
        const std::size_t nodes = qxNodeUtils::getSubTreeNodes(scene.root()).size();
        save(path("converted.glb"));
        load(path("converted.glb"));
        save(path("back/converted.gltf"));
        load(path("back/converted.gltf"));
        EXPECT_EQ(qxNodeUtils::getSubTreeNodes(scene.root()).size(), nodes);
        QDir(path("back")).removeRecursively();
    }
}

TEST_F(SceneFileSamplesTest, EveryEdgeCaseIsDecided)
{
    const std::vector<std::pair<const char *, const char *>> expected{
        {"MultipleScenes.gltf", ""},
        {"RecursiveNodes.gltf", "is its own ancestor"},
        {"SceneWithoutNodes.gltf", ""},
        {"WrongReportedLength.glb", "the header says"},
        {"escaped-strings.gltf", ""},
        {"required-extensions-unsupported.gltf", "requires what is not supported"},
        {"scene-invalid-child-oob.gltf", "node 4 refers to node 7, the file has 7"},
        {"scene-invalid-multiple-parents.gltf", "node 2 has two parents, node 0 and node 1"},
        {"truncated_chunk_data.glb", "the header says"},
        {"variants-empties.gltf", ""},
        {"variants-invalid_name.gltf", ""}};
    for (const auto &edge : expected) {
        const QString error = loadError(samples + "/edge-cases/" + edge.first);
        EXPECT_TRUE(error.contains(edge.second)) << edge.first << ": " << error.toStdString();
        EXPECT_EQ(error.isEmpty(), edge.second[0] == '\0') << edge.first << error.toStdString();
    }
}
