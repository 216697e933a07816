#include "qxNodeVariant.h"
#include "qxVariantGroup.h"
#include "qxVariantSet.h"

#include "DocumentFixture.h"

#include <random>

/// Texts that break documents: markup, white space, characters beyond ASCII and beyond 16 bits.
const char *const pieces[] = {"a",     "B",     "]]>",      "<![CDATA[",   "<b>", "&amp;",
                              "&",     "\"",    "'",        " ",           "\n",  "\t",
                              "\r.",   "\r\n.", "ä",        "€",           "𝄞",   "-->",
                              "<?x?>", "--",    "\xC2\xA0", "\xEF\xBF\xBD"};

class TextsTest : public DocumentFixture {
protected:
    QString anyText()
    {
        QString text;
        for (unsigned int count = m_random() % 4; count > 0; --count)
            text += QString::fromUtf8(pieces[m_random() % std::size(pieces)]);
        return text;
    }
    QString anyName() { return anyText() + QString::number(m_random()); }

    void fillAnyhow(qxVariantSet &set)
    {
        set.comment = anyText();
        set.script = anyText();
        set.defaultViewpoint = anyText();
        for (int i = 0; i < 3; ++i) {
            set.addNodeVariant(anyName(), anyText());
            set.addMaterialSnapshot(anyText(), anyText());
            set.values.insert(anyText(), anyText());
            set.addGeometry(anyText());
        }
    }
    static QStringList textsOf(const qxVariantSet &set)
    {
        QStringList texts{set.name, set.comment, set.script, set.defaultViewpoint};
        for (const qxVariantState &each : set.nodeVariants)
            texts << each.variant << each.state;
        return texts << set.materialSnapshots.keys() << set.materialSnapshots.values()
                     << set.values.keys() << set.values.values() << set.geometries.list();
    }

private:
    std::mt19937 m_random{3};
};

TEST_F(TextsTest, WhatIsWrittenIsRead)
{
    for (int round = 0; round < 200; ++round) {
        qxVariantSet *const set = qxVariants::createVariantSet(anyName(), false, nullptr);
        fillAnyhow(*set);
        const QStringList texts = textsOf(*set);
        const QByteArray document = written();
        host.clearScene();
        read(document);
        ASSERT_EQ(qxVariants::_variantSets.size(), 1u) << document.constData();
        ASSERT_EQ(textsOf(*qxVariants::_variantSets.front()), texts) << document.constData();
        host.clearScene();
    }
    EXPECT_TRUE(logged(qxLog::Warning).empty());
}

TEST_F(TextsTest, WhatNoDocumentCanHoldIsLeftOutAndReported)
{
    const ushort bad[] = {0, 1, 8, 0xB, 0xC, 0x1F, 0xFFFE, 0xFFFF, 0xDC00, 0xD800};
    QString text;
    for (const ushort each : bad)
        text += QString("x") + QChar(each);
    qxVariantSet *const set = qxVariants::createVariantSet("S" + text, false, nullptr);
    set->script = text;
    set->addNodeVariant(QString::fromUtf8("whole 𝄞"), text);
    const QByteArray compared = qxVariantWriter().writeToCompare();
    const QByteArray document = written();
    EXPECT_EQ(compared, document);
    EXPECT_EQ(logged(qxLog::Warning),
              Lines({"Saving variants: characters that a document cannot hold were left out of 3 "
                     "texts."}));
    host.clearScene();
    read(document);
    const qxVariantSet *const back = qxVariants::findVariantSet("Sxxxxxxxxxx");
    ASSERT_TRUE(back) << document.constData();
    EXPECT_EQ(back->script, "xxxxxxxxxx");
    EXPECT_EQ(back->nodeVariants.front().variant, QString::fromUtf8("whole 𝄞"));
    EXPECT_EQ(back->nodeVariants.front().state, "xxxxxxxxxx");
    EXPECT_EQ(written(), document);
    EXPECT_EQ(logged(qxLog::Warning).size(), 1u) << "a whole registry leaves none";
}

TEST_F(TextsTest, NamesThatNoDocumentCanHoldStayApart)
{
    const QString one(QChar(1)), two(QChar(2));
    qxVariantGroup *const group = qxVariants::createVariantGroup(one, false, true);
    for (const QString &name : {one, two, "S" + one, "S" + two, QString("S"), QString("S 2")}) {
        qxVariantSet *const set = qxVariants::createVariantSet(name, false, group);
        qxNodeVariant *const variant = qxVariants::createNodeVariant(name, false);
        for (const QString &state : {one, two, QString("Unnamed")}) {
            variant->add(state, "");
            set->values[state] = "kept";
        }
        set->add(variant, two);
        set->addNodeVariant(name + "gone", "");
    }
    const QByteArray document = written();
    EXPECT_EQ(logged(qxLog::Warning).front(),
              "Saving variants: the name \"\xEF\xBF\xBD\" is written as \"Unnamed 2\".");
    host.clearScene();
    read(document);
    QStringList names;
    for (const qxVariantSet *set : qxVariants::_variantGroups.front()->sets) {
        names << set->name;
        ASSERT_EQ(set->nodeVariants.size(), 2u);
        EXPECT_EQ(set->nodeVariants.front().variant, set->name);
        EXPECT_EQ(set->nodeVariants.front().state, "Unnamed 3");
        EXPECT_EQ(set->values.size(), 3);
        EXPECT_EQ(qxVariants::findNodeVariant(set->name)->options.size(), 3u);
    }
    EXPECT_EQ(names.join(", "), "Unnamed 2, Unnamed 3, S 3, S 4, S, S 2");
}
