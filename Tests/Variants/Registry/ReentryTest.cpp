#include "qxVariantGroup.h"
#include "qxVariantReader.h"

#include "HostFixture.h"
#include "OneOfEach.h"
#include "Script/qxScriptRunner.h"

static void clearEverything()
{
    qxVariants::clearAll(*std::make_unique<qxMessage>());
}

/// Listeners and scripts that change the registry while it works.
class ReentryTest : public HostFixture {
protected:
    /// Does the work, and at the call with that number, counted from its begin on, something else.
    template <class Work, class Act>
    static void interrupt(const Work &work, std::size_t number, const Act &act)
    {
        const int listener = qxController::addListener([&](const char *, qxMessage *, int) {
            if (number-- == 0)
                act();
        });
        work();
        qxController::removeListener(listener);
    }

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
        const auto names = notifications.names();
        for (std::size_t at = 0; at < names.size(); ++at) {
            host.clearScene();
            qxVariantSet *const set = fill();
            interrupt([&] { act(*set); }, at, clearEverything);
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
    const auto select = [set] { set->select(true, false); };
    interrupt(select, 1, [set] { set->clear(); });
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
    select();
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
    qxVariantSet *set = nullptr;
    const auto createSet = [&set] { set = qxVariants::createVariantSet("Sport", true, nullptr); };
    interrupt(createSet, 0, [] { qxVariants::removeVariantSet("Sport"); });
    EXPECT_EQ(set, nullptr);
    interrupt([] { EXPECT_FALSE(qxVariants::createVariantGroup("Group", true, true)); }, 0,
              [] { qxVariants::removeVariantGroup("Group"); });
    interrupt([&node] { EXPECT_FALSE(qxVariants::createNodeVariant(node, true)); }, 0,
              [] { qxVariants::removeNodeVariant("Wheels"); });
    interrupt(createSet, 0, [] { qxVariants::findVariantSet("Sport")->name = "Racing"; });
    ASSERT_NE(set, nullptr);
    EXPECT_EQ(qxVariants::findVariantSet("Racing"), set);
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
    const auto read = [older] { qxVariantReader().read(older); };
    read();
    notifications.clear();
    read();
    const std::size_t calls = notifications.entries().size();
    for (std::size_t at = 0; at < calls; ++at) {
        clearEverything();
        read();
        notifications.clear();
        interrupt(read, at, clearEverything);
        EXPECT_EQ(notifications.names().back(), "variantGroupChanged") << at;
    }
}
