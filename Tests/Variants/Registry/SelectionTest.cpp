#include "Cameras/qxMainCameraService.h"
#include "Core/qxRenderRequests.h"
#include "HostFixture.h"
#include "OneOfEach.h"
#include "Script/qxScriptRunner.h"
#include "qxController.h"
#include "qxScenegraph.h"

namespace {

typedef std::vector<std::string> Lines;

/// Stands in front of the camera service and notes what it is asked.
class NotedCameraService : public qxMainCameraService {
public:
    explicit NotedCameraService(Lines &lines) : m_lines(lines) {}
    int findViewpoint(const std::string &name) const override { return int(name.size()); }
    void moveToViewpoint(int id, int duration, int home, int redraw) override
    {
        m_lines.push_back("camera " + std::to_string(id) + " " + std::to_string(duration) + " "
                          + std::to_string(home) + " " + std::to_string(redraw));
    }

private:
    Lines &m_lines;
};

/// A scene with one object of each kind, and everything that selecting does to the host in one
/// list.
class SelectionTest : public HostFixture {
protected:
    SelectionTest()
    {
        m_calls = qxController::addListener([this](const char *name, qxMessage *, int) {
            lines.push_back(name);
            cached = cached || qxScenegraph::hasFindCache();
        });
        m_scripts = qxScriptRunner::addListener([this](const qxScriptText &script) {
            lines.push_back("script " + script.text.substr(0, script.text.find('\n')));
        });
        m_renders = qxRenderRequests::addListener(
            [this](bool all) { lines.push_back(all ? "render all" : "render"); });
    }
    ~SelectionTest() override
    {
        useCamera(nullptr);
        qxController::removeListener(m_calls);
        qxScriptRunner::removeListener(m_scripts);
        qxRenderRequests::removeListener(m_renders);
    }

    void useCamera(qxCameraService *service)
    {
        qxKernelServiceFactory *const factory = qxKernelServiceFactory::the();
        if (!m_own)
            m_own = factory->getService<qxCameraService>();
        factory->registerService<qxCameraService>(service ? service : m_own);
    }

    /// Refers to a variant of each kind, each with the state that it does not have yet.
    void fill(qxVariantSet &filled)
    {
        addOneOfEach(scene, filled);
        filled.addViewpoint("Front");
        filled.addViewpoint("Never used");
        filled.defaultViewpoint = "Home view";
        filled.script = "# mine";
        filled.setClippingState(2);
        lines.clear();
    }
    Lines selected(bool full, bool keepCamera)
    {
        lines.clear();
        set.select(full, keepCamera);
        return lines;
    }
    bool uses(const std::string &line) const
    {
        return std::find(lines.begin(), lines.end(), line) != lines.end();
    }

    qxVariantSet set{"Sport"};
    Lines lines;
    bool cached = false;
    NotedCameraService camera{lines};

private:
    qxCameraService *m_own = nullptr;
    int m_calls = 0;
    int m_scripts = 0;
    int m_renders = 0;
};

const Lines begun({"variantsSetSelected", "variantsNodesChanged", "nodeVariantSelected",
                   "variantsMaterialChanged", "materialVariantSelected"});

} // namespace

TEST_F(SelectionTest, AppliesEverythingInOneOrder)
{
    fill(set);
    useCamera(&camera);
    Lines expected = begun;
    for (const char *line :
         {"variantsLightsChanged", "lightVariantSelected", "camera 5 0 0 1", "activateOverlays",
          "overlayVariantSelected", "script # mine", "script enableClippingPlane(false)", "render",
          "animationStart", "animationStart", "camera 9 0 1 1", "variantsSetSelected",
          "variantSetSelected", "render"})
        expected.push_back(line);
    EXPECT_EQ(selected(true, false), expected);

    EXPECT_EQ(qxVariants::findNodeVariant("Wheels")->onCurrent(), "Alloy");
    EXPECT_EQ(qxVariants::findMaterialVariant("Paint")->onCurrent(), "Blue");
    EXPECT_EQ(qxVariants::findTransformVariant("Door")->onCurrent(), "Open");
    EXPECT_EQ(qxVariants::findLightVariant("Lamp")->onCurrent(), "!Disable");
    EXPECT_EQ(heard("variantsSetSelected").front().text(),
              "variantsSetSelected variantSetName=Sport");
    EXPECT_FALSE(heard("variantSetSelected").front().hasMessage);
    EXPECT_EQ(heard("animationStart").back().text(), "animationStart animation-name=Blink");
}

TEST_F(SelectionTest, WithoutTheRestOnlyStatesAndFirstViewpointAreApplied)
{
    fill(set);
    useCamera(&camera);
    Lines expected = begun;
    for (const char *line :
         {"variantsLightsChanged", "lightVariantSelected", "camera 5 0 0 1", "activateOverlays",
          "overlayVariantSelected", "variantsSetSelected", "variantSetSelected", "render"})
        expected.push_back(line);
    EXPECT_EQ(selected(false, false), expected);
}

TEST_F(SelectionTest, AKeptCameraStillMovesToTheDefaultViewpoint)
{
    fill(set);
    useCamera(&camera);
    selected(true, true);
    EXPECT_FALSE(uses("camera 5 0 0 1"));
    EXPECT_TRUE(uses("camera 9 0 1 1"));
    selected(false, true);
    EXPECT_FALSE(uses("camera 9 0 1 1"));
}

TEST_F(SelectionTest, MissingVariantsAreSkippedAndTheRestIsApplied)
{
    fill(set);
    set.addNodeVariant("Gone", "Any");
    qxVariants::removeMaterialVariant("Paint");
    selected(true, false);
    EXPECT_FALSE(uses("materialVariantSelected"));
    EXPECT_TRUE(uses("lightVariantSelected"));
    EXPECT_EQ(heard("nodeVariantSelected").size(), 1u);
    EXPECT_EQ(heard("variantsSetSelected").size(), 2u);
}

TEST_F(SelectionTest, AnEmptySetAnnouncesItselfAndRedraws)
{
    EXPECT_EQ(
        selected(true, false),
        Lines({"variantsSetSelected", "variantsSetSelected", "variantSetSelected", "render"}));
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
    for (int round = 0; round < 4; ++round)
        set.select(true, false);
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
    fill(set);
    set.select(false, false);
    lines.clear();
    notifications.clear();
    set.selectDefault();
    EXPECT_EQ(
        lines,
        Lines({"variantsSetSelected", "variantsNodesChanged", "nodeVariantSelected",
               "variantsMaterialChanged", "materialVariantSelected", "variantsLightsChanged",
               "lightVariantSelected", "variantsSetSelected", "variantSetSelected", "render all"}));
    EXPECT_EQ(heard("variantSetSelected").front().text(),
              "variantSetSelected variantSet=" + addressOf(&set));
    EXPECT_EQ(qxVariants::findNodeVariant("Wheels")->onCurrent(), "!None");
    EXPECT_EQ(qxVariants::findMaterialVariant("Paint")->onCurrent(), "Red");
    EXPECT_EQ(qxVariants::findLightVariant("Lamp")->onCurrent(), "!Enable");
}

TEST_F(SelectionTest, GeometryIsHiddenNarrowlyAndShownWidely)
{
    const TestNode body = scene.add("Body");
    const TestNode shell = scene.addGeometry("Shell", osg::NullFC, body);
    const TestNode inner = scene.addGeometry("Inner", osg::NullFC, shell);
    set.addGeometry("Body");
    set.addGeometry("Missing");
    set.hideGeometry();
    EXPECT_EQ(body.mask(), 0xFFFFFFFF);
    EXPECT_EQ(shell.mask(), 0u);
    EXPECT_EQ(inner.mask(), 0u);
    body.setMask(6);
    set.showGeometry();
    for (const TestNode &node : {body, shell, inner})
        EXPECT_TRUE(node.shown());
}
