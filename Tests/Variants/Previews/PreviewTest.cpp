#include "qxVariantSet.h"
#include "qxVariants.h"

#include "Cameras/qxMainCameraService.h"
#include "Files/qxSceneFile.h"
#include "HostFixture.h"
#include "Pictures/qxMainGlView.h"
#include "Pictures/qxPictureProgress.h"
#include "qxOSGWidget.h"
#include "qxRaytracingManager.h"
#include "qxTestPaths.h"

#include <QBuffer>
#include <QPixmap>

/// A picture in which no two pixels are alike.
static QImage source(int width, int height)
{
    QImage image(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x)
            image.setPixelColor(x, y, QColor(x % 256, y % 256, x / 256 * 16 + y / 256));
    }
    return image;
}

/// The same as the scene graph holds it: from the lower left corner on.
static osg::ImageRefPtr sceneGraphPicture(const QImage &source)
{
    const QImage rows = source.mirrored().convertToFormat(QImage::Format_RGB888);
    std::vector<osg::UInt8> bytes;
    for (int y = 0; y < rows.height(); ++y)
        bytes.insert(bytes.end(), rows.constScanLine(y), rows.constScanLine(y) + 3 * rows.width());
    const osg::ImageRefPtr picture(osg::Image::create());
    const osg::CPEditor edit(picture.get());
    picture->set(osg::Image::OSG_RGB_PF, rows.width(), rows.height(), 1, 1, 1, 0, bytes.data());
    return picture;
}

/// That part of the picture as a preview, by way of a pixmap.
static QByteArray previewOf(const QImage &source, const QRect &square)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPixmap::fromImage(source)
        .copy(square)
        .scaled(264, 256, Qt::IgnoreAspectRatio, Qt::FastTransformation)
        .save(&buffer, "PNG");
    return buffer.data();
}

/// Notes how the host is asked about the default viewpoint.
class NotedCameraService : public qxMainCameraService {
public:
    int findViewpoint(const std::string &name) const override
    {
        asked.push_back("find \"" + name + "\"");
        return int(name.size());
    }
    void moveToViewpoint(int, int, int, int) override { asked.push_back("move"); }
    void setHomeViewpoint(int id, int home) override
    {
        asked.push_back("home " + std::to_string(id) + " " + std::to_string(home));
    }

    mutable std::vector<std::string> asked;
};

/// Hears the quality of ray tracing while pictures are rendered.
class RenderedPreviewTest : public HostFixture {
protected:
    RenderedPreviewTest()
    {
        scene.addGeometry("Box");
        set = qxVariants::createVariantSet("Set", false, nullptr);
        utils->setImageQuality(2);
        qxPictureProgress::setDisplay([this](double) {
            qualities.push_back(utils->getImageQuality());
            return !isCancelled;
        });
    }
    ~RenderedPreviewTest() override
    {
        qxPictureProgress::setDisplay({});
        qxOSGWidget::setRaytracing(false);
    }

    qxVariantSet *set;
    qxRaytracingUtils *utils = qxRaytracingManager::getRaytracingUtils();
    std::vector<int> qualities;
    bool isCancelled = false;
};

typedef HostFixture FrameBufferTest;

TEST_F(RenderedPreviewTest, ThePreviewIsAPngOf264By256)
{
    const QByteArray preview = qxVariants::createPreviewImage(false, false);
    EXPECT_EQ(QImage::fromData(preview, "PNG").size(), QSize(264, 256));
    EXPECT_EQ(qxVariants::createPreviewImage(false, true), preview);
    qxVariants::renderVariantSetPreview(set, false, false, false);
    EXPECT_EQ(set->getPreview(), preview);
    EXPECT_TRUE(qualities.empty()) << "progress was shown though nobody asked for it";
}

TEST_F(RenderedPreviewTest, OnlyAViewThatTracesRaysUsesTheBestQuality)
{
    struct Case {
        bool isRaytracing, isFull;
        int meanwhile;
    };
    for (const Case &each : {Case{false, false, 2}, Case{false, true, 2}, Case{true, false, 2},
                             Case{true, true, -1}}) {
        SCOPED_TRACE(testing::Message() << each.isRaytracing << each.isFull);
        qxOSGWidget::setRaytracing(each.isRaytracing);
        qualities.clear();
        EXPECT_FALSE(qxVariants::createPreviewImage(true, each.isFull).isEmpty());
        ASSERT_FALSE(qualities.empty());
        EXPECT_EQ(qualities, std::vector<int>(qualities.size(), each.meanwhile));
        EXPECT_EQ(utils->getImageQuality(), 2);
    }
}

TEST_F(RenderedPreviewTest, ACapturedSetGetsOneOfTheBestQualityWithoutProgress)
{
    qxSceneFile file; // something with edges
    ASSERT_TRUE(file.load(QX_TEST_DATA "/Scenes/signs.gltf"));
    qxOSGWidget::setRaytracing(true);
    qxVariants::createAndCaptureVariantSet("Captured", "");
    const QByteArray preview = qxVariants::findVariantSet("Captured")->getPreview();
    EXPECT_TRUE(qualities.empty());
    EXPECT_EQ(preview, qxVariants::createPreviewImage(false, true));
    EXPECT_NE(preview, qxVariants::createPreviewImage(false, false));
}

TEST_F(RenderedPreviewTest, ARenderingThatIsEndedLeavesAnEmptyPreview)
{
    qxOSGWidget::setRaytracing(true);
    isCancelled = true;
    set->setPreview("earlier");
    qxVariants::renderVariantSetPreview(set, false, true, true);
    EXPECT_EQ(set->getPreview(), QByteArray());
    EXPECT_EQ(qualities.front(), -1);
    EXPECT_EQ(utils->getImageQuality(), 2);
    isCancelled = false;
    EXPECT_FALSE(qxVariants::createPreviewImage(true, false).isEmpty());
}

TEST_F(RenderedPreviewTest, ASetThatIsRemovedMeanwhileIsKeptUntilItsPreviewIsDone)
{
    qxPictureProgress::setDisplay([](double) { return qxVariants::removeVariantSet("Set"); });
    qxVariants::renderVariantSetPreview(set, false, true, false);
    EXPECT_EQ(qxVariants::findVariantSet("Set"), nullptr);
}

TEST_F(RenderedPreviewTest, TheCameraServiceGetsTheDefaultViewpointBack)
{
    NotedCameraService camera;
    qxKernelServiceFactory *const services = qxKernelServiceFactory::the();
    services->registerService<qxCameraService>(&camera);
    qxVariants::renderVariantSetPreview(nullptr, false, true, false);
    EXPECT_TRUE(qualities.empty()); // no set, no picture
    set->defaultViewpoint = "Über";
    qxVariants::renderVariantSetPreview(set, false, false, false);
    set->defaultViewpoint.clear();
    qxVariants::renderVariantSetPreview(set, true, false, false);
    EXPECT_EQ(camera.asked,
              (std::vector<std::string>{"find \"Über\"", "home 5 1", "find \"\"", "home 0 1"}));
    services->registerService<qxCameraService>(nullptr);
    qxVariants::renderVariantSetPreview(set, false, false, false);
    EXPECT_FALSE(set->getPreview().isEmpty());
}

TEST_F(FrameBufferTest, TheCentredSquareIsStretchedWithoutSmoothing)
{
    struct Crop {
        int width, height;
        QRect square;
    };
    qxMainGlView view(320, 200);
    qxVariantSet set("Set");
    for (const Crop &crop : {Crop{800, 600, {100, 0, 600, 600}}, Crop{600, 800, {0, 100, 600, 600}},
                             Crop{7, 4, {1, 0, 4, 4}}, Crop{4, 7, {0, 1, 4, 4}},
                             Crop{264, 264, {0, 0, 264, 264}}, Crop{1, 1, {0, 0, 1, 1}}}) {
        SCOPED_TRACE(testing::Message() << crop.width << " by " << crop.height);
        const QImage shown = source(crop.width, crop.height);
        view.show(sceneGraphPicture(shown).get());
        const QByteArray preview = qxVariants::getPreviewImageFromFrameBuffer(nullptr);
        EXPECT_EQ(preview, previewOf(shown, crop.square));
        qxVariants::renderVariantSetPreview(&set, true, false, false);
        EXPECT_EQ(set.getPreview(), preview);
    }
}

TEST_F(FrameBufferTest, WithoutAViewThatShowsSomethingAnEmptyPreviewIsStored)
{
    qxVariantSet set("Set");
    const auto expectEmpty = [&set] {
        set.setPreview("earlier");
        qxVariants::renderVariantSetPreview(&set, true, false, false);
        EXPECT_EQ(set.getPreview(), QByteArray());
    };
    expectEmpty();
    const qxMainGlView view(20000, 8);
    expectError("A picture cannot have 20000 by 8 pixels");
    expectEmpty();
}
