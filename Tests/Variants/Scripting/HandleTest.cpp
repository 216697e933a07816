#include "qxLightVariant.h"
#include "qxMaterialVariant.h"
#include "qxNodeVariant.h"
#include "qxVariantSet.h"
#include "qxVariantSetPtr.h"
#include "qxVariants.h"

#include "HostFixture.h"
#include "qxController.h"

namespace {

typedef std::vector<std::string> Texts;

class HandleTest : public HostFixture {
protected:
    static Texts statesOf(const qxStateList &list)
    {
        Texts states;
        for (const qxVariantState &each : list)
            states.push_back((each.variant + "=" + each.state).toStdString());
        return states;
    }

    qxVariantSet *const set = qxVariants::createVariantSet("Winter", false, nullptr);
    qxVariantSetPtr handle{set};
};

} // namespace

TEST_F(HandleTest, HotkeysOfDigitsAndCapitalsStandInTheOldForm)
{
    const std::string keys = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ";
    const struct {
        int modifier;
        std::string prefix;
    } modifiers[] = {
        {0, " "},
        {0x02000000, "Shift "},
        {0x04000000, "Ctrl "},
        {0x06000000, "Shift-Ctrl "},
        {0x08000000, "Alt "},
        {0x0A000000, "Shift-Alt "},
        {0x0C000000, "Alt-Ctrl "},
        {0x0E000000, " "},
        {0x10000000, " "},
        {0x12000000, " "},
        {0x02000001, " "},
        {int(0x82000000), " "},
        {-1, " "},
        {1, " "},
    };
    for (const auto &each : modifiers) {
        for (const char key : keys) {
            handle.setHotkey(key, each.modifier);
            EXPECT_EQ(handle.getHotkey(), each.prefix + key) << std::hex << each.modifier;
        }
    }
    handle.setHotkey('K');
    EXPECT_EQ(handle.getHotkey(), " K") << "no modifier is the modifier 0";
}

TEST_F(HandleTest, OtherKeysLeaveTheHotkeyAndItsShortcut)
{
    handle.setHotkeyString("Ctrl+Alt+F7");
    EXPECT_EQ(set->key, Qt::Key_F7);
    EXPECT_EQ(int(set->modifiers), 0x0C000000);
    for (const int key :
         {32, 47, 58, 64, 91, 97, 122, 0, -1, -48, 0x01000030, 48 + 256, 65 + 65536})
        handle.setHotkey(key, 0x02000000);
    EXPECT_EQ(handle.getHotkey(), "Ctrl+Alt+F7");
    EXPECT_EQ(set->key, Qt::Key_F7);
}

TEST_F(HandleTest, AHotkeyIsReadIntoKeyAndModifiersAtOnce)
{
    handle.setHotkey('F', 0x02000000);
    int key = -2;
    Qt::KeyboardModifiers modifiers;
    qxVariants::mapHotkey("Shift F", key, modifiers);
    EXPECT_EQ(set->key, key);
    EXPECT_EQ(set->modifiers, modifiers);
    handle.setHotkeyString("");
    EXPECT_EQ(handle.getHotkey(), "");
    EXPECT_EQ(set->key, 0);
}

TEST_F(HandleTest, VariantsOfGivenObjectsAreCreatedAndAnnouncedOnce)
{
    const TestNode wheels = scene.addSwitch("Wheels", {"Steel", "Alloy"}).choose(1);
    const TestNode lamp = scene.addLight("Lamp");
    const TestMaterial paint = scene.addSwitchMaterial("Paint", {"Red", "Blue"});
    const TestMaterial leather = scene.addMaterial("Leather");
    notifications.clear();
    for (int round = 0; round < 2; ++round) {
        handle.addGeometry(wheels.node(), "Steel");
        handle.addMaterial(paint.material(), "Blue");
        handle.addMaterial(leather.material(), "Leather");
        handle.addLight(lamp.node(), "!Disable");
    }
    EXPECT_EQ(notifications.names(),
              Texts({"nodeVariantAdded", "materialVariantAdded", "materialVariantAdded",
                     "lightVariantAdded"}));
    EXPECT_EQ(heard("nodeVariantAdded").at(0).field("variant"),
              addressOf(qxVariants::findNodeVariant("Wheels")));
    EXPECT_EQ(statesOf(set->nodeVariants), Texts({"Wheels=Steel"}));
    EXPECT_EQ(statesOf(set->materialVariants), Texts({"Paint=Blue", "Leather Switch=Leather"}));
    EXPECT_EQ(statesOf(set->lightVariants), Texts({"Lamp=!Disable"}));

    handle.addGeometry(wheels.node(), "");
    handle.addLight(lamp.node(), nullptr);
    EXPECT_EQ(statesOf(set->nodeVariants), Texts({"Wheels=Alloy"})) << "the default state";
    EXPECT_EQ(statesOf(set->lightVariants), Texts({"Lamp=!Enable"}));
}

TEST_F(HandleTest, ObjectsThatAreNullOrNamelessAddNothing)
{
    notifications.clear();
    handle.addGeometry(qxNodePtr(), "A");
    handle.addLight(osg::NullFC, "A");
    handle.addMaterial(qxMaterialPtr(), "A");
    handle.addMaterial(scene.addMaterial("").material(), "A");
    EXPECT_TRUE(set->isEmpty());
    EXPECT_EQ(notifications.entries().size(), 0u);
}

TEST_F(HandleTest, AListenerThatRemovesSetAndVariantDoesNoHarm)
{
    const TestNode wheels = scene.addSwitch("Wheels", {"Steel"});
    const int listener = qxController::addListener([](const char *name, qxMessage *, int) {
        if (name == std::string("nodeVariantAdded")) {
            qxVariants::removeNodeVariant("Wheels");
            qxVariants::removeVariantSet("Winter");
        }
    });
    handle.addGeometry(wheels.node(), "Steel");
    qxController::removeListener(listener);
    EXPECT_FALSE(qxVariants::findVariantSet("Winter"));
    EXPECT_FALSE(qxVariants::findNodeVariant("Wheels"));
}

TEST_F(HandleTest, ANewNameIsAssignedAsItIs)
{
    qxVariants::createVariantSet("Summer", false, nullptr);
    notifications.clear();
    handle.setName("Sommer \xC3\xA4\xE2\x82\xAC\xF0\x9F\x9A\x97");
    EXPECT_EQ(handle.getName(), "Sommer \xC3\xA4\xE2\x82\xAC\xF0\x9F\x9A\x97");
    EXPECT_EQ(qxVariants::findVariantSet(set->name), set);
    EXPECT_FALSE(qxVariants::findVariantSet("Winter"));

    handle.setName("Summer");
    EXPECT_EQ(qxVariants::_variantSets.size(), 2u);
    EXPECT_EQ(qxVariants::_variantSets[0]->name, qxVariants::_variantSets[1]->name);
    EXPECT_EQ(qxVariants::findVariantSet("Summer"), set) << "the first of two";
    EXPECT_EQ(notifications.entries().size(), 0u);
    EXPECT_EQ(logged(qxLog::Warning), Texts());
}

TEST_F(HandleTest, TextsAreKeptWholeAndTheLastOneCounts)
{
    handle.addScript("first");
    handle.addScript("print('\xC3\xBC')\nsecond");
    EXPECT_EQ(handle.getScript(), "print('\xC3\xBC')\nsecond");

    handle.addViewpoint("Front");
    handle.addViewpoint("Back");
    handle.addViewpoint("Front");
    EXPECT_EQ(set->viewpoints.list(), QStringList({"Front", "Back"}));

    set->addTargetNodeName("B\xC3\xB6"
                           "den");
    set->addTargetNodeName("Axle");
    EXPECT_EQ(handle.getTargetNodeNames(),
              Texts({"B\xC3\xB6"
                     "den",
                     "Axle"}));

    handle.setValue("price", "1");
    handle.setValue("\xE2\x82\xAC", "\xC3\x9F");
    handle.setValue("price", "2");
    EXPECT_EQ(handle.getValue("price"), "2");
    EXPECT_EQ(handle.getValue("\xE2\x82\xAC"), "\xC3\x9F");
    EXPECT_EQ(handle.getValue("colour"), "");
    EXPECT_EQ(set->values.keys(), QStringList({"price", QString(QChar(0x20AC))}));
}

TEST_F(HandleTest, AClippingPlaneLeavesStateAndColours)
{
    handle.setClippingState(2);
    const qxAnalyzerVariant before = set->analyzer;
    handle.addClippingPlane({1, 2.5f, -3}, {0, 0, 1}, true, true, false, false, false);
    const qxAnalyzerVariant &clip = set->analyzer;
    EXPECT_EQ(clip.clipPlanePosition, osg::Pnt3f(1, 2.5f, -3));
    EXPECT_EQ(clip.clipPlaneNormal, osg::Vec3f(0, 0, 1));
    EXPECT_TRUE(clip.clipPlaneInvert && clip.clipPlaneHideScene);
    EXPECT_FALSE(clip.clipPlaneShow || clip.clipGridShow || clip.clipContourShow);
    EXPECT_EQ(clip.clipState, 2);
    EXPECT_EQ(clip.clipPlaneColor, before.clipPlaneColor);
    EXPECT_EQ(clip.clipGridColor, before.clipGridColor);
    EXPECT_EQ(clip.clipContourColor, before.clipContourColor);
    EXPECT_EQ(clip.clipContourWidth, before.clipContourWidth);

    // Each flag goes to its own place.
    for (int place = 0; place < 5; ++place) {
        handle.addClippingPlane({0, 0, 0}, {0, 1, 0}, place == 0, place == 1, place == 2,
                                place == 3, place == 4);
        EXPECT_EQ(clip.clipPlaneInvert, place == 0);
        EXPECT_EQ(clip.clipPlaneHideScene, place == 1);
        EXPECT_EQ(clip.clipPlaneShow, place == 2);
        EXPECT_EQ(clip.clipGridShow, place == 3);
        EXPECT_EQ(clip.clipContourShow, place == 4);
    }
}
