#include "qxVariantGroup.h"

#include "HostFixture.h"
#include "OneOfEach.h"
#include "Pictures/qxMainGlView.h"
#include "qxOSGWidget.h"

typedef std::vector<std::string> Lines;

class SetsTest : public HostFixture {
protected:
    qxVariantSet *addSet(const char *name, qxVariantGroup *group = nullptr)
    {
        return qxVariants::createVariantSet(name, false, group);
    }
    qxVariantGroup *addGroup(const char *name)
    {
        return qxVariants::createVariantGroup(name, false, true);
    }
    /// The names of all sets and groups of the registry.
    static std::string names()
    {
        std::string names;
        for (std::size_t i = 0; i < qxVariants::_variantSets.size(); ++i)
            names += qxVariants::_variantSets[i]->name.toStdString() + " ";
        for (const qxVariantGroup *group : qxVariants::_variantGroups)
            names += group->name.toStdString() + " ";
        return names;
    }
};

TEST_F(SetsTest, TheHostsRequestClearsAllKindsInTheirOrderEvenIfThereIsNothing)
{
    addOneOfEach(scene, *addSet("Set", addGroup("Group")));
    notifications.clear();
    std::string left; // of each kind, of the sets and of the groups, at each call
    const int listener = qxController::addListener([&](const char *, qxMessage *, int) {
        typedef qxVariants All;
        for (const std::size_t size :
             {All::_nodeVariants.size(), All::_materialVariants.size(), All::_lightVariants.size(),
              All::_overlayVariants.size(), All::_transformVariants.size(),
              All::_variantSets.size(), All::_variantGroups.size()})
            left += std::to_string(size);
        left += " ";
    });
    const std::string nothing = "0000000 ";
    for (const std::string &last :
         {"0111111 0011111 0001111 0000111 0000011 0000001 " + nothing,
          nothing + nothing + nothing + nothing + nothing + nothing + nothing}) {
        notifications.clear();
        left.clear();
        qxController::call("clearAllVariants", 1);
        EXPECT_EQ(
            notifications.lines(),
            Lines({"1 nodeVariantChanged", "1 materialVariantChanged", "1 lightVariantChanged",
                   "1 overlayVariantChanged", "0 transformVariantChanged", "1 variantSetChanged",
                   "1 variantGroupChanged", "1 clearAllVariants"}));
        EXPECT_EQ(left, last + nothing);
    }
    qxController::removeListener(listener);
}

TEST_F(SetsTest, SelectingBeginsByEndingTheRefinementOfThePicture)
{
    qxOSGWidget::setRaytracing(true);
    qxMainGlView view(8, 4);
    view.refine(); // the quick picture, which is made in any case
    ASSERT_TRUE(view.isRefining());
    qxVariants::selectVariantSet("Unknown", true);
    EXPECT_FALSE(view.isRefining());
}

TEST_F(SetsTest, ATakenNameIsRefusedWithAWarning)
{
    qxVariantGroup *const group = qxVariants::createVariantGroup("Sport", true, false);
    const int listener = qxController::addListener([group](const char *, qxMessage *, int) {
        EXPECT_EQ(group->sets.size(), 1u) << "the set is in its group when it is announced";
    });
    qxVariantSet *const set = qxVariants::createVariantSet("Sport", true, group);
    qxController::removeListener(listener);
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

TEST_F(SetsTest, WhatIsRemovedIsAliveWhileItIsAnnounced)
{
    qxVariantGroup *const group = addGroup("Group");
    qxVariantSet *const sport = addSet("Sport", group);
    qxVariantSet *const family = addSet("Family", group);
    Lines seen;
    const int listener = qxController::addListener([&](const char *, qxMessage *, int) {
        seen.push_back(group->name.toStdString() + " has " + std::to_string(group->sets.size())
                       + ", the registry " + names());
    });
    for (int round = 0; round < 2; ++round) {
        EXPECT_TRUE(qxVariants::removeVariantSet("Sport"));
        EXPECT_TRUE(qxVariants::removeVariantGroup("Group"));
    }
    EXPECT_FALSE(qxVariants::removeVariantSet(""));
    EXPECT_FALSE(qxVariants::removeVariantGroup(""));
    qxController::removeListener(listener);
    EXPECT_EQ(notifications.lines(),
              Lines({"1 variantSetRemoved variant=" + addressOf(sport),
                     "1 variantGroupRemoved variant=" + addressOf(group)}));
    EXPECT_EQ(
        seen,
        Lines({"Group has 2, the registry Family Group ", "Group has 1, the registry Family "}));
    EXPECT_EQ(family->group, nullptr);
}

TEST_F(SetsTest, EmptySetsGoOneByOneFromTheFrontAndEmptyGroupsFromTheBack)
{
    for (const char *name : {"1", "2", "3"})
        addGroup(name);
    for (const char *name : {"A", "B", "C", "D"})
        addSet(name);
    addSet("E", qxVariants::findVariantGroup("2"))->script = "pass";
    qxVariants::findVariantSet("C")->script = "pass";
    EXPECT_TRUE(qxVariants::hasEmptyVariantSets() && qxVariants::hasEmptyGroups());
    Lines left;
    const int listener = qxController::addListener(
        [&](const char *event, qxMessage *, int) { left.push_back(event + (": " + names())); });
    qxVariants::clearEmptyVariantSets();
    qxVariants::clearEmptyGroups();
    qxController::removeListener(listener);
    EXPECT_EQ(left,
              Lines({"variantSetRemoved: B C D E 1 2 3 ", "variantSetRemoved: C D E 1 2 3 ",
                     "variantSetRemoved: C E 1 2 3 ", "variantGroupRemoved: C E 1 2 ",
                     "variantGroupRemoved: C E 2 "}));
    EXPECT_FALSE(qxVariants::hasEmptyVariantSets() || qxVariants::hasEmptyGroups());
}

TEST_F(SetsTest, UniqueNamesAreTheHosts)
{
    addSet("Sport");
    addGroup("Cars");
    EXPECT_EQ(qxVariants::getUniqueVariantSetName("Cars"), "Cars");
    EXPECT_EQ(qxVariants::getUniqueVariantGroupName("Sport"), "Sport");
    EXPECT_EQ(qxVariants::getUniqueVariantSetName("Sport"), "Sport 2");
    EXPECT_EQ(qxVariants::getUniqueVariantGroupName("Cars"), "Cars 2");
}

TEST_F(SetsTest, ASetStaysInItsGroupUntilItIsTakenOut)
{
    qxVariantGroup first("First");
    auto second = std::make_unique<qxVariantGroup>("Second");
    qxVariantSet *const a = addSet("A", &first);
    qxVariantSet *const b = addSet("B", &first);
    qxVariantSet *const c = addSet("C");
    first.insert(first.find(b), c);
    EXPECT_EQ(first.sets, qxVariantGroup::Sets({a, c, b}));
    first.add(a);
    second->add(c);
    second->insert(second->sets.end(), c);
    EXPECT_TRUE(second->sets.empty());
    second->sets.push_back(c); // Not by the group's operations, so it is not a member.
    second->remove(c);
    EXPECT_EQ(second->sets, qxVariantGroup::Sets({c}));
    second->sets.clear();
    EXPECT_EQ(first.sets, qxVariantGroup::Sets({a, c, b}));
    first.remove(c);
    second->add(c);
    EXPECT_EQ(c->group, second.get());
    EXPECT_FALSE(first.contains(c));
    EXPECT_EQ(first.find(c), first.sets.end());
    qxVariants::removeVariantSet("C");
    EXPECT_TRUE(second->sets.empty());
    first.clear();
    EXPECT_EQ(a->group, nullptr);
    second->add(a);
    EXPECT_EQ(a->group, second.get());
    second.reset();
    EXPECT_EQ(a->group, nullptr);
}

TEST_F(SetsTest, TargetNodesAreShownBeforeTheSetIsSelected)
{
    const TestNode body = scene.add("Body").setMask(0);
    const TestNode door = scene.add("Door", body).setMask(0);
    const TestNode wheel = scene.add("Wheel").setMask(0);
    qxVariantSet *const set = addSet("Sport");
    for (const char *target : {"Body", "Missing", "Wheel"})
        set->addTargetNodeName(target);
    for (const bool included : {false, true}) {
        set->setInclInfo(included, !included, !included, !included, !included);
        qxVariants::selectVariantSet("Sport", true);
        EXPECT_TRUE(body.shown() == included && door.shown() == included) << included;
        EXPECT_FALSE(wheel.shown());
    }
    EXPECT_EQ(heard("variantSetSelected").size(), 2u);
    notifications.clear();
    qxVariants::selectVariantSet("sport", true);
    qxVariants::selectVariantSet("", true);
    EXPECT_TRUE(notifications.entries().empty());
}
