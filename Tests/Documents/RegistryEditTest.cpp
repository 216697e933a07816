#include "qxVariantGroup.h"
#include "qxVariantSet.h"
#include "qxVariants.h"

#include "HostFixture.h"
#include "RandomDocument.h"
#include "Registry/qxRegistryEdit.h"
#include "qxDocumentXml.h"
#include "qxMessage.h"
#include "qxRegistryDocument.h"

class RegistryEditTest : public HostFixture {
protected:
    /// Where everything is, by sort and name.
    static QHash<QString, const void *> things()
    {
        QHash<QString, const void *> all;
        for (const qxVariantGroup *each : qxVariants::_variantGroups)
            all.insert("group " + each->name, each);
        for (const qxVariantSet *each : qxVariants::_variantSets)
            all.insert("set " + each->name, each);
        qxVariantKinds::visit([&all](const qxVariantKind &kind, const qxVariant &each) {
            all.insert(kind.word + QLatin1Char(' ') + each.name, &each);
        });
        return all;
    }

    static void expectHolds(const qxDocument &wanted)
    {
        EXPECT_EQ(qxDocumentXml::write(qxRegistryDocument::current()),
                  qxDocumentXml::write(wanted));
    }

    void TearDown() override
    {
        qxMessage none;
        qxVariants::clearAll(none);
        HostFixture::TearDown();
    }
};

TEST_F(RegistryEditTest, TheRegistryHoldsTheDocumentAndWhatKeepsItsNameStaysTheSame)
{
    for (unsigned seed = 0; seed < 150; ++seed) {
        SCOPED_TRACE(seed);
        RandomDocument random(seed);
        qxDocument document = random.make();
        if (seed % 3 > 0) // else what the last round left
            qxRegistryEdit::apply(document);
        random.edit(document, int(1 + random.below(30)));
        const auto before = things();
        qxRegistryEdit::apply(document);
        expectHolds(document);
        const auto after = things();
        for (auto each = after.begin(); each != after.end(); ++each)
            EXPECT_EQ(before.value(each.key(), each.value()), each.value())
                << qPrintable(each.key());
        notifications.clear();
        EXPECT_FALSE(qxRegistryEdit::apply(document));
        EXPECT_TRUE(notifications.entries().empty());
    }
}

TEST_F(RegistryEditTest, RenamedThingsStayTheSameEvenWhenTheyExchangeNames)
{
    qxDocument document;
    document.groups.resize(1);
    document.groups[0].name = "Paint";
    document.sets.resize(3);
    for (int i = 0; i < 3; ++i) {
        document.sets[i].name = QString("Red,Blue,Gold").split(',')[i];
        document.sets[i].group = i < 2 ? 0 : -1;
    }
    document.variants.resize(2);
    document.variants[0].name = document.variants[1].name = "Lamp";
    document.variants[1].kind = &qxVariantKinds::light;
    qxRegistryEdit::apply(document);
    const auto before = things();

    document.groups[0].name = "Colours";
    document.sets[0].name = "Blue";
    document.sets[1].name = "Red";
    document.sets[2].name = "Brass"; // and "Gold", which was there, is another one
    document.sets.emplace_back();
    document.sets.back().name = "Gold";
    document.variants[1].name = "Sun";
    const auto set = [](const char *from, const char *to) {
        return qxRename{qxRename::Set, nullptr, from, to};
    };
    notifications.clear();
    qxRegistryEdit::apply(document,
                          {{qxRename::Group, nullptr, "Paint", "Colours"},
                           set("Red", "Blue"),
                           set("Blue", "Red"),
                           set("Gold", "Brass"),
                           set("Nobody", "Gold"),
                           {qxRename::Variant, &qxVariantKinds::light, "Lamp", "Sun"}});
    expectHolds(document);
    const auto after = things();
    EXPECT_EQ(after["group Colours"], before["group Paint"]);
    EXPECT_EQ(after["set Blue"], before["set Red"]);
    EXPECT_EQ(after["set Red"], before["set Blue"]);
    EXPECT_EQ(after["set Brass"], before["set Gold"]);
    EXPECT_EQ(after["light Sun"], before["light Lamp"]);
    EXPECT_EQ(after["node Lamp"], before["node Lamp"]);
    EXPECT_EQ(qxVariants::findVariantSet("Red"), after["set Red"]);
    EXPECT_EQ(notifications.lines(),
              (std::vector<std::string>{"1 lightVariantChanged", "1 variantSetChanged",
                                        "1 variantGroupChanged"}));
}

TEST_F(RegistryEditTest, ViewsHearOfWhatGoesAndOfWhatChanged)
{
    qxDocument document;
    document.sets.resize(2);
    document.sets[0].name = "Red";
    document.sets[1].name = "Blue";
    qxRegistryEdit::apply(document);
    qxVariantSet *const blue = qxVariants::findVariantSet("Blue");
    blue->key = -1;
    document.sets.erase(document.sets.begin());
    document.sets[0].hotkey.text = "Ctrl+B";
    notifications.clear();
    EXPECT_TRUE(qxRegistryEdit::apply(document));
    EXPECT_EQ(notifications.names(),
              (std::vector<std::string>{"variantSetRemoved", "variantSetChanged"}));
    EXPECT_EQ(blue->key, int(Qt::Key_B));
}
