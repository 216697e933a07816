#include "Cameras/qxMainView.h"
#include "Cameras/qxRunningClips.h"
#include "Core/qxModuleBus.h"
#include "Core/qxRenderRequests.h"
#include "HostFixture.h"
#include "qxAnimManager.h"
#include "qxCameraService.h"
#include "qxController.h"
#include "qxMaterials.h"
#include "qxModuleBase.h"
#include "qxOverlays.h"
#include "qxScenegraph.h"
#include "qxUberCameraPool.h"

#include <OpenSG/OSGChangeList.h>
#include <OpenSG/OSGNodeCore.h>
#include <OpenSG/OSGThread.h>

#include <QCoreApplication>

namespace {

qxCameraService *cameras()
{
    return qxKernelServiceFactory::the()->getService<qxCameraService>();
}

float xOf(const qxUberCamera &camera)
{
    return camera.toWorld[3][0];
}

void startClip(const std::string &name)
{
    qxMessage message;
    message.set("animation-name", name);
    qxController::call("animationStart", message, 1);
}

class UnknownService : public qxBaseService {};

} // namespace

class HostTest : public HostFixture {};

TEST_F(HostTest, EditsAreRecordedButNotCollectedForEver)
{
    osg::ChangeList *const changes = osg::Thread::getCurrentChangeList();
    const auto count = [changes] { return changes->endChanged() - changes->beginChanged(); };
    const TestMaterial paint = scene.addMaterial("Paint");
    EXPECT_EQ(qxMaterials::findMaterial("Paint"), paint.material());
    qxController::updateRender(false);
    EXPECT_GT(count(), 0) << "few are kept";
    for (int i = 0; i < 100001; ++i)
        scene.root().setMask(osg::UInt32(i));
    qxMaterials::setName(paint, "Lacquer", true);
    qxController::updateRender(false);
    EXPECT_EQ(count(), 0);
    EXPECT_EQ(qxMaterials::findMaterial("Lacquer"), paint.material());
}

TEST_F(HostTest, ClearingTheSceneAsksForVariantsToGoFirstAndEmptiesEverything)
{
    scene.addGeometry("Body", scene.addMaterial("Paint"));
    scene.addOverlay("Logo");
    cameras()->moveToViewpoint(scene.addViewpoint("Front"), 0, 1, 0);
    scene.setClips({"Spin"});
    startClip("Spin");
    notifications.clear();
    const osg::NodePtr root = scene.root();
    osg::UInt32 childrenThen = 0;
    const int listener = qxController::addListener(
        [&](const char *, qxMessage *, int) { childrenThen = root->getNChildren(); });

    host.clearScene();
    qxController::removeListener(listener);

    ASSERT_EQ(notifications.lines(), (std::vector<std::string>{"1 clearAllVariants"}));
    EXPECT_TRUE(notifications.entries()[0].hasMessage);
    EXPECT_EQ(childrenThen, 1u) << "the scene was still there";
    EXPECT_EQ(scene.root().node(), root);
    EXPECT_EQ(root->getNChildren(), 0u);
    EXPECT_EQ(qxOverlays::getPoolRoot()->getNChildren(), 0u);
    EXPECT_TRUE(qxMaterials::findMaterial("Paint") == osg::NullFC);
    EXPECT_EQ(qxUberCameraPool::the()->count(), 0);
    EXPECT_EQ(qxMainView::the().viewpoint, -1);
    EXPECT_FALSE(qxMainView::the().hasHome);
    EXPECT_TRUE(qxAnimManager::the()->clips().empty() && qxRunningClips::names().empty());
}

TEST_F(HostTest, TheCameraMovesToViewpointsByName)
{
    scene.addViewpoint("Front", 1);
    scene.addViewpoint("Side", 2);
    scene.addViewpoint("Front", 3);
    EXPECT_EQ(cameras()->findViewpoint("Front"), 0);
    EXPECT_EQ(cameras()->findViewpoint("front"), -1);
    EXPECT_EQ(cameras()->findViewpoint(""), -1);
    const int requests = qxRenderRequests::count();

    cameras()->moveToViewpoint(1, 0, 0, 1);
    EXPECT_EQ(xOf(qxMainView::the().camera), 2);
    EXPECT_EQ(qxMainView::the().viewpoint, 1);
    EXPECT_FALSE(qxMainView::the().hasHome);
    EXPECT_EQ(qxRenderRequests::count(), requests + 1);

    cameras()->moveToViewpoint(0, 0, 1, 0);
    EXPECT_EQ(xOf(qxMainView::the().home), 1);
    for (const int unknown : {-1, 3})
        cameras()->moveToViewpoint(unknown, 0, 1, 1);
    EXPECT_EQ(qxMainView::the().viewpoint, 0);
    EXPECT_EQ(qxRenderRequests::count(), requests + 1);
}

TEST_F(HostTest, StartedClipsAreRememberedInTheOrderOfTheirLastStart)
{
    scene.setClips({"Doors", "", "Roof"});
    std::set<std::string> names = {"Other"};
    qxAnimManager::the()->getBlockAndClipNames(names);
    EXPECT_EQ(names, (std::set<std::string>{"Doors", "Other", "Roof"}));

    for (const char *name : {"Doors", "Roof", "Missing", "", "Doors"})
        startClip(name);
    qxController::call("animationStart", 1);
    EXPECT_EQ(qxRunningClips::names(), (std::vector<std::string>{"Roof", "Doors"}));
}

TEST_F(HostTest, MissingAndNullServicesAreReported)
{
    qxKernelServiceFactory factory;
    const auto complaint = [&factory] {
        testing::internal::CaptureStderr();
        EXPECT_EQ(factory.getService<UnknownService>(), nullptr);
        return testing::internal::GetCapturedStderr();
    };
    const std::string name = typeid(UnknownService).name();
    EXPECT_EQ(complaint(), "qxKernelServiceFactory: couldn't find class '" + name + "'!\n");
    factory.registerService<UnknownService>(nullptr);
    EXPECT_EQ(complaint(), "qxKernelServiceFactory: service '" + name + "' is NULL!\n");
    factory.registerService<UnknownService>(cameras());
    EXPECT_EQ(complaint(), "") << "of another class";
    UnknownService service;
    factory.registerService<UnknownService>(&service);
    EXPECT_EQ(factory.getService<UnknownService>(), &service);
}

TEST_F(HostTest, ModuleMessagesArriveAtOnceOrFromTheEventLoop)
{
    std::vector<unsigned int> codes;
    const int listener =
        qxModuleBus::addListener([&](qxMessage &message) { codes.push_back(message.code()); });
    {
        qxMessage waits(2), goes(1);
        qxModuleBase::sendMessage(waits, true);
        qxModuleBase::sendMessage(goes, false);
    }
    EXPECT_EQ(codes, (std::vector<unsigned int>{1}));
    QCoreApplication::processEvents();
    EXPECT_EQ(codes, (std::vector<unsigned int>{1, 2}));
    qxModuleBus::removeListener(listener);
}

TEST_F(HostTest, LinesOfTheLogEndInOneBreakWhateverTheirTextEndsIn)
{
    const std::string name(5000, 'x');
    testing::internal::CaptureStderr();
    qxLog::info("plain");
    qxLog::warning("%s\n", name.c_str());
    qxLog::error("%d of %s\n", 3, "100%");
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "plain\nwarning: " + name + "\nerror: 3 of 100%\n");
    EXPECT_EQ(logged(qxLog::Info), (std::vector<std::string>{"plain"}));
    EXPECT_EQ(logged(qxLog::Warning), (std::vector<std::string>{name}));
    expectError("3 of 100%");
}

TEST(HostsTest, OneHostAfterTheOtherStartsAfresh)
{
    for (int i = 0; i < 3; ++i) {
        const qxHost host;
        TestScene scene;
        EXPECT_STREQ(scene.root().core()->getTypeName(), "Group");
        EXPECT_TRUE(qxScenegraph::findNodes("Body").empty());
        EXPECT_TRUE(qxMaterials::findMaterial("Paint") == osg::NullFC);
        const TestNode body = scene.addGeometry("Body", scene.addMaterial("Paint"));
        EXPECT_EQ(qxScenegraph::findNode("Body"), body.node());
        EXPECT_TRUE(qxMaterials::findMaterial("Paint") != osg::NullFC);
        EXPECT_NE(cameras(), nullptr);
    }
    EXPECT_TRUE(qxScenegraph::getRoot() == osg::NullFC);
    EXPECT_TRUE(qxScenegraph::findNodes("Body").empty());
    testing::internal::CaptureStderr();
    EXPECT_EQ(cameras(), nullptr);
    EXPECT_NE(testing::internal::GetCapturedStderr(), "");
}
