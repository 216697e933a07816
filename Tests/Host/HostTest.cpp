#include "Cameras/qxMainView.h"
#include "Cameras/qxRunningClips.h"
#include "Core/qxModuleBus.h"
#include "Core/qxRenderRequests.h"
#include "HostFixture.h"
#include "qxAnimManager.h"
#include "qxCameraService.h"
#include "qxModuleBase.h"
#include "qxOverlays.h"
#include "qxUberCameraPool.h"

#include <OpenSG/OSGChangeList.h>
#include <OpenSG/OSGNodeCore.h>
#include <OpenSG/OSGThread.h>

#include <QCoreApplication>

static qxCameraService *cameras()
{
    return qxKernelServiceFactory::the()->getService<qxCameraService>();
}

static float xOf(const qxUberCamera &camera)
{
    return camera.toWorld[3][0];
}

static void startClip(const std::string &name)
{
    qxMessage message;
    message.set("animation-name", name);
    qxController::call("animationStart", message, 1);
}

class UnknownService : public qxBaseService {};

typedef std::vector<std::string> Lines;

static Lines heard;

static void hearFirst(qxMessage &message)
{
    heard.push_back("first");
    message.set("reply", std::string("from first"));
}

static void hearSecond(qxMessage &message)
{
    const std::string *reply = message.get<std::string>("reply");
    heard.push_back(reply ? "second, " + *reply : "second");
}

static void leaveInviteAndCallAgain(qxMessage &)
{
    heard.push_back("leaving");
    qxController::subCB("event", &leaveInviteAndCallAgain);
    qxController::subCB("event", &hearFirst);
    qxController::addCB("event", &hearSecond);
    qxController::call("event", 1);
}

class ControllerTest : public testing::Test {
protected:
    ControllerTest() { heard.clear(); }
    ~ControllerTest() override
    {
        for (const auto callback : {&hearFirst, &hearSecond, &leaveInviteAndCallAgain})
            qxController::subCB("event", callback);
    }
};

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

TEST_F(HostTest, ClearingTheSceneEmptiesEverything)
{
    scene.addGeometry("Body", scene.addMaterial("Paint"));
    scene.addOverlay("Logo");
    cameras()->moveToViewpoint(scene.addViewpoint("Front"), 0, 1, 0);
    scene.setClips({"Spin"});
    startClip("Spin");
    notifications.clear();
    osg::UInt32 childrenThen = 0; // when variants are asked to go first
    const int listener = qxController::addListener([&](const char *, qxMessage *, int) {
        childrenThen = scene.root().node()->getNChildren();
    });
    host.clearScene();
    qxController::removeListener(listener);
    EXPECT_EQ(notifications.lines(), (Lines{"1 clearAllVariants"}));
    EXPECT_TRUE(notifications.entries().back().hasMessage);
    EXPECT_EQ(childrenThen, 1u);
    EXPECT_EQ(scene.root().node()->getNChildren() + qxOverlays::getPoolRoot()->getNChildren(), 0u);
    EXPECT_TRUE(qxMaterials::findMaterial("Paint") == osg::NullFC);
    EXPECT_EQ(qxUberCameraPool::the()->count(), 0);
    EXPECT_TRUE(qxMainView::the().viewpoint == -1 && !qxMainView::the().hasHome);
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
    EXPECT_FALSE(qxMainView::the().hasHome);
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
    EXPECT_EQ(qxRunningClips::names(), (Lines{"Roof", "Doors"}));
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
    {
        qxMessage waits(2), goes(1);
        qxModuleBase::sendMessage(waits, true);
        qxModuleBase::sendMessage(goes, false);
    }
    EXPECT_EQ(moduleMessages, (std::vector<unsigned int>{1}));
    QCoreApplication::processEvents();
    EXPECT_EQ(moduleMessages, (std::vector<unsigned int>{1, 2}));
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
    EXPECT_EQ(logged(qxLog::Info), (Lines{"plain"}));
    EXPECT_EQ(logged(qxLog::Warning), (Lines{name}));
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
        EXPECT_NE(cameras(), nullptr);
    }
    EXPECT_TRUE(qxScenegraph::getRoot() == osg::NullFC);
    EXPECT_TRUE(qxScenegraph::findNodes("Body").empty());
    testing::internal::CaptureStderr();
    EXPECT_EQ(cameras(), nullptr);
    EXPECT_NE(testing::internal::GetCapturedStderr(), "");
}

TEST_F(ControllerTest, CallbacksAndListenersRunInTheOrderOfRegistration)
{
    qxController::addCB("event", &hearFirst);
    const int listener = qxController::addListener([](const char *name, qxMessage *data, int flag) {
        heard.push_back(std::string(name) + (data ? " with data " : " ") + std::to_string(flag));
    });
    qxController::addCB("event", &hearSecond);
    qxController::addCB("event", &hearFirst); // known already: keeps its place, runs once

    qxMessage message;
    qxController::call("event", message, 0);
    EXPECT_EQ(heard, (Lines{"first", "event with data 0", "second, from first"}));

    heard.clear();
    qxController::call("event", 1);
    EXPECT_EQ(heard, (Lines{"first", "event 1", "second"})) << "each callback has its own message";

    heard.clear();
    qxController::call("other", 1);
    qxController::removeListener(listener);
    qxController::call("other", 1);
    EXPECT_EQ(heard, (Lines{"other 1"}));
}

TEST_F(ControllerTest, WhoComesDuringACallWaitsForTheNextOne)
{
    qxController::addCB("event", &leaveInviteAndCallAgain);
    qxController::addCB("event", &hearFirst);
    qxController::call("event", 1);
    EXPECT_EQ(heard, (Lines{"leaving", "second"})) << "heard in the inner call alone";

    const int listener = qxController::addListener(
        [](const char *, qxMessage *, int) { throw std::string("fault"); });
    EXPECT_THROW(qxController::call("event", 1), std::string);
    qxController::removeListener(listener);
    qxController::call("event", 1);
    EXPECT_EQ(heard, (Lines{"leaving", "second", "second", "second"}));
}

TEST_F(ControllerTest, AListenerThatRemovesItselfKeepsWhatItHolds)
{
    int listener = 0;
    const std::string word = "a text that is too long to be kept inside of the string object";
    listener = qxController::addListener([&listener, word](const char *, qxMessage *, int) {
        qxController::removeListener(listener);
        for (int i = 0; i < 100; ++i) // makes the list grow under the running listener
            qxController::removeListener(
                qxController::addListener([](const char *, qxMessage *, int) {}));
        heard.push_back(word);
    });

    qxController::call("event", 1);
    qxController::call("event", 1);
    EXPECT_EQ(heard, (Lines{word}));
}

TEST(MessageTest, AnEntryIsReplacedInItsPlaceOnDemand)
{
    qxMessage message(0x10000);
    message.set("visible", true);
    message.set("name", std::string("Wheel"));
    message.set("visible", std::string("now a text"), true);
    message.set("name", std::string("Axle"), false);

    ASSERT_EQ(message.entries().size(), 2u);
    EXPECT_EQ(message.entries()[0].first, "visible");
    EXPECT_EQ(*message.get<std::string>("visible"), "now a text");
    EXPECT_EQ(*message.get<std::string>("name"), "Wheel");
    EXPECT_EQ(message.get<bool>("visible"), nullptr) << "another type now";
    EXPECT_EQ(message.get<int>("unknown"), nullptr);
    EXPECT_EQ(message.code(), 0x10000u);
}
