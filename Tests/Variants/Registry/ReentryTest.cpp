#include "qxVariantGroup.h"
#include "qxVariantReader.h"

#include "HostFixture.h"
#include "OneOfEach.h"
#include "Script/qxScriptRunner.h"
#include "qxController.h"

namespace {

typedef std::vector<std::string> Lines;

/// Does something once, at the call with that number, counted from the construction on.
class OnCall {
public:
    OnCall(std::size_t number, std::function<void()> action) : m_left(number), m_action(action)
    {
        m_id = qxController::addListener([this](const char *, qxMessage *, int) {
            if (m_left-- == 0)
                m_action();
        });
    }
    OnCall(const OnCall &) = delete;
    ~OnCall() { qxController::removeListener(m_id); }

private:
    std::size_t m_left;
    std::function<void()> m_action;
    int m_id = 0;
};

void clearEverything()
{
    qxMessage message;
    qxVariants::clearAll(message);
}

/// Listeners and scripts that change the registry while it works.
class ReentryTest : public HostFixture {
protected:
    /// A set of a group that refers to each kind, and to two nodes.
    qxVariantSet *fill()
    {
        qxVariantSet *const set = qxVariants::createVariantSet(
            "Sport", false, qxVariants::createVariantGroup("Group", false, true));
        addOneOfEach(scene, *set);
        qxVariants::createNodeVariant(scene.addSwitch("Rims", {"Steel", "Alloy"}).node(), false);
        set->addNodeVariant("Rims", "!Next");
        notifications.clear();
        return set;
    }
};

} // namespace

TEST_F(ReentryTest, AScriptMayRemoveTheSetThatRunsIt)
{
    qxVariantSet *const set = fill();
    set->script = "# remove me";
    const int listener = qxScriptRunner::addListener([](const qxScriptText &) {
        qxVariants::removeVariantSet("Sport");
        EXPECT_TRUE(qxVariants::findVariantGroup("Group")->sets.empty());
    });
    set->select(true, false);
    qxScriptRunner::removeListener(listener);

    EXPECT_EQ(qxVariants::findVariantSet("Sport"), nullptr);
    EXPECT_EQ(heard("variantSetRemoved").size(), 1u);
    EXPECT_EQ(heard("animationStart").size(), 2u);
    EXPECT_EQ(heard("variantsSetSelected").at(1).field("variantSetName"), "Sport");
    EXPECT_EQ(notifications.names().back(), "variantSetSelected");
}

TEST_F(ReentryTest, AListenerMayForgetEverythingAtAnyCall)
{
    void (*const acts[])(qxVariantSet &) = {
        [](qxVariantSet &set) { set.select(true, false); },
        [](qxVariantSet &set) { set.selectDefault(); },
        [](qxVariantSet &set) { qxVariants::showConnectedVariants(set.name); },
    };
    for (const auto act : acts) {
        host.clearScene();
        act(*fill());
        const Lines names = notifications.names();
        for (std::size_t at = 0; at < names.size(); ++at) {
            host.clearScene();
            qxVariantSet *const set = fill();
            const OnCall clearing(at, clearEverything);
            act(*set);
            EXPECT_TRUE(qxVariants::_variantSets.empty()) << names[at];
            if (at + 1 < names.size()) {
                EXPECT_EQ(notifications.names().back(), names.back()) << at;
            }
        }
    }
}

TEST_F(ReentryTest, ASelectionGoesOnWithTheStatesThatItBeganWith)
{
    qxVariantSet *const set = fill();
    {
        const OnCall emptying(1, [set] { set->clear(); });
        set->select(true, false);
    }
    EXPECT_EQ(heard("nodeVariantSelected").size(), 2u);
    EXPECT_TRUE(heard("materialVariantSelected").empty());

    for (const char *clip : {"A", "B", "C"})
        set->addAnimation(clip);
    std::string started;
    const int removing = qxController::addListener([&](const char *name, qxMessage *message, int) {
        if (name != std::string("animationStart"))
            return;
        started += *message->get<std::string>("animation-name");
        set->removeAnimation("B");
    });
    set->select(true, false);
    qxController::removeListener(removing);
    EXPECT_EQ(started, "ABC");
}

TEST_F(ReentryTest, AListenerFindsWhatItRenamesWhileADocumentIsRead)
{
    for (int i = 0; i < 40; ++i)
        qxVariants::createNodeVariant(QStringLiteral("Old%1").arg(i), false);
    const int renaming = qxController::addListener([](const char *name, qxMessage *, int) {
        if (name == std::string("nodeVariantChanged")) {
            qxVariants::findNodeVariant("Old7")->name = "New";
            EXPECT_TRUE(qxVariants::findNodeVariant("New"));
        }
    });
    qxVariantReader().read("<Variants><NodeVariant name='A'/></Variants>");
    qxController::removeListener(renaming);
}

TEST_F(ReentryTest, CreatingAnswersNullForWhatAListenerRemovedAtOnce)
{
    const osg::NodePtr node = scene.addSwitch("Wheels", {"Steel"}).node();
    {
        const OnCall removing(0, [] { qxVariants::removeVariantSet("Sport"); });
        EXPECT_EQ(qxVariants::createVariantSet("Sport", true, nullptr), nullptr);
    }
    {
        const OnCall removing(0, [] { qxVariants::removeVariantGroup("Group"); });
        EXPECT_EQ(qxVariants::createVariantGroup("Group", true, true), nullptr);
    }
    {
        const OnCall removing(0, [] { qxVariants::removeNodeVariant("Wheels"); });
        EXPECT_EQ(qxVariants::createNodeVariant(node, true), nullptr);
    }
    const OnCall renaming(0, [] { qxVariants::findVariantSet("Sport")->name = "Racing"; });
    qxVariantSet *const created = qxVariants::createVariantSet("Sport", true, nullptr);
    ASSERT_NE(created, nullptr);
    EXPECT_EQ(qxVariants::findVariantSet("Racing"), created);
}

TEST_F(ReentryTest, AListenerMayForgetEverythingWhileADocumentIsRead)
{
    const char *const older =
        "<Variants><VariantGroup name='Group'>"
        "<VariantSet name='A'><OverlayRef ref='One' state=''/>"
        "<OverlayRef ref='Two' state=''/></VariantSet>"
        "<VariantSet name='B'><OverlayRef ref='Three' state=''/></VariantSet>"
        "</VariantGroup><MaterialVariant name='M' base='P Switch'/></Variants>";
    scene.addOverlay("Logo");
    qxVariantReader reader;
    reader.read(older);
    notifications.clear();
    reader.read(older);
    const std::size_t calls = notifications.entries().size();
    for (std::size_t at = 0; at < calls; ++at) {
        clearEverything();
        reader.read(older);
        notifications.clear();
        const OnCall clearing(at, clearEverything);
        reader.read(older);
        EXPECT_EQ(notifications.names().back(), "variantGroupChanged") << at;
    }
}
