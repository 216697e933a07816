#include "RandomDocument.h"
#include "qxDocumentDiff.h"
#include "qxDocumentXml.h"
#include "qxLineDiff.h"

#include <QHash>

#include <gtest/gtest.h>

namespace {

qxDocument documentOf(const QByteArray &children)
{
    qxDocument document = qxDocumentXml::read("<Variants>" + children + "</Variants>");
    EXPECT_TRUE(document.isWhole) << children.toStdString();
    document.settle();
    return document;
}

/// Such as "~set Red: ~hotkey F1>F2, +node Roof >Open"; signs are + - ~ and > for moved, = renamed.
QStringList differences(const qxDocument &before, const qxDocument &after)
{
    static const char signs[] = "+-~>=";
    const auto nameIn = [](const auto &one, const auto &other, int before, int after) {
        return after < 0 ? one[std::size_t(before)].name : other[std::size_t(after)].name;
    };
    QStringList result;
    for (const qxThingDifference &each : qxDocumentDiff::of(before, after).things) {
        QStringList fields;
        for (const qxFieldDifference &field : each.fields)
            fields += QString("%1%2 %3 %4>%5")
                          .arg(QChar(signs[int(field.sort)]), field.field, field.name, field.before,
                               field.after)
                          .simplified();
        const int old = each.before, now = each.after;
        const QString name = each.thing == qxThingDifference::Group
            ? "group " + nameIn(before.groups, after.groups, old, now)
            : each.thing == qxThingDifference::Set
            ? "set " + nameIn(before.sets, after.sets, old, now)
            : "variant " + nameIn(before.variants, after.variants, old, now);
        result += QChar(signs[int(each.sort())]) + name + ": " + fields.join(", ");
    }
    return result;
}

const QByteArray green = "<VariantSet name='Green'><ViewpointRef ref='Top'/>"
                         "<Analyzer clipState='0'/></VariantSet>";
const QByteArray sets = "<VariantGroup name='Paint'>"
                        "<VariantSet name='Red'><NodeVariantRef ref='Door' state='Open'/>"
                        "<NodeVariantRef ref='Roof' state='Up'/></VariantSet>"
                        "<VariantSet name='Blue'><NodeVariantRef ref='Door' state='Shut'/>"
                        "<NodeVariantRef ref='Roof' state='Down'/></VariantSet>"
    + green
    + "</VariantGroup><VariantGroup name='Rest' visible='true'>"
      "<VariantSet name='Last'/></VariantGroup>";
const QByteArray door =
    "<NodeVariant name='Door' base='Door'><Default ref='Open'/>"
    "<State name='Open'/><State name='Shut'/><State name='Ajar'/></NodeVariant>";
const QByteArray roof = "<NodeVariant name='Roof' base='Roof'><State name='Up'/>"
                        "<State name='Down'/></NodeVariant>";
const QByteArray whole = sets + door + roof;

/// An edit of the document by replacing text, and what is to be found.
struct Edit {
    const char *title;
    std::vector<std::pair<QByteArray, QByteArray>> replaced;
    QStringList expected;
};

const std::vector<Edit> edits{
    {"nothing", {}, {}},
    {"fields of a set",
     {{"name='Red'>", "name='Red' comment='new'><Hotkey>F1</Hotkey><Script>a</Script>"}},
     {"~set Red: +comment >new, +hotkey >F1, +script >a"}},
    {"more fields of a set",
     {{"name='Green'>",
       "name='Green' default-viewpoint='Top'><SequentialAnimation>true</SequentialAnimation>"
       "<Preview><![CDATA[QUJD]]></Preview><InclInfo inclLights='1'/><TargetName name='T'/>"
       "<MaterialSnapshot nodePath='/a' materialName='M'/><Value name='k'>v</Value>"}},
     {"~set Green: +defaultViewpoint >Top, ~sequential false>true, +preview >QUJD, +target T >, "
      "~include lights false>true, +snapshot /a >M, +value k >v"}},
    {"entries",
     {{"<NodeVariantRef ref='Door' state='Shut'/>",
       "<NodeVariantRef ref='Door' state='Open'/><NodeVariantRef ref='Hood' state='Up'/>"},
      {"<ViewpointRef ref='Top'/>", "<ViewpointRef ref='Side'/>"}},
     {"~set Blue: ~node Door Shut>Open, +node Hood >Up",
      "~set Green: -viewpoint Top >, +viewpoint Side >"}},
    {"clipping",
     {{"clipState='0'", "clipState='2' clipGridColorG='0.5'"}},
     {"~set Green: ~clipping clipState 0>2, ~clipping clipGridColorG 0>0.5"}},
    {"a set comes, with what is in it, and one goes",
     {{green, ""},
      {"<NodeVariant name='Door'",
       "<VariantSet name='New'><AnimationRef ref='Run'/></VariantSet><NodeVariant name='Door'"}},
     {"-set Green: -viewpoint Top >", "+set New: +animation Run >"}},
    {"only what really moved is moved",
     {{"<VariantSet name='Red'><NodeVariantRef ref='Door' state='Open'/>"
       "<NodeVariantRef ref='Roof' state='Up'/></VariantSet>",
       ""},
      {"</VariantGroup><VariantGroup name='Rest'",
       "<VariantSet name='Red'><NodeVariantRef ref='Roof' state='Up'/>"
       "<NodeVariantRef ref='Door' state='Open'/></VariantSet>"
       "</VariantGroup><VariantGroup name='Rest'"}},
     {"~set Red: >place >Green, >node Roof Door>"}},
    {"a set goes to another group, whose name changes too",
     {{green, ""}, {"'Rest' visible='true'>", "'Other' visible='false'>" + green}},
     {"~group Other: =name Rest>Other, ~visible true>false", "~set Green: >group Paint>Other"}},
    {"everything is renamed at once",
     {{"'Paint'", "'Colour'"},
      {"'Red'", "'Rouge'"},
      {"'Door'>", "'Door'>"},
      {"name='Door'", "name='Gate'"},
      {"ref='Door'", "ref='Gate'"},
      {"'Open'", "'Wide'"}},
     {"~group Colour: =name Paint>Colour", "~set Rouge: =name Red>Rouge",
      "~variant Gate: =name Door>Gate, =state Wide Open>Wide"}},
    {"a renamed set with an edit, and one that only shares a variant with it",
     {{"'Blue'><NodeVariantRef ref='Door' state='Shut'/>",
       "'Azure'><NodeVariantRef ref='Door' state='Open'/>"},
      {"'Green'><ViewpointRef ref='Top'/>", "'Pale'><NodeVariantRef ref='Hood' state='Up'/>"}},
     {"~set Azure: =name Blue>Azure, ~node Door Shut>Open", "-set Green: -viewpoint Top >",
      "+set Pale: +node Hood >Up"}},
    {"variants",
     {{"<State name='Open'/>",
       "<State name='Half'/><State name='Open'><Hotkey>F2</Hotkey></State>"},
      {"<Default ref='Open'/>", "<Default ref='Half'/>"},
      {"base='Roof'", "base='Top'"}},
     {"~variant Door: ~default Open>Half, +state Half >, +key Open >F2",
      "~variant Roof: ~base Roof>Top"}},
    {"order of variants and of states",
     {{door + roof, roof + door},
      {"<State name='Up'/><State name='Down'/>", "<State name='Down'/><State name='Up'/>"}},
     {"~variant Roof: >place Door>, >state Down Up>"}},
    {"a state that nothing uses is the same one at its place",
     {{"<State name='Ajar'/>", "<State name='Half'/>"}},
     {"~variant Door: =state Half Ajar>Half"}},
    {"it is not elsewhere",
     {{"<State name='Ajar'/>", ""},
      {"<State name='Open'/>", "<State name='Half'/><State name='Open'/>"}},
     {"~variant Door: +state Half >, -state Ajar >"}},
    {"nor is one whose sets select another state now",
     {{"<State name='Shut'/>", "<State name='Closed'/>"}, {"state='Shut'", "state='Open'"}},
     {"~set Blue: ~node Door Shut>Open", "~variant Door: -state Shut >, +state Closed >"}},
};

TEST(DiffTest, EachEditIsToldAsWhatItIs)
{
    const qxDocument before = documentOf(whole);
    for (const Edit &edit : edits) {
        QByteArray text = whole;
        for (const auto &[old, now] : edit.replaced) {
            EXPECT_TRUE(text.contains(old)) << edit.title << ": " << old.toStdString();
            text.replace(old, now);
        }
        EXPECT_EQ(differences(before, documentOf(text)).join('\n').toStdString(),
                  edit.expected.join('\n').toStdString())
            << edit.title;
    }
}

TEST(DiffTest, ThereIsADifferenceExactlyWhereTextsDiffer)
{
    int equal = 0;
    for (unsigned seed = 0; seed < 3000; ++seed) {
        RandomDocument random(seed);
        const qxDocument before = random.make(1 + seed % 5);
        qxDocument after = before;
        random.edit(after, int(seed % 4), 1 << (seed / 4) % 5);
        const bool isSame = qxDocumentXml::write(before) == qxDocumentXml::write(after);
        equal += isSame;
        EXPECT_EQ(qxDocumentDiff::of(before, after).isEmpty(), isSame) << seed;
        EXPECT_EQ(qxDocumentDiff::of(after, before).isEmpty(), isSame) << seed;
        EXPECT_TRUE(qxDocumentDiff::of(after, after).isEmpty()) << seed;
    }
    EXPECT_LT(equal, 2000);
}

} // namespace
