#include "qxVariantSet.h"
#include "qxVariants.h"

#include "Pictures/qxPictureProgress.h"
#include "Render/qxViewSettings.h"
#include "Window/qxLightMenu.h"
#include "Window/qxOrbit.h"
#include "Window/qxPreviewMaker.h"
#include "WindowFixture.h"
#include "qxController.h"
#include "qxMessage.h"
#include "qxRaytracingManager.h"
#include "qxUberCameraPool.h"

#include <algorithm>
#include <stdexcept>

/// The picture of the scene, while a hand is on it and afterwards.
class WindowViewTest : public WindowFixture {};

TEST_F(WindowViewTest, ThePictureFollowsHandAndKeysAndHomeLeadsBack)
{
    openDemo();
    const QImage atHome = finishedPicture();
    QImage before = atHome;
    const auto changes = [&](const char *how) {
        const QImage now = finishedPicture();
        EXPECT_NE(now, before) << how;
        before = now;
    };
    drag(Qt::LeftButton, QPoint(60, 10));
    changes("turned");
    drag(Qt::MiddleButton, QPoint(40, 0));
    changes("moved");
    drag(Qt::RightButton, QPoint(0, 50));
    changes("zoomed");
    QTest::keyClick(window->sceneView(), Qt::Key_Left);
    changes("turned by a key");
    const auto *const hint = window->sceneView()->findChild<QLabel *>();
    EXPECT_TRUE(hint->isHidden());
    drag(Qt::MiddleButton, QPoint(9000, 0));
    changes("moved away");
    EXPECT_TRUE(!hint->isHidden() && hint->text().contains("the camera looks past it"));
    QTest::keyClick(window->sceneView(), Qt::Key_Home);
    EXPECT_EQ(finishedPicture(), atHome);
    EXPECT_TRUE(hint->isHidden());
}

TEST_F(WindowViewTest, TheLightMenuChangesThePictureAndItsChoicesAreRemembered)
{
    openDemo();
    auto *const menu = window->findChild<qxLightMenu *>();
    const auto action = [&](const char *text) {
        for (QAction *each : menu->findChildren<QAction *>()) {
            if (each->text() == text)
                return each;
        }
        throw std::runtime_error(text);
    };
    QImage before = finishedPicture();
    const auto changes = [&](const char *how) {
        const QImage now = finishedPicture();
        EXPECT_NE(now, before) << how;
        before = now;
    };
    action("B&righter")->trigger();
    changes("exposure");
    const QString dim =
        write("dim.hdr", "#?RADIANCE\n\n-Y 1 +X 2\n\x40\x40\x40\x7e\x40\x40\x40\x7e");
    menu->usePicture(dim);
    changes("picture");
    expectDialog([](QDialog &dialog) { dialog.reject(); });
    menu->usePicture(write("broken.hdr", "none"));
    EXPECT_TRUE(qxViewSettings::the().environment);
    action("&Of the Scene")->trigger();
    changes("own environment");

    qxViewSettings::the() = qxViewSettings();
    qxLightMenu next(nullptr);
    EXPECT_EQ(qxViewSettings::the().exposure, 0.5f);
    Q_EMIT next.findChildren<QMenu *>().first()->aboutToShow();
    const QList<QAction *> environments = next.findChildren<QMenu *>().first()->actions();
    EXPECT_TRUE(std::any_of(environments.begin(), environments.end(),
                            [](QAction *each) { return each->text() == "dim.hdr"; }));
}

TEST_F(WindowViewTest, AViewFromStraightAboveStaysOneWhenTheSceneIsFittedAndTurnsFromThere)
{
    qxUberCamera camera;
    camera.toWorld = osg::Matrix(0, 1, 0, 3, 0, 0, 1, 9, 1, 0, 0, 3, 0, 0, 0, 1);
    const osg::Vec3f right(0, 0, 1);
    const osg::Pnt3f centre(1, 2, 3);
    const auto column = [&](int number) {
        const osg::Vec4f values = camera.toWorld[osg::UInt32(number)];
        return osg::Vec3f(values[0], values[1], values[2]);
    };
    qxOrbit::fit(camera, centre, 1, 1);
    EXPECT_EQ(column(0), right);
    EXPECT_GT(column(3)[1], 3);
    EXPECT_EQ(column(3), osg::Vec3f(1, column(3)[1], 3));
    qxOrbit::turn(camera, centre, 0, 0);
    EXPECT_LT((column(0) - right).length(), 1e-3f) << "the picture does not jump";
}

TEST_F(WindowViewTest, AStillPictureIsRefinedAndTheStatusLineTellsHowFarItIs)
{
    openDesk();
    const QImage quick = finishedPicture();
    qxRaytracingManager::getRaytracingUtils()->setImageQuality(4);
    QSignalSpy texts(window->sceneView(), &qxSceneView::progressed);
    action("Ray Tracing")->trigger();
    EXPECT_NE(finishedPicture(), quick);
    ASSERT_FALSE(texts.empty());
    EXPECT_EQ(texts.first().first().toString(), "Refining: 0 %");
    EXPECT_EQ(texts.last().first().toString(), "");
    action("Ray Tracing")->trigger();
    EXPECT_EQ(finishedPicture(), quick);
}

TEST_F(WindowViewTest, APreviewThatTakesLongShowsThatAndCanBeCancelled)
{
    const qxPictureProgress::Display display = qxPictureProgress::display();
    ASSERT_TRUE(display);
    EXPECT_TRUE(display(0));
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr) << "quick ones show nothing";
    QTest::qWait(700);
    EXPECT_TRUE(display(0.3));
    auto *const dialog = qobject_cast<QProgressDialog *>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(dialog->value(), 30);
    dialog->cancel();
    EXPECT_FALSE(display(0.4));
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_TRUE(display(0)) << "the next one";
    EXPECT_TRUE(display(1));
}

TEST_F(WindowViewTest, APreviewOfASetThatIsNotShownIsAskedForAndACancelledOneLeavesTheOld)
{
    openDemo();
    select("Stadtwagen");
    goTo("Speedster");
    const auto previewBy = [this](const char *step) {
        action(step)->trigger();
        EXPECT_TRUE(QTest::qWaitFor(
            [this] { return !window->findChild<qxPreviewMaker *>()->isRunning(); }, 60000));
        return qxVariants::findVariantSet("Speedster")->getPreview();
    };
    expectClick("Cancel");
    EXPECT_TRUE(previewBy("New Preview").isEmpty());
    expectClick("Picture What Is Shown");
    const QByteArray asShown = previewBy("New Preview");
    expectClick("Select It for the Picture");
    const QByteArray selected = previewBy("New Preview");
    EXPECT_TRUE(asShown.startsWith("\x89PNG") && selected.startsWith("\x89PNG"));
    EXPECT_NE(QImage::fromData(selected), QImage::fromData(asShown));

    const qxPictureProgress::Display display = qxPictureProgress::display();
    qxPictureProgress::setDisplay([](double) { return false; });
    expectClick("Picture What Is Shown");
    EXPECT_EQ(previewBy("New Preview"), selected);
    expectClick("Update");
    EXPECT_EQ(previewBy("Update from Scene..."), selected);
    qxPictureProgress::setDisplay(display);
    EXPECT_EQ(previewBy("New Preview"), asShown) << "now it is shown";
}

TEST_F(WindowViewTest, AnimationsPlayInTheViewAndLeaveTheSceneAlone)
{
    openDesk();
    auto *const bar = window->findChild<QToolBar *>("animation");
    EXPECT_TRUE(bar->isHidden()) << "there is nothing to play";
    QByteArray text = sceneWith("signs").replace("[8, 8, 0]}", R"([8, 8, 0]},
        {"bufferView": 0, "byteOffset": 8, "componentType": 5126, "count": 2, "type": "SCALAR"},
        {"bufferView": 0, "componentType": 5126, "count": 2, "type": "VEC3"})");
    text.replace("\"cameras\"", R"("animations": [{"name": "Slide", "channels": [
        {"sampler": 0, "target": {"node": 1, "path": "translation"}}],
        "samplers": [{"input": 1, "output": 2}]}], "cameras")");
    ASSERT_TRUE(window->openFile(write("moving.gltf", text)));
    EXPECT_FALSE(bar->isHidden());
    const QImage rest = finishedPicture();
    auto *const slider = bar->findChild<QSlider *>();
    const QTimer *const timer = bar->findChild<QTimer *>();
    const auto press = [this](Qt::KeyboardModifiers keys = Qt::NoModifier) {
        QApplication::setActiveWindow(window.get()); // There was a question about scripts.
        window->sceneView()->setFocus();
        QTest::keyClick(window->sceneView(), Qt::Key_Space, keys);
    };
    press();
    EXPECT_TRUE(QTest::qWaitFor([&] { return slider->value() > 0; }, 60000));
    press();
    EXPECT_FALSE(timer->isActive()) << "a pause costs nothing";
    EXPECT_NE(finishedPicture(), rest);
    slider->setValue(slider->maximum());
    EXPECT_TRUE(bar->findChild<QLabel *>()->text().contains("8.00 of 8.00 s"));
    EXPECT_FALSE(isUnsaved());
    press(Qt::ShiftModifier);
    EXPECT_EQ(finishedPicture(), rest);
    qxMessage message;
    message.set("animation-name", std::string("Slide"));
    qxController::call("animationStart", message, 1);
    EXPECT_TRUE(timer->isActive());
    openDesk();
    EXPECT_TRUE(bar->isHidden() && !timer->isActive());
}
