#include "HostFixture.h"
#include "Pictures/qxMainGlView.h"
#include "Pictures/qxPictureProgress.h"
#include "Pictures/qxScenePicture.h"
#include "qxImageRenderWidget.h"
#include "qxImageWriter.h"
#include "qxRaytracingManager.h"

#include <QImage>
#include <QTest>

static osg::ImageRefPtr picture(osg::UInt32 format, int width, int height,
                                const std::vector<osg::UInt8> &bytes)
{
    const osg::ImageRefPtr image(osg::Image::create());
    const osg::CPEditor edit(image.get());
    image->set(format, width, height, 1, 1, 1, 0, bytes.data());
    return image;
}

static QImage converted(const osg::ImageRefPtr &image)
{
    QImage result(3, 3, QImage::Format_RGB32);
    qxImageRenderWidget::convertToQImage(result, image.get());
    return result;
}

class PicturesTest : public HostFixture {
protected:
    ~PicturesTest() override
    {
        qxPictureProgress::setDisplay({});
        qxOSGWidget::setRaytracing(false);
        qxRaytracingManager::getRaytracingUtils()->setImageQuality(16);
    }

    static void traceRays(int quality)
    {
        qxOSGWidget::setRaytracing(true);
        qxRaytracingManager::getRaytracingUtils()->setImageQuality(quality);
    }

    static QByteArray shown(qxOSGWidget &view)
    {
        const osg::ImageRefPtr image(osg::Image::create());
        int width = -1;
        int height = -1;
        view.captureImage(image.get(), width, height);
        return {reinterpret_cast<const char *>(image->getData()), int(image->getSize())};
    }

    static bool isRefined(const qxMainGlView &view)
    {
        return QTest::qWaitFor([&view] { return !view.isRefining(); }, 60000);
    }
};

TEST_F(PicturesTest, PicturesOfTheSceneGraphAreTurnedOverForTheUserInterface)
{
    const QImage turned = converted(picture(osg::Image::OSG_RGB_PF, 1, 2, {255, 0, 0, 0, 0, 255}));
    ASSERT_EQ(turned.size(), QSize(1, 2));
    EXPECT_EQ(turned.pixelColor(0, 0), QColor(0, 0, 255));
    EXPECT_EQ(turned.pixelColor(0, 1), QColor(255, 0, 0));

    EXPECT_EQ(converted(picture(osg::Image::OSG_RGBA_PF, 1, 1, {1, 2, 3, 4})).pixelColor(0, 0),
              QColor(1, 2, 3, 4));
    EXPECT_EQ(converted(picture(osg::Image::OSG_BGR_PF, 1, 1, {1, 2, 3})).pixelColor(0, 0),
              QColor(3, 2, 1));
    EXPECT_EQ(converted(picture(osg::Image::OSG_L_PF, 3, 1, {7, 8, 9})).pixelColor(2, 0),
              QColor(9, 9, 9));
    for (const osg::ImagePtr &none : {osg::ImagePtr(), osg::Image::create()})
        EXPECT_TRUE(converted(osg::ImageRefPtr(none)).isNull());
}

TEST_F(PicturesTest, TheMainViewIsFoundWhileItLivesAndShowsAPictureUntilANewOneIsAskedFor)
{
    {
        const qxMainGlView view(8, 4);
        EXPECT_EQ(qxOSGWidget::getMGLW(-1), &view);
        EXPECT_EQ(qxOSGWidget::getMGLW(0), &view);
        EXPECT_EQ(qxOSGWidget::getMGLW(1), nullptr);
        EXPECT_EQ(qxOSGWidget::getMGLW(-2), nullptr);
    }
    EXPECT_EQ(qxOSGWidget::getMGLW(-1), nullptr);
    qxOSGWidget::cancelAntialiasing();

    qxMainGlView view(8, 4);
    view.show(picture(osg::Image::OSG_RGB_PF, 1, 1, {1, 2, 3}).get());
    QCoreApplication::processEvents();
    EXPECT_EQ(shown(view), QByteArray("\1\2\3"));
    qxController::updateRender(false);
    EXPECT_EQ(shown(view).size(), 8 * 4 * 3);
}

TEST_F(PicturesTest, ARefiningPictureStaysAsItIsWhenItIsCancelled)
{
    traceRays(20);
    qxMainGlView view(8, 4);
    int steps = 0;
    for (; view.isRefining() && steps < 100; ++steps)
        view.refine();
    EXPECT_EQ(steps, 4) << "quick, 4, 16 and 20 samples";

    qxController::updateRender(false);
    EXPECT_TRUE(view.isRefining());
    view.refine();
    view.refine();
    const QByteArray halfDone = shown(view);
    qxOSGWidget::cancelAntialiasing();
    EXPECT_FALSE(view.isRefining());
    view.refine();
    QCoreApplication::processEvents();
    EXPECT_EQ(shown(view), halfDone);
}

TEST_F(PicturesTest, AFluentViewDrawsAPartOfThePixelsFirst)
{
    const int width = 1600; // more than what is supposed of an unknown machine
    const int height = 1200;
    std::vector<int> widths;
    std::vector<float> shares;
    qxMainGlView view(width, height);
    view.setFluent(true);
    view.setListener([&] { widths.push_back(view.picture()->getWidth()); });
    view.setProgressListener([&](float share) { shares.push_back(share); });
    ASSERT_TRUE(isRefined(view));
    ASSERT_EQ(widths.size(), 2u);
    EXPECT_EQ(widths.back(), width);
    EXPECT_EQ(shares.back(), 1);
    EXPECT_LT(shares.front(), 1);
    EXPECT_TRUE(std::is_sorted(shares.begin(), shares.end()));

    qxMainGlView captured(width, height);
    captured.setFluent(true);
    EXPECT_TRUE(QTest::qWaitFor([&] { return captured.picture()->isValid(); }, 60000));
    ASSERT_TRUE(captured.isRefining());
    EXPECT_EQ(shown(captured).size(), width * height * 3) << "not the coarse one";
    EXPECT_FALSE(captured.isRefining());
}

TEST_F(PicturesTest, ARefiningIsInterruptedByQuestions)
{
    traceRays(1000000); // which no machine ends
    qxMainGlView view(64, 64);
    bool isNew = false;
    float begin = 0; // of the step that is being made
    float last = 0;
    view.setListener([&] { isNew = true; });
    view.setProgressListener([&](float share) {
        begin = isNew ? share : begin;
        isNew = false;
        last = share;
    });
    const auto isWithinAStep = [&] { return last > begin; };
    EXPECT_TRUE(QTest::qWaitFor(isWithinAStep, 60000));
    qxPictureSettings settings;
    settings.width = settings.height = 64;
    qxScenePicture::nodeAt(settings, 32, 32);
    EXPECT_EQ(last, begin) << "the step begins again";
    EXPECT_TRUE(view.isRefining());

    EXPECT_TRUE(QTest::qWaitFor(isWithinAStep, 60000)) << "and it goes on by itself";
    EXPECT_LT(last, 1);
    qxRaytracingManager::getRaytracingUtils()->setImageQuality(1);
    qxController::updateRender(false); // A request ends it.
    EXPECT_TRUE(isRefined(view));
    EXPECT_EQ(last, 1);
}

TEST_F(PicturesTest, TheViewWaitsWhileAnotherPictureIsMade)
{
    qxMainGlView view(8, 4);
    int pictures = 0;
    view.setListener([&pictures] { ++pictures; });
    qxPictureSettings settings;
    settings.width = settings.height = 64;
    qxScenePicture::render(settings, [](int, int) {
        QCoreApplication::processEvents();
        return true;
    });
    EXPECT_EQ(pictures, 0);
    EXPECT_TRUE(isRefined(view));
    EXPECT_EQ(pictures, 1);
}

TEST_F(PicturesTest, TheFastExportGivesPngBytesOnlyWhileItIsPrepared)
{
    qxImageWriter writer;
    writer.exportImageFastInit(30, 20, 0);
    const std::string png = writer.exportImageFast();
    EXPECT_EQ(QImage::fromData(QByteArray::fromStdString(png), "PNG").size(), QSize(30, 20));
    EXPECT_EQ(writer.exportImageFast(), png);

    const std::string reason = "No picture: the export is not prepared for the main view.";
    expectError(reason);
    writer.exportImageFastTerminate();
    EXPECT_EQ(writer.exportImageFast(), "");
    expectError(reason);
    writer.exportImageFastInit(30, 20, 1);
    EXPECT_EQ(writer.exportImageFast(), "");
}

TEST_F(PicturesTest, TheProgressOfAnExportCanEndIt)
{
    std::vector<double> shares;
    qxPictureProgress::setDisplay([&shares](double share) {
        shares.push_back(share);
        return shares.size() < 2;
    });
    qxImageWriter writer;
    writer.exportImageFastInit(64, 64, 0);
    EXPECT_EQ(writer.exportImageFast(), "");
    EXPECT_EQ(shares.size(), 3u);
    EXPECT_EQ(shares.front(), 0);
    EXPECT_EQ(shares.back(), 1) << "there is no picture, but the rendering has ended";
    writer.setNoProgress(true);
    EXPECT_NE(writer.exportImageFast(), "");
    EXPECT_EQ(shares.size(), 3u);
}
