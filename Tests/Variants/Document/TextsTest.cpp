#include "qxNodeVariant.h"
#include "qxVariantSet.h"

#include "DocumentFixture.h"

#include <random>

namespace {

/// Texts that break documents: markup, white space, characters beyond ASCII and beyond 16 bits.
const char *const pieces[] = {"a",  "B", "]]>", "<![CDATA[", "<b>", "&amp;",    "&",
                              "\"", "'", " ",   "\n",        "\t",  "\r.",      "ä",
                              "€",  "𝄞", "-->", "<?x?>",     "--",  "\xC2\xA0", "\xEF\xBF\xBD"};

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
    bool chance() { return m_random() % 2; }

    void addAnySet()
    {
        qxVariantSet *const set = qxVariants::createVariantSet(anyName(), false, nullptr);
        set->comment = anyText();
        set->script = anyText();
        set->defaultViewpoint = anyText();
        for (int i = 0; i < 3; ++i) {
            set->addNodeVariant(anyName(), anyText());
            set->addOverlayVariant(anyName(), anyName());
            set->addMaterialSnapshot(anyText(), anyText());
            set->values.insert(anyText(), anyText());
            set->addGeometry(anyText());
        }
        set->setClippingPlanePositionX(double(m_random()) / 1000);
    }
    void addAnyVariant()
    {
        qxNodeVariant *const variant = qxVariants::createNodeVariant(anyName(), false);
        variant->nodeName = anyText();
        variant->defaultState = anyText();
        variant->add(anyText(), "F1");
    }

private:
    std::mt19937 m_random{3};
};

} // namespace

TEST_F(TextsTest, WhatIsWrittenIsReadAndWrittenAgain)
{
    for (int round = 0; round < 50; ++round) {
        for (int i = 0; i < 3; ++i) {
            addAnySet();
            addAnyVariant();
        }
        const QByteArray first = written();
        host.clearScene();
        read(first);
        ASSERT_EQ(qxVariants::_variantSets.size(), 3u) << first.constData();
        ASSERT_EQ(itemsOf(written()), itemsOf(first));
        host.clearScene();
    }
    EXPECT_TRUE(logged(qxLog::Warning).empty());
}

TEST_F(TextsTest, WhiteSpaceComesBack)
{
    qxVariantSet *const set = qxVariants::createVariantSet(" \n\t\r", false, nullptr);
    set->comment = "a\r\nb";
    set->script = "  \n\t";
    set->values["separator"] = " ";
    set->values["line"] = "\r\n.";
    const QByteArray document = written();
    host.clearScene();
    read(document);
    const qxVariantSet *const back = qxVariants::findVariantSet(" \n\t\r");
    ASSERT_TRUE(back);
    EXPECT_EQ(back->comment, "a\r\nb");
    EXPECT_EQ(back->script, "  \n\t");
    EXPECT_EQ(back->values["separator"], " ");
    EXPECT_EQ(back->values["line"], "\r\n.");
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
    const QByteArray document = written();
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
}
