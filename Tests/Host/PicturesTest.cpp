#include "HostFixture.h"
#include "Pictures/qxMainGlView.h"
#include "Pictures/qxPictureProgress.h"
#include "Pictures/qxScenePicture.h"
#include "qxController.h"
#include "qxImageRenderWidget.h"
#include "qxImageWriter.h"
#include "qxRaytracingManager.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QImage>

namespace {

osg::ImageRefPtr picture(osg::UInt32 format, int width, int height,
                         const std::vector<osg::UInt8> &bytes)
{
    const osg::ImageRefPtr image(osg::Image::create());
    const osg::CPEditor edit(image.get());
    image->set(format, width, height, 1, 1, 1, 0, bytes.data());
    return image;
}

class PicturesTest : public HostFixture {
protected:
    ~PicturesTest() override
    {
        qxPictureProgress::setDisplay({});
        qxOSGWidget::setRaytracing(false);
        qxRaytracingManager::getRaytracingUtils()->setImageQuality(16);
    }

    static QByteArray shown(qxOSGWidget &view)
    {
        const osg::ImageRefPtr image(osg::Image::create());
        int width = -1;
        int height = -1;
        view.captureImage(image.get(), width, height);
        const auto bytes = reinterpret_cast<const char *>(image->getData());
        return bytes ? QByteArray(bytes, int(image->getSize())) : QByteArray();
    }
};

} // namespace

TEST_F(PicturesTest, PicturesOfTheSceneGraphAreTurnedOverForTheUserInterface)
{
    QImage image(3, 3, QImage::Format_RGB32);
    const auto rgb = picture(osg::Image::OSG_RGB_PF, 1, 2, {255, 0, 0, 0, 0, 255});
    qxImageRenderWidget::convertToQImage(image, rgb.get());
    ASSERT_EQ(image.size(), QSize(1, 2));
    EXPECT_EQ(image.pixelColor(0, 0), QColor(0, 0, 255));
    EXPECT_EQ(image.pixelColor(0, 1), QColor(255, 0, 0));

    const auto rgba = picture(osg::Image::OSG_RGBA_PF, 1, 1, {1, 2, 3, 4});
    qxImageRenderWidget::convertToQImage(image, rgba.get());
    EXPECT_EQ(image.pixelColor(0, 0), QColor(1, 2, 3, 4));
    const auto bgr = picture(osg::Image::OSG_BGR_PF, 1, 1, {1, 2, 3});
    qxImageRenderWidget::convertToQImage(image, bgr.get());
    EXPECT_EQ(image.pixelColor(0, 0), QColor(3, 2, 1));
    const auto grey = picture(osg::Image::OSG_L_PF, 3, 1, {7, 8, 9});
    qxImageRenderWidget::convertToQImage(image, grey.get());
    EXPECT_EQ(image.pixelColor(2, 0), QColor(9, 9, 9));
}

TEST_F(PicturesTest, WhatIsNoPictureBecomesANullImage)
{
    QImage image(3, 3, QImage::Format_RGB32);
    qxImageRenderWidget::convertToQImage(image, osg::NullFC);
    EXPECT_TRUE(image.isNull());
    image = QImage(3, 3, QImage::Format_RGB32);
    qxImageRenderWidget::convertToQImage(image, osg::ImageRefPtr(osg::Image::create()).get());
    EXPECT_TRUE(image.isNull());
}

TEST_F(PicturesTest, TheMainViewIsFoundWhileItLives)
{
    EXPECT_EQ(qxOSGWidget::getMGLW(-1), nullptr);
    {
        qxMainGlView view(8, 4);
        EXPECT_EQ(qxOSGWidget::getMGLW(-1), &view);
        EXPECT_EQ(qxOSGWidget::getMGLW(0), &view);
        EXPECT_EQ(qxOSGWidget::getMGLW(1), nullptr);
        EXPECT_EQ(qxOSGWidget::getMGLW(-2), nullptr);
        EXPECT_EQ(shown(view).size(), 8 * 4 * 3);
    }
    EXPECT_EQ(qxOSGWidget::getMGLW(-1), nullptr);
    qxOSGWidget::cancelAntialiasing();
}

TEST_F(PicturesTest, ARefiningPictureStaysAsItIsWhenItIsCancelled)
{
    qxOSGWidget::setRaytracing(true);
    qxRaytracingManager::getRaytracingUtils()->setImageQuality(20);
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

TEST_F(PicturesTest, TheViewRefinesOnItsOwnWhileTheProgramIsIdle)
{
    qxOSGWidget::setRaytracing(true);
    qxRaytracingManager::getRaytracingUtils()->setImageQuality(2);
    qxMainGlView view(8, 4);
    QElapsedTimer time;
    time.start();
    while (view.isRefining() && time.elapsed() < 20000)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 100);
    EXPECT_FALSE(view.isRefining());
}

TEST_F(PicturesTest, AFluentViewMovesWithFewerPixelsAndEndsWithAllOfThem)
{
    std::vector<int> widths;
    std::vector<float> shares;
    qxMainGlView view(1600, 1200); // more than a machine manages in no time
    view.setFluent(true);
    view.setListener([&] { widths.push_back(view.picture()->getWidth()); });
    view.setProgressListener([&](float share) { shares.push_back(share); });
    QElapsedTimer time;
    time.start();
    while (view.isRefining() && time.elapsed() < 20000)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 100);
    ASSERT_EQ(widths.size(), 2u);
    EXPECT_EQ(widths[0], 400);
    EXPECT_EQ(widths[1], 1600);
    EXPECT_EQ(shares.back(), 1);
    EXPECT_LT(shares.front(), 1);
    EXPECT_TRUE(std::is_sorted(shares.begin(), shares.end()));
}

TEST_F(PicturesTest, ACoarsePictureIsNotWhatIsCaptured)
{
    qxMainGlView view(1600, 1200);
    view.setFluent(true);
    while (!view.picture()->isValid())
        QCoreApplication::processEvents();
    ASSERT_LT(view.picture()->getWidth(), 1600);
    EXPECT_EQ(shown(view).size(), 1600 * 1200 * 3);
    EXPECT_FALSE(view.isRefining());
}

TEST_F(PicturesTest, ARequestEndsARefiningThatShowsTheSceneAsItWas)
{
    qxOSGWidget::setRaytracing(true);
    qxRaytracingManager::getRaytracingUtils()->setImageQuality(1000);
    qxMainGlView view(64, 64);
    float last = 0;
    view.setProgressListener([&last](float share) { last = share; });
    QElapsedTimer time;
    time.start();
    while (last < 0.3f && time.elapsed() < 20000) // within the last step
        QCoreApplication::processEvents(QEventLoop::AllEvents, 100);
    const float before = last;
    qxRaytracingManager::getRaytracingUtils()->setImageQuality(1);
    qxController::updateRender(false);
    while (view.isRefining() && time.elapsed() < 20000)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 100);
    EXPECT_GT(before, 0);
    EXPECT_LT(before, 1);
    EXPECT_EQ(last, 1);
}

TEST_F(PicturesTest, AskingForWhatIsSeenInterruptsARefiningThatThenGoesOn)
{
    qxOSGWidget::setRaytracing(true);
    qxRaytracingManager::getRaytracingUtils()->setImageQuality(1000);
    qxMainGlView view(64, 64);
    float last = 0;
    view.setProgressListener([&last](float share) { last = share; });
    QElapsedTimer time;
    time.start();
    const auto refineUntil = [&](float share) {
        while (last < share && time.elapsed() < 20000)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 100);
        return last;
    };
    EXPECT_GE(refineUntil(0.3f), 0.3f) << "within the last step";
    qxPictureSettings settings;
    settings.width = settings.height = 64;
    qxScenePicture::nodeAt(settings, 32, 32);
    EXPECT_LT(last, 0.3f) << "the step begins again";
    EXPECT_TRUE(view.isRefining());
}

TEST_F(PicturesTest, AShownPictureStaysUntilANewOneIsAskedFor)
{
    qxMainGlView view(8, 4);
    view.show(picture(osg::Image::OSG_RGB_PF, 1, 1, {1, 2, 3}).get());
    QCoreApplication::processEvents();
    EXPECT_EQ(shown(view), QByteArray("\1\2\3"));
    qxController::updateRender(false);
    EXPECT_EQ(shown(view).size(), 8 * 4 * 3);
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

TEST_F(PicturesTest, TheProgressOfAnExportCanBeSilencedAndEndIt)
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
