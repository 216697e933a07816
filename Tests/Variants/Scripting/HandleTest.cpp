#include "qxLightVariant.h"
#include "qxMaterialVariant.h"
#include "qxNodeVariant.h"
#include "qxVariantSet.h"
#include "qxVariantSetPtr.h"
#include "qxVariants.h"

#include "HostFixture.h"

typedef std::vector<std::string> Texts;

class HandleTest : public HostFixture {
protected:
    std::string references() const
    {
        std::string text;
        for (const auto *list : {&set->nodeVariants, &set->materialVariants, &set->lightVariants}) {
            for (const qxVariantState &each : *list)
                text += (each.variant + "=" + each.state + "; ").toStdString();
        }
        return text;
    }

    qxVariantSet *const set = qxVariants::createVariantSet("Winter", false, nullptr);
    qxVariantSetPtr handle{set};
};

TEST_F(HandleTest, HotkeysOfDigitsAndCapitalsStandInTheOldForm)
{
    std::map<unsigned int, std::string> prefixes{
        {0x02000000, "Shift "}, {0x04000000, "Ctrl "},      {0x06000000, "Shift-Ctrl "},
        {0x08000000, "Alt "},   {0x0A000000, "Shift-Alt "}, {0x0C000000, "Alt-Ctrl "}};
    for (const unsigned int other :
         {0u, 1u, 0x02000001u, 0x0E000000u, 0x10000000u, 0x12000000u, 0x82000000u, 0xFFFFFFFFu})
        prefixes[other] = " ";
    for (const auto &each : prefixes) {
        const unsigned int modifiers = each.second == " " ? 0 : each.first;
        for (const char key : std::string("0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ")) {
            handle.setHotkey(key, int(each.first));
            EXPECT_EQ(handle.getHotkey(), each.second + key) << std::hex << each.first;
            EXPECT_EQ(set->key, key) << handle.getHotkey();
            EXPECT_EQ(set->modifiers, Qt::KeyboardModifiers(int(modifiers))) << handle.getHotkey();
        }
    }
    handle.setHotkey('K');
    EXPECT_EQ(handle.getHotkey(), " K") << "no modifier is the modifier 0";
}

TEST_F(HandleTest, OtherKeysLeaveHotkeyAndShortcut)
{
    handle.setHotkeyString("Ctrl+Alt+F7");
    for (const int other :
         {32, 47, 58, 64, 91, 97, 122, 0, -1, -48, 0x01000030, 48 + 256, 65 + 65536})
        handle.setHotkey(other, 0x02000000);
    EXPECT_EQ(handle.getHotkey(), "Ctrl+Alt+F7");
    EXPECT_EQ(set->key, Qt::Key_F7);
    EXPECT_EQ(int(set->modifiers), 0x0C000000);

    handle.setHotkeyString("Ctrl+-"); // no joint of the old form
    EXPECT_EQ(set->key, Qt::Key_Minus);
    handle.setHotkeyString("");
    EXPECT_EQ(handle.getHotkey(), "");
    EXPECT_EQ(set->key, 0);
}

TEST_F(HandleTest, VariantsOfGivenObjectsAreCreatedAndAnnouncedOnceOfNamelessOnesNone)
{
    handle.addGeometry(qxNodePtr(), "A");
    handle.addLight(osg::NullFC, "A");
    handle.addMaterial(qxMaterialPtr(), "A");
    handle.addMaterial(scene.addMaterial("").material(), "A");
    EXPECT_TRUE(set->isEmpty());
    EXPECT_EQ(notifications.entries().size(), 0u);
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
    EXPECT_EQ(references(), "Wheels=Steel; Paint=Blue; Leather Switch=Leather; Lamp=!Disable; ");

    handle.addGeometry(wheels.node(), "");
    handle.addLight(lamp.node(), nullptr);
    EXPECT_EQ(references(), "Wheels=Alloy; Paint=Blue; Leather Switch=Leather; Lamp=!Enable; ")
        << "the default states";
}

TEST_F(HandleTest, AListenerThatRemovesSetAndVariantDoesNoHarm)
{
    const TestNode wheels = scene.addSwitch("Wheels", {"Steel"});
    for (const bool keepsVariant : {true, false}) {
        qxVariants::createVariantSet("Winter", false, nullptr);
        qxVariantSetPtr winter(qxVariants::findVariantSet("Winter"));
        const int listener = qxController::addListener([=](const char *name, qxMessage *, int) {
            if (name != std::string("nodeVariantAdded"))
                return;
            if (!keepsVariant)
                qxVariants::removeNodeVariant("Wheels");
            qxVariants::removeVariantSet("Winter");
        });
        winter.addGeometry(wheels.node(), "Steel");
        qxController::removeListener(listener);
        EXPECT_FALSE(qxVariants::findVariantSet("Winter"));
        EXPECT_EQ(qxVariants::findNodeVariant("Wheels") != nullptr, keepsVariant);
        qxVariants::clearNodeVariants();
    }
}

TEST_F(HandleTest, ANewNameIsAssignedAsItIsAndTheLastValueOfAKeyCounts)
{
    for (int i = 0; i < 20; ++i)
        qxVariants::createVariantSet(i == 7 ? "Summer" : QString::number(i), false, nullptr);
    handle.setName("Summer");
    EXPECT_EQ(qxVariants::findVariantSet("Summer"), set) << "the first of two";
    EXPECT_FALSE(qxVariants::findVariantSet("Winter"));
    EXPECT_EQ(qxVariants::_variantSets.size(), 21u);
    EXPECT_EQ(notifications.entries().size(), 0u);
    EXPECT_EQ(logged(qxLog::Warning), Texts());

    handle.setValue("price", "1");
    handle.setValue("price", "2");
    EXPECT_EQ(handle.getValue("price"), "2");
    EXPECT_EQ(handle.getValue("colour"), "");
}
