#include "HostFixture.h"
#include "OneOfEach.h"

typedef std::vector<std::string> Lines;
typedef HostFixture RegistryKindsTest;

/// The operations of one kind, as one type.
struct Kind {
    std::string notification; ///< what its lines begin with
    std::function<qxVariant *(const QString &name, bool notify)> create;
    std::function<qxVariant *(const QString &name)> find;
    bool (*remove)(const QString &name);
    void (*clear)();
};

typedef qxVariants All;

template <class Variant>
static Kind kind(const char *notification, Variant *(*create)(const QString &, bool),
                 Variant *(*find)(const QString &), bool (*remove)(const QString &),
                 void (*clear)())
{
    return {notification, create, find, remove, clear};
}

const Kind kinds[] = {
    kind("1 nodeVariant", &All::createNodeVariant, &All::findNodeVariant, &All::removeNodeVariant,
         &All::clearNodeVariants),
    kind("1 materialVariant", &All::createMaterialVariant, &All::findMaterialVariant,
         &All::removeMaterialVariant, &All::clearMaterialVariants),
    kind("1 lightVariant", &All::createLightVariant, &All::findLightVariant,
         &All::removeLightVariant, &All::clearLightVariants),
    kind("1 overlayVariant", &All::createOverlayVariant, &All::findOverlayVariant,
         &All::removeOverlayVariant, &All::clearOverlayVariants),
    kind("0 transformVariant", &All::createTransformVariant, &All::findTransformVariant,
         &All::removeTransformVariant, &All::clearTransformVariants)};

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

TEST_F(RegistryKindsTest, AnObjectOfTheSceneHasOneVariantOfEachKind)
{
    const TestNode wheels = scene.addSwitch("Wheels", {"Steel", "Alloy"});
    qxNodeVariant *const variant = qxVariants::createNodeVariant(wheels.node(), true);
    EXPECT_EQ(qxVariants::createNodeVariant(wheels.node(), true), variant);
    qxOverlayVariant *const overlay = qxVariants::createOverlayVariant(wheels.node(), true);
    EXPECT_EQ(notifications.lines(),
              Lines({"1 nodeVariantAdded variant=" + addressOf(variant),
                     "1 overlayVariantAdded variant=" + addressOf(overlay)}));
    EXPECT_TRUE(variant->find("Alloy"));
    const TestMaterial red = scene.addMaterial("Red"); // known by the switch around it
    qxMaterialVariant *const around = qxVariants::createMaterialVariant(red.material(), false);
    EXPECT_EQ(around->name, "Red Switch");
    EXPECT_EQ(qxVariants::createMaterialVariant(red.material(), false), around);
    const TestMaterial paint = scene.addSwitchMaterial("Paint", {"Red", "Blue"});
    EXPECT_EQ(qxVariants::createMaterialVariant(paint.material(), false)->name, "Paint");
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
    const osg::NodePtr poses = scene.addPoses("Door", {"Open", "Shut"});
    EXPECT_TRUE(qxVariants::createTransformVariant(poses, true)->find("Shut"));
    EXPECT_EQ(notifications.names(), Lines({"transformVariantAdded"}));
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
