#include "Cameras/qxMainCameraService.h"
#include "Core/qxRenderRequests.h"
#include "HostFixture.h"
#include "OneOfEach.h"
#include "Scene/qxSceneTransformService.h"
#include "Script/qxScriptRunner.h"

/// Everything that selecting does to the host.
static std::string lines;

/// Stands in front of the camera service and notes what it is asked.
class NotedCameraService : public qxMainCameraService {
public:
    int findViewpoint(const std::string &name) const override { return int(name.size()); }
    void moveToViewpoint(int id, int duration, int home, int redraw) override
    {
        for (int each : {id, duration, home, redraw})
            lines += std::to_string(each) + " ";
        lines += "camera\n";
    }
};

/// The same for named transform states, which are selected in silence.
class NotedTransformService : public qxSceneTransformService {
public:
    void selectTransformVariants(const QList<QRPC::NodeTrafoId> &requests, int duration,
                                 int delay) override
    {
        lines += "transform\n";
        qxSceneTransformService::selectTransformVariants(requests, duration, delay);
    }
};

/// A scene with one object of each kind.
class SelectionTest : public HostFixture {
protected:
    SelectionTest()
    {
        m_calls = qxController::addListener([this](const char *name, qxMessage *, int) {
            lines += name + std::string("\n");
            cached = cached || qxScenegraph::hasFindCache();
        });
        m_scripts = qxScriptRunner::addListener([this](const qxScriptText &script) {
            lines += "script " + script.text.substr(0, script.text.find('\n')) + "\n";
        });
        m_renders = qxRenderRequests::addListener(
            [this](bool all) { lines += all ? "render all\n" : "render\n"; });
        services.registerService<qxCameraService>(&m_camera);
        services.registerService<qxTransformService>(&m_transform);
    }
    ~SelectionTest() override
    {
        services.registerService<qxCameraService>(m_hostCamera);
        services.registerService<qxTransformService>(m_hostTransform);
        qxController::removeListener(m_calls);
        qxScriptRunner::removeListener(m_scripts);
        qxRenderRequests::removeListener(m_renders);
    }

    /// Refers to a variant of each kind, each with the state that it does not have yet.
    void fill()
    {
        addOneOfEach(scene, set);
        set.addViewpoint("Front");
        set.addViewpoint("Never used");
        set.defaultViewpoint = "Home view";
        set.script = "# mine";
        set.setClippingState(2);
    }
    /// What happens.
    std::string selected(bool full, bool keepCamera)
    {
        lines.clear();
        set.select(full, keepCamera);
        return lines;
    }

    qxVariantSet set{"Sport"};
    bool cached = false;
    qxKernelServiceFactory &services = *qxKernelServiceFactory::the();

private:
    qxCameraService *const m_hostCamera = services.getService<qxCameraService>();
    qxTransformService *const m_hostTransform = services.getService<qxTransformService>();
    NotedCameraService m_camera;
    NotedTransformService m_transform;
    int m_calls, m_scripts, m_renders;
};

// What happens, in parts.
const std::string begin = "variantsSetSelected\n";
const std::string nodes = "variantsNodesChanged\nnodeVariantSelected\n";
const std::string materials = "variantsMaterialChanged\nmaterialVariantSelected\n";
const std::string lights = "variantsLightsChanged\nlightVariantSelected\n";
const std::string transform = "transform\n";
const std::string front = "5 0 0 1 camera\n";
const std::string overlays = "activateOverlays\noverlayVariantSelected\n";
const std::string rest = "script # mine\nscript enableClippingPlane(false)\nrender\n"
                         "animationStart\nanimationStart\n";
const std::string home = "9 0 1 1 camera\n";
const std::string end = "variantsSetSelected\nvariantSetSelected\nrender\n";

TEST_F(SelectionTest, AppliesEverythingInOneOrder)
{
    EXPECT_EQ(selected(true, false), begin + end) << "an empty set";
    fill();
    const std::string states = begin + nodes + materials + transform + lights;
    EXPECT_EQ(selected(true, false), states + front + overlays + rest + home + end);
    EXPECT_EQ(heard("variantsSetSelected").back().text(),
              "variantsSetSelected variantSetName=Sport");
    EXPECT_FALSE(heard("variantSetSelected").back().hasMessage);
    EXPECT_EQ(heard("animationStart").back().text(), "animationStart animation-name=Blink");
    EXPECT_EQ(qxVariants::findNodeVariant("Wheels")->onCurrent(), "Alloy");
    EXPECT_EQ(qxVariants::findMaterialVariant("Paint")->onCurrent(), "Blue");
    EXPECT_EQ(qxVariants::findTransformVariant("Door")->onCurrent(), "Open");
    EXPECT_EQ(qxVariants::findLightVariant("Lamp")->onCurrent(), "!Disable");
    EXPECT_EQ(selected(true, true), states + overlays + rest + home + end);
    EXPECT_EQ(selected(false, false), states + front + overlays + end);
    EXPECT_EQ(selected(false, true), states + overlays + end);
    set.addNodeVariant("Gone", "Any");
    qxVariants::removeMaterialVariant("Paint");
    services.unregisterService<qxCameraService>();
    EXPECT_EQ(selected(true, false), begin + nodes + transform + lights + overlays + rest + end)
        << "what is missing is skipped";
}

TEST_F(SelectionTest, FourStatesWithSceneObjectsAreWorthACache)
{
    set.addOverlayVariant("Overlay", "!Enable");
    set.addTransformVariant("Pose", "Open");
    set.addNodeVariant("A", "!All");
    set.addNodeVariant("B", "!All");
    set.addMaterialVariant("C", "Red");
    selected(false, false);
    EXPECT_FALSE(cached);
    set.addLightVariant("D", "!Enable");
    selected(false, false);
    EXPECT_TRUE(cached);
    EXPECT_FALSE(qxScenegraph::hasFindCache());
    qxScenegraph::initFindCache();
    selected(false, false);
    EXPECT_TRUE(qxScenegraph::hasFindCache());
    qxScenegraph::clearFindCache();
}

TEST_F(SelectionTest, AnimationsInTurnGoRound)
{
    for (const char *clip : {"A", "B", "C"})
        set.addAnimation(clip);
    set.sequentialAnimation = true;
    for (int round = 0; round < 5; ++round)
        set.select(true, false);
    set.removeAnimation("B");
    set.removeAnimation("C"); // The next one would be the third.
    set.select(true, false);
    set.removeAnimation("A");
    set.select(true, false);
    std::string started;
    for (const Notification &each : heard("animationStart"))
        started += each.field("animation-name");
    EXPECT_EQ(started, "ABCABA");
}

TEST_F(SelectionTest, DefaultsAreTheVariantsOwn)
{
    fill();
    set.select(false, false);
    lines.clear();
    set.selectDefault();
    EXPECT_EQ(lines,
              begin + nodes + materials + lights + transform
                  + "variantsSetSelected\nvariantSetSelected\nrender all\n");
    EXPECT_EQ(heard("variantSetSelected").back().text(),
              "variantSetSelected variantSet=" + addressOf(&set));
    EXPECT_EQ(qxVariants::findNodeVariant("Wheels")->onCurrent(), "!None");
    EXPECT_EQ(qxVariants::findMaterialVariant("Paint")->onCurrent(), "Red");
    EXPECT_EQ(qxVariants::findLightVariant("Lamp")->onCurrent(), "!Enable");
}

TEST_F(SelectionTest, GeometryIsHiddenNarrowlyAndShownWidely)
{
    const TestNode body = scene.add("Body");
    const TestNode shell = scene.addGeometry("Shell", osg::NullFC, body);
    set.addGeometry("Missing");
    set.addGeometry("Body");
    set.hideGeometry();
    EXPECT_TRUE(body.shown());
    EXPECT_EQ(shell.mask(), 0u);
    body.setMask(6);
    set.showGeometry();
    EXPECT_TRUE(body.shown() && shell.shown());
}
