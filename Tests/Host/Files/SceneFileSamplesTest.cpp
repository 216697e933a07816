#include "Files/SceneFileFixture.h"
#include "Render/qxRenderer.h"

#include <QDirIterator>

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
        qxPictureSettings settings;
        settings.width = settings.height = 48;
        for (settings.quality = 0; settings.quality <= 2; settings.quality += 2)
            // Switches and masks may hide everything; such scenes have few triangles.
            EXPECT_TRUE(file.info().triangles < 100
                        || qxRenderer().render(settings).content == qxPicture::Shown);
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
    QStringList refused;
    for (const QString &edgeCase : edgeCases) {
        if (!loadError(edgeCase).isEmpty())
            refused << QFileInfo(edgeCase).fileName();
    }
    refused.sort();
    EXPECT_EQ(refused,
              (QStringList{"RecursiveNodes.gltf", "WrongReportedLength.glb",
                           "scene-invalid-child-oob.gltf", "scene-invalid-multiple-parents.gltf",
                           "truncated_chunk_data.glb"}));
    EXPECT_GE(edgeCases.size(), 11);
}
