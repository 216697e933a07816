#include "qxLightVariant.h"
#include "qxMaterialVariant.h"
#include "qxNodeVariant.h"
#include "qxOverlayVariant.h"
#include "qxTransformVariant.h"
#include "qxVariants.h"

#include "HostFixture.h"

namespace {

typedef std::vector<std::string> Lines;
typedef HostFixture RegistryKindsTest;

/// The operations of one kind, as one type.
struct Kind {
    std::string notification; ///< what its lines begin with
    qxVariant *(*create)(const QString &name, bool notify);
    qxVariant *(*find)(const QString &name);
    bool (*remove)(const QString &name);
    void (*clear)();
};

template <class Variant, Variant *(*create)(const QString &, bool),
          Variant *(*find)(const QString &)>
Kind kind(const char *notification, bool (*remove)(const QString &), void (*clear)())
{
    return {notification,
            [](const QString &name, bool notify) -> qxVariant * { return create(name, notify); },
            [](const QString &name) -> qxVariant * { return find(name); }, remove, clear};
}

const Kind kinds[] = {
    kind<qxNodeVariant, &qxVariants::createNodeVariant, &qxVariants::findNodeVariant>(
        "1 nodeVariant", &qxVariants::removeNodeVariant, &qxVariants::clearNodeVariants),
    kind<qxMaterialVariant, &qxVariants::createMaterialVariant, &qxVariants::findMaterialVariant>(
        "1 materialVariant", &qxVariants::removeMaterialVariant,
        &qxVariants::clearMaterialVariants),
    kind<qxLightVariant, &qxVariants::createLightVariant, &qxVariants::findLightVariant>(
        "1 lightVariant", &qxVariants::removeLightVariant, &qxVariants::clearLightVariants),
    kind<qxOverlayVariant, &qxVariants::createOverlayVariant, &qxVariants::findOverlayVariant>(
        "1 overlayVariant", &qxVariants::removeOverlayVariant, &qxVariants::clearOverlayVariants),
    kind<qxTransformVariant, &qxVariants::createTransformVariant,
         &qxVariants::findTransformVariant>("0 transformVariant",
                                            &qxVariants::removeTransformVariant,
                                            &qxVariants::clearTransformVariants)};

} // namespace

TEST_F(RegistryKindsTest, ANewVariantIsAnnouncedAndARemovalEvenOfNone)
{
    for (const Kind &kind : kinds) {
        SCOPED_TRACE(kind.notification);
        notifications.clear();
        qxVariant *const variant = kind.create("Paint", true);
        EXPECT_EQ(variant->name, "Paint");
        EXPECT_TRUE(variant->options.empty());
        EXPECT_EQ(kind.create("Paint", true), variant);
        EXPECT_NE(kind.create("paint", false), variant);
        EXPECT_EQ(kind.find("Paint"), variant);
        EXPECT_TRUE(kind.remove("Paint"));
        EXPECT_EQ(kind.find("Paint"), nullptr);
        EXPECT_TRUE(kind.find("paint"));
        EXPECT_TRUE(kind.remove("Paint"));
        EXPECT_FALSE(kind.remove(""));
        EXPECT_EQ(notifications.lines(),
                  Lines({kind.notification + "Added variant=" + addressOf(variant),
                         kind.notification + "Removed", kind.notification + "Removed"}));
    }
}

TEST_F(RegistryKindsTest, ClearingTakesOneKindAloneAndAnnouncesItEvenIfThereIsNone)
{
    for (const Kind &cleared : kinds) {
        SCOPED_TRACE(cleared.notification);
        for (const Kind &kind : kinds)
            kind.create("Paint", false);
        notifications.clear();
        cleared.clear();
        cleared.clear();
        EXPECT_EQ(notifications.lines(), Lines(2, cleared.notification + "Changed"));
        for (const Kind &kind : kinds)
            EXPECT_EQ(kind.find("Paint") == nullptr, &kind == &cleared) << kind.notification;
    }
}

TEST_F(RegistryKindsTest, ANodeHasOneVariantOfEachKind)
{
    const TestNode wheels = scene.addSwitch("Wheels", {"Steel", "Alloy"});
    qxNodeVariant *const variant = qxVariants::createNodeVariant(wheels.node(), true);
    EXPECT_EQ(qxVariants::createNodeVariant(wheels.node(), true), variant);
    qxOverlayVariant *const overlay = qxVariants::createOverlayVariant(wheels.node(), true);
    EXPECT_EQ(notifications.lines(),
              Lines({"1 nodeVariantAdded variant=" + addressOf(variant),
                     "1 overlayVariantAdded variant=" + addressOf(overlay)}));
    EXPECT_TRUE(variant->find("Alloy"));
}

TEST_F(RegistryKindsTest, WhatHasNoNameOrNoTransformStatesGetsNoVariant)
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

TEST_F(RegistryKindsTest, APlainMaterialIsKnownByTheSwitchAroundIt)
{
    const TestMaterial red = scene.addMaterial("Red");
    qxMaterialVariant *const around = qxVariants::createMaterialVariant(red.material(), false);
    EXPECT_EQ(around->name, "Red Switch");
    EXPECT_EQ(qxVariants::createMaterialVariant(red.material(), false), around);

    const TestMaterial paint = scene.addSwitchMaterial("Paint", {"Red", "Blue"});
    EXPECT_EQ(qxVariants::createMaterialVariant(paint.material(), false)->name, "Paint");
}

TEST(HotkeyTest, ATextWithoutAKeyGivesNone)
{
    for (const char *text : {"", "no such key"}) {
        int key = -7;
        Qt::KeyboardModifiers modifiers = Qt::MetaModifier;
        qxVariants::mapHotkey(text, key, modifiers);
        EXPECT_EQ(key, 0) << text;
        EXPECT_EQ(modifiers, Qt::NoModifier) << text;
    }
}
