#include "qxLightVariant.h"
#include "qxMaterialVariant.h"
#include "qxNodeVariant.h"
#include "qxOverlayVariant.h"
#include "qxTransformVariant.h"
#include "qxVariants.h"

#include "HostFixture.h"

namespace {

typedef std::vector<std::string> Lines;

/// The operations of one kind, as one type.
struct Kind {
    const char *prefix;
    const char *flag;
    qxVariant *(*create)(const QString &name, bool notify);
    qxVariant *(*find)(const QString &name);
    bool (*remove)(const QString &name);
    void (*clear)();

    friend void PrintTo(const Kind &kind, std::ostream *out) { *out << kind.prefix; }
};

template <class Variant, Variant *(*create)(const QString &, bool),
          Variant *(*find)(const QString &)>
Kind kind(const char *prefix, const char *flag, bool (*remove)(const QString &), void (*clear)())
{
    return {prefix,
            flag,
            [](const QString &name, bool notify) -> qxVariant * { return create(name, notify); },
            [](const QString &name) -> qxVariant * { return find(name); },
            remove,
            clear};
}

const Kind kinds[] = {
    kind<qxNodeVariant, &qxVariants::createNodeVariant, &qxVariants::findNodeVariant>(
        "nodeVariant", "1 ", &qxVariants::removeNodeVariant, &qxVariants::clearNodeVariants),
    kind<qxMaterialVariant, &qxVariants::createMaterialVariant, &qxVariants::findMaterialVariant>(
        "materialVariant", "1 ", &qxVariants::removeMaterialVariant,
        &qxVariants::clearMaterialVariants),
    kind<qxLightVariant, &qxVariants::createLightVariant, &qxVariants::findLightVariant>(
        "lightVariant", "1 ", &qxVariants::removeLightVariant, &qxVariants::clearLightVariants),
    kind<qxOverlayVariant, &qxVariants::createOverlayVariant, &qxVariants::findOverlayVariant>(
        "overlayVariant", "1 ", &qxVariants::removeOverlayVariant,
        &qxVariants::clearOverlayVariants),
    kind<qxTransformVariant, &qxVariants::createTransformVariant,
         &qxVariants::findTransformVariant>("transformVariant", "0 ",
                                            &qxVariants::removeTransformVariant,
                                            &qxVariants::clearTransformVariants)};

class RegistryKindsTest : public HostFixture, public testing::WithParamInterface<Kind> {
protected:
    /// What was sent since the last call.
    Lines sent()
    {
        const Lines lines = notifications.lines();
        notifications.clear();
        return lines;
    }
    std::string line(const std::string &event) const
    {
        return GetParam().flag + std::string(GetParam().prefix) + event;
    }
};

typedef HostFixture RegistrySceneTest;

} // namespace

TEST_P(RegistryKindsTest, OnlyANewVariantIsAnnounced)
{
    qxVariant *const variant = GetParam().create("Paint", true);
    EXPECT_EQ(sent(), Lines({line("Added variant=") + addressOf(variant)}));
    EXPECT_EQ(variant->name, "Paint");
    EXPECT_TRUE(variant->options.empty());
    EXPECT_EQ(GetParam().create("Paint", true), variant);
    EXPECT_NE(GetParam().create("paint", false), variant);
    EXPECT_EQ(sent(), Lines());
}

TEST_P(RegistryKindsTest, RemovalIsAnnouncedFoundOrNot)
{
    GetParam().create("Paint", false);
    EXPECT_TRUE(GetParam().remove("Paint"));
    EXPECT_EQ(GetParam().find("Paint"), nullptr);
    EXPECT_TRUE(GetParam().remove("Paint"));
    EXPECT_EQ(sent(), Lines({line("Removed"), line("Removed")}));
    EXPECT_FALSE(GetParam().remove(""));
    EXPECT_EQ(sent(), Lines());
}

TEST_P(RegistryKindsTest, ClearingTakesThisKindAloneAndAnnouncesIt)
{
    for (const Kind &kind : kinds)
        kind.create("Paint", false);
    GetParam().clear();
    GetParam().clear();
    EXPECT_EQ(sent(), Lines({line("Changed"), line("Changed")}));
    for (const Kind &kind : kinds)
        EXPECT_EQ(kind.find("Paint") == nullptr, kind.prefix == GetParam().prefix);
}

TEST_P(RegistryKindsTest, AVariantIsFoundByTheNameItHasNow)
{
    qxVariant *const first = GetParam().create("Paint", false);
    qxVariant *const second = GetParam().create("Seats", false);
    second->name = "Paint";
    EXPECT_EQ(GetParam().find("Paint"), first);
    EXPECT_EQ(GetParam().find("Seats"), nullptr);
    first->name = QString::fromUtf8("Lackierung für außen");
    EXPECT_EQ(GetParam().find("Paint"), second);
    EXPECT_EQ(GetParam().find(first->name), first);
    first->name = "";
    EXPECT_EQ(GetParam().find(""), nullptr);
}

INSTANTIATE_TEST_SUITE_P(, RegistryKindsTest, testing::ValuesIn(kinds),
                         [](const auto &row) { return row.param.prefix; });

TEST_F(RegistrySceneTest, ANodeHasOneVariantOfEachKind)
{
    const TestNode wheels = scene.addSwitch("Wheels", {"Steel", "Alloy"});
    qxNodeVariant *const variant = qxVariants::createNodeVariant(wheels.node(), true);
    EXPECT_EQ(qxVariants::createNodeVariant(wheels.node(), true), variant);
    qxOverlayVariant *const overlay = qxVariants::createOverlayVariant(wheels.node(), true);
    EXPECT_EQ(notifications.lines(),
              Lines({"1 nodeVariantAdded variant=" + addressOf(variant),
                     "1 overlayVariantAdded variant=" + addressOf(overlay)}));
    EXPECT_TRUE(variant->find("Alloy"));
    EXPECT_EQ(qxVariants::_nodeVariants.size(), 1u);
}

TEST_F(RegistrySceneTest, WhatHasNoNameOrNoTransformStatesGetsNoVariant)
{
    EXPECT_EQ(qxVariants::createNodeVariant(osg::NodePtr(), true), nullptr);
    EXPECT_EQ(qxVariants::createLightVariant(osg::NodePtr(), true), nullptr);
    EXPECT_EQ(qxVariants::createOverlayVariant(osg::NodePtr(), true), nullptr);
    EXPECT_EQ(qxVariants::createOverlayVariant(QString(), true), nullptr);
    EXPECT_EQ(qxVariants::createMaterialVariant(osg::MaterialPtr(), true), nullptr);
    EXPECT_EQ(qxVariants::createTransformVariant(scene.add("Plain").node(), true), nullptr);
    EXPECT_EQ(notifications.lines(), Lines());

    const auto poses = scene.addPoses("Door", {"Open", "Shut"});
    EXPECT_TRUE(qxVariants::createTransformVariant(poses.node(), true)->find("Shut"));
    EXPECT_EQ(notifications.names(), Lines({"transformVariantAdded"}));
}

TEST_F(RegistrySceneTest, APlainMaterialIsKnownByTheSwitchAroundIt)
{
    const TestMaterial red = scene.addMaterial("Red");
    qxMaterialVariant *const around = qxVariants::createMaterialVariant(red.material(), false);
    EXPECT_EQ(around->name, "Red Switch");
    EXPECT_EQ(qxVariants::createMaterialVariant(red.material(), false), around);

    const TestMaterial paint = scene.addSwitchMaterial("Paint", {"Red", "Blue"});
    EXPECT_EQ(qxVariants::createMaterialVariant(paint.material(), false)->name, "Paint");
    EXPECT_EQ(qxVariants::_materialVariants.size(), 2u);
}

TEST_F(RegistrySceneTest, AnOverlayVariantMadeByNameKnowsItsOverlay)
{
    EXPECT_EQ(qxVariants::createOverlayVariant("Logo", false)->overlayName, "Logo");
    EXPECT_EQ(qxVariants::createNodeVariant("Logo", false)->nodeName, "");
}

TEST(HotkeyTest, IsTheFirstCombinationOfNativeText)
{
    struct Case {
        const char *text;
        int key;
        Qt::KeyboardModifiers modifiers;
    };
    const Case cases[] = {
        {"Ctrl+1", Qt::Key_1, Qt::ControlModifier},
        {"Shift+F5", Qt::Key_F5, Qt::ShiftModifier},
        {"Alt+Shift+A", Qt::Key_A, Qt::AltModifier | Qt::ShiftModifier},
        {"Ctrl+A, B", Qt::Key_A, Qt::ControlModifier},
        {"", 0, Qt::NoModifier},
        {"no such key", 0, Qt::NoModifier},
    };
    for (const Case &each : cases) {
        int key = -7;
        Qt::KeyboardModifiers modifiers = Qt::MetaModifier;
        qxVariants::mapHotkey(each.text, key, modifiers);
        EXPECT_EQ(key, each.key) << each.text;
        EXPECT_EQ(modifiers, each.modifiers) << each.text;
    }
}
