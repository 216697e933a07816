#include "Program.h"

#include <QDirIterator>

/// Real scenes, in the folder that the environment variable QX_SCENES names.
class RealScenesTest : public ProgramFixture {
protected:
    void SetUp() override
    {
        if (qEnvironmentVariableIsEmpty("QX_SCENES"))
            GTEST_SKIP() << "QX_SCENES names no folder of real scenes";
    }

    /// The scene files in the folder; those that are made to be difficult, or the others.
    static QStringList scenes(bool difficult)
    {
        QStringList files;
        QDirIterator walk(qEnvironmentVariable("QX_SCENES"), {"*.gltf", "*.glb"}, QDir::Files,
                          QDirIterator::Subdirectories);
        while (walk.hasNext()) {
            if (walk.next().contains("/edge-cases/") == difficult)
                files += walk.filePath();
        }
        EXPECT_FALSE(files.isEmpty());
        files.sort();
        return files;
    }
};

TEST_F(RealScenesTest, EverySceneIsReadAndWrittenWithoutALoss)
{
    for (const QString &scene : scenes(false)) {
        SCOPED_TRACE(scene.toStdString());
        const QJsonValue json = sceneJson(scene);
        const QJsonObject info = done({"info", scene, "--json"}).object();
        EXPECT_EQ(info["nodes"].toInt(), json["nodes"].toArray().size());
        EXPECT_EQ(info["materials"].toInt(), json["materials"].toArray().size());
        EXPECT_GT(info["triangles"].toInt(), 0);

        const QString saved = path("saved." + QFileInfo(scene).suffix());
        EXPECT_EQ(done({"create", scene, "--json", "--save", saved}).array(), QJsonArray());
        EXPECT_EQ(differences(json, sceneJson(saved)), QStringList());
        EXPECT_EQ(done({"info", saved, "--json"}).object(), info);
        QDir(folder.path()).removeRecursively();
        QDir().mkpath(folder.path());
    }
}

TEST_F(RealScenesTest, ADocumentTravelsInEveryScene)
{
    const QString xml = QStringLiteral(QX_TEST_DATA "/Scenes/desk.xml");
    for (const QString &scene : scenes(false)) {
        SCOPED_TRACE(scene.toStdString());
        const QString saved = path("saved." + QFileInfo(scene).suffix());
        done({"document", scene, "--in", xml, "--save", saved});
        EXPECT_EQ(differences(sceneJson(scene), sceneJson(saved)).size(), 1);
        // None of these scenes has a desk: everything is skipped or without effect.
        EXPECT_EQ(done({"select", saved, "Morning", "--json"}).array()[0]["changes"], QJsonArray());
        EXPECT_EQ(done({"list", saved}).out, done({"list", desk()}).out);
    }
}

TEST_F(RealScenesTest, EveryDifficultFileLoadsOrIsRefusedInOneLineWithItsPath)
{
    int refusals = 0;
    for (const QString &scene : scenes(true)) {
        SCOPED_TRACE(scene.toStdString());
        const ProgramRun run = workbench({"create", scene, "--json", "--save", path("out.gltf")});
        EXPECT_EQ(QFile::exists(path("out.gltf")), run.code == 0);
        if (run.code == 0) {
            run.json();
            done({"info", path("out.gltf")});
            QFile::remove(path("out.gltf"));
            continue;
        }
        ++refusals;
        EXPECT_EQ(run.code, 1);
        EXPECT_EQ(run.out, "");
        EXPECT_TRUE(run.err.startsWith("workbench: " + scene.toUtf8() + ": "))
            << run.err.toStdString();
        EXPECT_EQ(run.err.count('\n'), 1) << run.err.toStdString();
    }
    EXPECT_GE(refusals, 5);
}
