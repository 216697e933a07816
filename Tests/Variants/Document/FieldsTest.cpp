#include "qxNodeVariant.h"
#include "qxVariantSet.h"

#include "DocumentFixture.h"

typedef DocumentFixture FieldsTest;

TEST_F(FieldsTest, EachFlagIsItsOwn)
{
    const int count = 5;
    for (int i = 0; i < count; ++i) {
        qxVariantSet *const set = qxVariants::createVariantSet(QString::number(i), false, nullptr);
        set->setInclInfo(i == 0, i == 1, i == 2, i == 3, i == 4);
        set->setClippingShowPlane(i == 0);
        set->setClippingInvert(i == 1);
        set->setClippingHideScene(i == 2);
        set->setClippingShowGrid(i == 3);
        set->setClippingShowContour(i == 4);
    }
    const QByteArray document = written();
    host.clearScene();
    read(document);
    for (int i = 0; i < count; ++i) {
        const qxVariantSet &set = *qxVariants::findVariantSet(QString::number(i));
        const qxAnalyzerVariant &clip = set.analyzer;
        bool included[count] = {};
        set.getInclInfo(included[0], included[1], included[2], included[3], included[4]);
        const bool clipping[count] = {clip.clipPlaneShow, clip.clipPlaneInvert,
                                      clip.clipPlaneHideScene, clip.clipGridShow,
                                      clip.clipContourShow};
        for (int flag = 0; flag < count; ++flag) {
            EXPECT_EQ(included[flag], flag == i) << flag << " of set " << i;
            EXPECT_EQ(clipping[flag], flag == i) << flag << " of set " << i;
        }
    }
}

TEST_F(FieldsTest, ShortcutsAreReadIntoKeysAndModifiers)
{
    readInside("<VariantSet name=\"Sport\"><Hotkey>Ctrl+Alt+F7</Hotkey></VariantSet>"
               "<NodeVariant name=\"Roof\"><State name=\"Open\"><Hotkey>Shift+F2</Hotkey></State>"
               "<State name=\"Shut\"/></NodeVariant>");
    const qxVariantSet &set = *qxVariants::findVariantSet("Sport");
    EXPECT_EQ(set.key, Qt::Key_F7);
    EXPECT_EQ(set.modifiers, Qt::ControlModifier | Qt::AltModifier);
    const std::vector<qxVariantOption> &options = qxVariants::findNodeVariant("Roof")->options;
    ASSERT_EQ(options.size(), 2u);
    EXPECT_EQ(options[0].shortcut, "Shift+F2");
    EXPECT_EQ(options[0].key, Qt::Key_F2);
    EXPECT_EQ(options[0].modifiers, Qt::ShiftModifier);
    EXPECT_EQ(options[1].shortcut, "");
}
