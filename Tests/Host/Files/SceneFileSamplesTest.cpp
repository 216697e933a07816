#include "Files/SceneFileFixture.h"

#include <QDirIterator>
#include <QMap>

/// Real scenes, in the folder that the environment variable QX_SCENES names.
class SceneFileSamplesTest : public SceneFileFixture {
protected:
    void SetUp() override
    {
        if (qEnvironmentVariableIsEmpty("QX_SCENES"))
            GTEST_SKIP() << "QX_SCENES names no folder of sample scenes";
        QDirIterator walk(qEnvironmentVariable("QX_SCENES"), {"*.gltf", "*.glb"}, QDir::Files,
                          QDirIterator::Subdirectories);
        while (walk.hasNext()) {
            const QString sample = walk.next();
            (sample.contains("/edge-cases/") ? edgeCases : samples) << sample;
        }
    }

    QStringList samples;
    QStringList edgeCases;
};

TEST_F(SceneFileSamplesTest, SavingWithoutChangesGivesTheSameJsonAndData)
{
    int count = 0;
    for (const QString &sample : samples) {
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

        // And by way of the other container.
        saveAndLoad("converted.glb");
        saveAndLoad("back/converted.gltf");
        QDir(path("back")).removeRecursively();
    }
    EXPECT_GE(count, 10);
}

TEST_F(SceneFileSamplesTest, EveryEdgeCaseIsDecided)
{
    const QMap<QString, QString> refused{
        {"RecursiveNodes.gltf", "is its own ancestor"},
        {"WrongReportedLength.glb", "the header says"},
        {"required-extensions-unsupported.gltf", "requires what is not supported"},
        {"scene-invalid-child-oob.gltf", "node 4 refers to node 7, the file has 7"},
        {"scene-invalid-multiple-parents.gltf", "node 2 has two parents, node 0 and node 1"},
        {"truncated_chunk_data.glb", "the header says"}};
    for (const QString &edgeCase : edgeCases) {
        SCOPED_TRACE(edgeCase.toStdString());
        const QString error = loadError(edgeCase);
        const QString expected = refused.value(QFileInfo(edgeCase).fileName());
        EXPECT_TRUE(error.contains(expected)) << error.toStdString();
        EXPECT_EQ(error.isEmpty(), expected.isEmpty()) << error.toStdString();
    }
    EXPECT_GE(edgeCases.size(), 11);
}
