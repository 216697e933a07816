#include "qxVariantSet.h"

#include "DocumentFixture.h"

struct Malformed {
    const char *name;
    QByteArray document;
    const char *error; ///< what we say of it; null for what the parser says
};

static QByteArray nested(int depth)
{
    return QByteArray("<a>").repeated(depth) + QByteArray("</a>").repeated(depth);
}

const Malformed malformed[] = {
    {"Nothing", "", nullptr},
    {"Truncated", "<Variants><VariantSet name=\"New\"><Script>a</Scr", nullptr},
    {"InATag", "<Variants><VariantSet name=\"New", nullptr},
    {"InAComment", "<Variants><!-- ", nullptr},
    {"InAType", "<!DOCTYPE variants [ <!ELEMENT", nullptr},
    {"WrongEnd", "<Variants>\n <VariantSet name=\"New\">\n </Variants>", nullptr},
    {"LastCharacter", "<Variants><VariantSet name=\"New\xEF\xBF\xBF\"/></Variants>", nullptr},
    {"OneTooDeep", nested(257), "elements are nested too deep\" at 1 769"},
    {"DeepAndOpen", "<Variants>\n" + QByteArray("<a b='/>'>").repeated(1000000),
     "elements are nested too deep\" at 2 2551"},
    {"OneAttributeTooMuch", "<V" + QByteArray(" a=''").repeated(1001) + "/>",
     "an element has too many attributes\" at 1 5006"},
    {"Entity", "<!DOCTYPE v [\n<!ENTITY e 'x'>]><Variants a='&e;'/>",
     "entity declarations are not allowed\" at 2 1"},
    {"ParameterEntity", "<!DOCTYPE v [<!-- ' --><?x ' ?><!ENTITY % p 'x'>]><Variants/>",
     "entity declarations are not allowed\" at 1 32"},
    {"HiddenMarkup", "<?xml version='1.0' encoding='utf7'?><Variants/>",
     "the encoding is not supported\" at 1 1"},
    {"HiddenBehindAMark", "\xEF\xBB\xBF<?xml version='1.0' encoding='UTF-16'?><Variants/>",
     "the encoding is not supported\" at 1 1"},
};

/// Documents in which something looks like what is refused.
const QByteArray harmless[] = {
    nested(256),
    "<!DOCTYPE v SYSTEM \"a'<!ENTITY\" [<!-- <!ENTITY --> <?x <!ENTITY ?> <!ELEMENT a ANY>]><V/>",
    "<V>" + QByteArray("<!-- <a> -->").repeated(300) + "</V>",
    "<V><![CDATA[" + QByteArray("<a>").repeated(300) + "<!ENTITY]]></V>",
    "<V><?x " + QByteArray("<a>").repeated(300) + "?></V>",
    "<V>" + QByteArray("<a b='/' c=\"'>\"/>").repeated(300) + "</V>",
    "<V>" + QByteArray("<a b='>'></a >").repeated(300) + "</V>",
    "\xEF\xBB\xBF<?xml version='1.0' encoding='utf-8'?><V/>",
    "<?xml version='1.0' encoding='UTF8'?><V/>",
    "\xEF\xBB\xBF<?xml version='1.0' encoding='utf_8'?><V/>",
    "<?xml version='1.0' encoding='latin-9'?><V/>",
    "<?xml version='1.0' encoding='cp1252'?><V/>",
    "<?xml version='1.0' encoding='no such'?><V/>",
    "<V>" + QByteArray("\xFF\xC3\x28", 3).repeated(300) + "</V>",
    "<V a=\"" + QByteArray(5000000, 'x') + "\"/>",
};

/// The line for an error that the parser finds.
static std::string parserError(const QByteArray &bytes)
{
    QString message;
    int line = 0;
    int column = 0;
    EXPECT_FALSE(QDomDocument().setContent(bytes, &message, &line, &column));
    return QStringLiteral("%1\" at %2 %3").arg(message).arg(line).arg(column).toStdString();
}

typedef DocumentFixture MalformedTest;

TEST_F(MalformedTest, IsReportedAndChangesNothing)
{
    qxVariants::createVariantSet("Known", false, nullptr);
    for (const Malformed &each : malformed) {
        SCOPED_TRACE(each.name);
        const std::string error = each.error ? each.error : parserError(each.document);
        EXPECT_FALSE(read(each.document));
        EXPECT_EQ(takeErrors(), Lines({"Error loading variants: \"" + error}));
        EXPECT_TRUE(notifications.entries().empty());
        EXPECT_EQ(qxVariants::_variantSets.size(), 1u);
    }
}

TEST_F(MalformedTest, WhatOnlyLooksDangerousIsReadUpToANul)
{
    for (const QByteArray &document : harmless) {
        notifications.clear();
        EXPECT_TRUE(read(document));
        EXPECT_EQ(notifications.entries().size(), 7u) << document.left(200).constData();
    }

    const char document[] = "<Variants><VariantSet name=\"S\"/></Variants>\0<not read";
    read(QByteArray(document, sizeof(document)));
    EXPECT_TRUE(qxVariants::findVariantSet("S"));
}
