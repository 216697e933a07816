#include "qxVariantGroup.h"
#include "qxVariantSet.h"
#include "qxVariants.h"

#include "HostFixture.h"
#include "qxController.h"

namespace {

typedef std::vector<std::string> Lines;

class SetsTest : public HostFixture {
protected:
    qxVariantSet *addSet(const char *name, qxVariantGroup *group = nullptr)
    {
        return qxVariants::createVariantSet(name, false, group);
    }
    /// A set that is not empty.
    qxVariantSet *addFullSet(const char *name)
    {
        qxVariantSet *const set = addSet(name);
        set->script = "pass";
        return set;
    }
    qxVariantGroup *addGroup(const char *name)
    {
        return qxVariants::createVariantGroup(name, false, true);
    }
    static std::string setNames()
    {
        std::string names;
        for (const qxVariantSet *set : qxVariants::_variantSets)
            names += set->name.toStdString() + " ";
        return names;
    }
};

/// What the host's request leads to, and the request itself, which the log hears behind the module.
const Lines changes({"1 nodeVariantChanged", "1 materialVariantChanged", "1 lightVariantChanged",
                     "1 overlayVariantChanged", "0 transformVariantChanged", "1 variantSetChanged",
                     "1 variantGroupChanged", "1 clearAllVariants"});

} // namespace

TEST_F(SetsTest, TheHostsRequestClearsAllKindsInTheirOrder)
{
    qxController::call("clearAllVariants", 1);
    EXPECT_EQ(notifications.lines(), changes);

    addSet("Set", addGroup("Group"));
    qxVariants::createLightVariant("Lamp", false);
    notifications.clear();
    qxController::call("clearAllVariants", 1);
    EXPECT_EQ(notifications.lines(), changes);
    EXPECT_TRUE(qxVariants::_variantSets.empty());
    EXPECT_TRUE(qxVariants::_variantGroups.empty());
    EXPECT_TRUE(qxVariants::_lightVariants.empty());
}

TEST_F(SetsTest, ATakenNameIsRefusedWithAWarning)
{
    qxVariantGroup *const group = qxVariants::createVariantGroup("Sport", true, false);
    qxVariantSet *const set = qxVariants::createVariantSet("Sport", true, group);
    EXPECT_EQ(notifications.lines(),
              Lines({"1 variantGroupAdded variant=" + addressOf(group),
                     "1 variantSetAdded variant=" + addressOf(set)}));
    EXPECT_FALSE(group->visible);
    EXPECT_EQ(set->group, group);

    EXPECT_EQ(qxVariants::createVariantSet("Sport", true, nullptr), nullptr);
    EXPECT_EQ(qxVariants::createVariantGroup("Sport", true, true), nullptr);
    EXPECT_EQ(logged(qxLog::Warning),
              Lines({"A variant set with that name already exists.",
                     "A variant group with that name already exists."}));
    EXPECT_EQ(qxVariants::createVariantSet("", true, nullptr), nullptr);
    EXPECT_EQ(qxVariants::createVariantGroup("", true, true), nullptr);
    EXPECT_EQ(notifications.entries().size(), 2u);
}

TEST_F(SetsTest, ARemovedSetIsAliveWhileItIsAnnounced)
{
    qxVariantGroup *const group = addGroup("Group");
    qxVariantSet *const set = addSet("Sport", group);
    std::string seen;
    const int listener = qxController::addListener([&](const char *, qxMessage *, int) {
        seen += set->name.toStdString() + (set->group == group ? " in its group; " : "; ");
        seen += "registry: " + setNames();
    });
    EXPECT_TRUE(qxVariants::removeVariantSet("Sport"));
    qxController::removeListener(listener);
    EXPECT_EQ(seen, "Sport in its group; registry: ");
    EXPECT_TRUE(group->sets.empty());

    EXPECT_TRUE(qxVariants::removeVariantSet("Sport"));
    EXPECT_FALSE(qxVariants::removeVariantSet(""));
    EXPECT_EQ(notifications.names(), Lines({"variantSetRemoved"}));
}

TEST_F(SetsTest, ARemovedGroupLeavesItsSets)
{
    qxVariantSet *const set = addSet("Sport", addGroup("Group"));
    EXPECT_TRUE(qxVariants::removeVariantGroup("Group"));
    EXPECT_TRUE(qxVariants::removeVariantGroup("Group"));
    EXPECT_FALSE(qxVariants::removeVariantGroup(""));
    EXPECT_EQ(notifications.names(), Lines({"variantGroupRemoved"}));
    EXPECT_EQ(set->group, nullptr);
    EXPECT_EQ(setNames(), "Sport ");
}

TEST_F(SetsTest, EmptySetsGoOneByOneFromTheFront)
{
    addSet("A");
    addSet("B");
    addFullSet("C");
    addSet("D");
    addFullSet("E");
    EXPECT_TRUE(qxVariants::hasEmptyVariantSets());
    Lines seen;
    const int listener = qxController::addListener(
        [&](const char *name, qxMessage *, int) { seen.push_back(name + (": " + setNames())); });
    qxVariants::clearEmptyVariantSets();
    qxController::removeListener(listener);
    EXPECT_EQ(seen,
              Lines({"variantSetRemoved: B C D E ", "variantSetRemoved: C D E ",
                     "variantSetRemoved: C E "}));
    EXPECT_FALSE(qxVariants::hasEmptyVariantSets());
}

TEST_F(SetsTest, EmptyGroupsGoFromTheBack)
{
    addGroup("A");
    addSet("Sport", addGroup("B"));
    addGroup("C");
    EXPECT_TRUE(qxVariants::hasEmptyGroups());
    Lines removed;
    const int listener = qxController::addListener([&](const char *, qxMessage *message, int) {
        const auto *group = static_cast<qxVariantGroup *>(*message->get<void *>("variant"));
        removed.push_back(group->name.toStdString());
    });
    qxVariants::clearEmptyGroups();
    qxController::removeListener(listener);
    EXPECT_EQ(removed, Lines({"C", "A"}));
    EXPECT_FALSE(qxVariants::hasEmptyGroups());
}

TEST_F(SetsTest, UniqueNamesAreTheHosts)
{
    addSet("Sport");
    addGroup("Cars");
    EXPECT_EQ(qxVariants::getUniqueVariantSetName("Cars"), "Cars");
    EXPECT_EQ(qxVariants::getUniqueVariantGroupName("Sport"), "Sport");
    const QString other = qxVariants::getUniqueVariantSetName("Sport");
    EXPECT_NE(other, "Sport");
    EXPECT_TRUE(other.startsWith("Sport")) << other.toStdString();
    EXPECT_NE(qxVariants::getUniqueVariantGroupName("Cars"), "Cars");
}

TEST_F(SetsTest, ASetStaysInItsGroupUntilItIsTakenOut)
{
    qxVariantGroup first("First");
    qxVariantGroup second("Second");
    qxVariantSet *const a = addSet("A", &first);
    qxVariantSet *const b = addSet("B", &first);
    qxVariantSet *const c = addSet("C");
    first.insert(first.find(b), c);
    EXPECT_EQ(first.sets, qxVariantGroup::Sets({a, c, b}));

    first.add(a);
    second.add(c);
    second.remove(c);
    EXPECT_EQ(first.sets, qxVariantGroup::Sets({a, c, b}));
    EXPECT_TRUE(second.sets.empty());

    first.remove(c);
    second.add(c);
    EXPECT_EQ(c->group, &second);
    EXPECT_FALSE(first.contains(c));
    EXPECT_EQ(first.find(c), first.sets.end());
    qxVariants::removeVariantSet("C");
    EXPECT_TRUE(second.sets.empty());
    first.clear();
    EXPECT_EQ(a->group, nullptr);
    second.add(a);
    EXPECT_EQ(a->group, &second);
}

TEST_F(SetsTest, TheEndOfAGroupLeavesItsSetsWithoutOne)
{
    qxVariantSet *const set = addSet("A");
    {
        qxVariantGroup group;
        group.add(set);
    }
    EXPECT_EQ(set->group, nullptr);
}

TEST_F(SetsTest, TargetNodesAreShownBeforeTheSetIsSelected)
{
    const TestNode body = scene.add("Body");
    const TestNode door = scene.add("Door", body);
    const TestNode wheel = scene.add("Wheel");
    for (const TestNode &node : {body, door, wheel})
        node.setMask(0);
    qxVariantSet *const set = addSet("Sport");
    for (const char *target : {"Body", "Missing", "Wheel"})
        set->addTargetNodeName(target);

    qxVariants::selectVariantSet("Sport", true);
    EXPECT_FALSE(body.shown());
    set->inclNodes = true;
    qxVariants::selectVariantSet("Sport", true);
    EXPECT_TRUE(body.shown());
    EXPECT_TRUE(door.shown());
    EXPECT_FALSE(wheel.shown());
    EXPECT_EQ(heard("variantSetSelected").size(), 2u);

    notifications.clear();
    qxVariants::selectVariantSet("sport", true);
    qxVariants::selectVariantSet("", true);
    EXPECT_TRUE(notifications.entries().empty());
}
