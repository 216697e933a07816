#include "qxNodeVariant.h"
#include "qxVariantGroup.h"
#include "qxVariantSet.h"

#include "DocumentFixture.h"

namespace {

const int Many = 100000; // With work that grows with the square this takes minutes.

QByteArray states(const QByteArray &hotkey)
{
    QByteArray text;
    for (int i = 0; i < Many; ++i)
        text +=
            "<State name='S" + QByteArray::number(i) + "'><Hotkey>" + hotkey + "</Hotkey></State>";
    return text;
}

class LargeTest : public DocumentFixture {};

} // namespace

TEST_F(LargeTest, AVariantMayHaveVeryManyStates)
{
    readInside("<NodeVariant name='V'>" + states("") + states("F1") + "</NodeVariant>");
    qxNodeVariant *const variant = qxVariants::findNodeVariant("V");
    ASSERT_EQ(variant->options.size(), std::size_t(Many));
    for (int i = 0; i < Many; ++i)
        ASSERT_EQ(variant->options[std::size_t(i)].name, QStringLiteral("S%1").arg(i));
    EXPECT_EQ(variant->find("S99999")->shortcut, QString()) << "twins keep the first one's hotkey";
}

TEST_F(LargeTest, AGroupMayHaveVeryManySets)
{
    QByteArray sets;
    for (int i = 0; i < Many; ++i)
        sets += "<VariantSet name='S" + QByteArray::number(i) + "'/>";
    readInside("<VariantGroup name='G'>" + sets + "</VariantGroup>");
    qxVariantGroup *const group = qxVariants::findVariantGroup("G");
    ASSERT_EQ(group->sets.size(), std::size_t(Many));
    EXPECT_EQ(group->sets.back()->name, "S99999");
    EXPECT_EQ(group->sets.back()->group, group);
}
