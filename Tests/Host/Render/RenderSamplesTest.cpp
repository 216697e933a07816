#include "Cameras/qxMainView.h"
#include "Files/qxSceneFile.h"
#include "RenderFixture.h"

#include <QDirIterator>

#include <array>
#include <set>

/// Real scenes, in the folder that the environment variable QX_SCENES names.
class RenderSamplesTest : public RenderFixture {
protected:
    void SetUp() override
    {
        samples = qEnvironmentVariable("QX_SCENES");
        if (samples.isEmpty())
            GTEST_SKIP() << "QX_SCENES names no folder of sample scenes";
    }

    /// How many colours a picture of the scene has in front of plain black.
    std::size_t coloursSeen()
    {
        qxMainView::the() = qxMainView();
        const std::vector<std::uint8_t> bytes = picture().bytes();
        std::set<std::array<std::uint8_t, 3>> colours;
        for (std::size_t i = 0; i < bytes.size(); i += 4)
            colours.insert({bytes[i], bytes[i + 1], bytes[i + 2]});
        return colours.size();
    }

    QString samples;
};

TEST_F(RenderSamplesTest, EverySceneWithTrianglesIsSeenInBothQualities)
{
    int count = 0;
    QDirIterator walk(samples, {"*.gltf", "*.glb"}, QDir::Files, QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        const QString path = walk.next();
        host.clearScene();
        qxSceneFile file;
        if (!file.load(path)) {
            EXPECT_TRUE(path.contains("/edge-cases/")) << file.errorString().toStdString();
            continue;
        }
        ++count;
        for (const int quality : {0, 2}) {
            settings.quality = quality;
            // Switches and masks may hide everything; such scenes have few triangles.
            const std::size_t colours = coloursSeen();
            EXPECT_TRUE(file.info().triangles < 100 || colours > 4) << path.toStdString();
            EXPECT_EQ(picture().bytes(), freshPicture().bytes()) << path.toStdString();
        }
    }
    EXPECT_GT(count, 5);
}
