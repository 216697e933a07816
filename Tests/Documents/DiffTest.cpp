#include "Compare/qxDocumentDiff.h"
#include "Compare/qxLineDiff.h"
#include "RandomDocument.h"
#include "qxDocumentXml.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

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
    const auto nameIn = [](const auto &one, const auto &other, int old, int now) {
        return now < 0 ? one[std::size_t(old)].name : other[std::size_t(now)].name;
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
     {"=group Other: =name Rest>Other, ~visible true>false", ">set Green: >group Paint>Other"}},
    {"everything is renamed at once",
     {{"'Paint'", "'Colour'"},
      {"'Red'", "'Rouge'"},
      {"'Door'>", "'Door'>"},
      {"name='Door'", "name='Gate'"},
      {"ref='Door'", "ref='Gate'"},
      {"'Open'", "'Wide'"}},
     {"=group Colour: =name Paint>Colour", "=set Rouge: =name Red>Rouge",
      "=variant Gate: =name Door>Gate, =state Wide Open>Wide"}},
    {"entries of a renamed variant beside others",
     {{"name='Door'", "name='Gate'"}, {"ref='Door'", "ref='Gate'"}, {"state='Down'", "state='Up'"}},
     {"~set Blue: ~node Roof Down>Up", "=variant Gate: =name Door>Gate"}},
    {"a renamed set with an edit, and one that only shares a variant with it",
     {{"'Blue'><NodeVariantRef ref='Door' state='Shut'/>",
       "'Azure'><NodeVariantRef ref='Door' state='Open'/>"},
      {"'Green'><ViewpointRef ref='Top'/>", "'Pale'><NodeVariantRef ref='Hood' state='Up'/>"}},
     {"=set Azure: =name Blue>Azure, ~node Door Shut>Open", "-set Green: -viewpoint Top >",
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
    for (unsigned seed = 0; seed < 1500; ++seed) {
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
    EXPECT_LT(equal, 1000);
}

TEST(DiffTest, WhatIsRenamedIsOneDifference)
{
    int renamed = 0;
    for (unsigned seed = 0; seed < 1000; ++seed) {
        RandomDocument random(seed);
        const qxDocument before = random.make(3);
        qxDocument after = before;
        random.edit(after, 1, RandomDocument::Renames);
        const QVector<qxThingDifference> found = qxDocumentDiff::of(before, after).things;
        if (found.isEmpty())
            continue;
        ++renamed;
        EXPECT_TRUE(found.size() == 1 && found[0].fields.size() == 1
                    && found[0].fields[0].sort == qxDifferenceSort::Renamed)
            << seed << ' ' << differences(before, after).join('\n').toStdString();
    }
    EXPECT_GT(renamed, 700);
}

/// Of 300 sets that select the same variants all are renamed, and every tenth entry is changed.
TEST(DiffTest, ManySetsAreFoundUnderOtherNamesThoughTheyAreLikeEachOther)
{
    qxDocument before;
    RandomDocument random(1);
    for (int number = 0; number < 300; ++number) {
        before.sets.emplace_back();
        before.sets.back().name = QString("Set %1").arg(number);
        for (int variant = 0; variant < 100; ++variant)
            before.sets.back().references.push_back({&qxVariantKinds::node,
                                                     QString("Variant %1").arg(variant),
                                                     QString::number(random.below(3)),
                                                     {}});
    }
    qxDocument after = before;
    for (qxDocumentSet &set : after.sets) {
        set.name.prepend("New ");
        for (std::size_t i = random.below(10); i < set.references.size(); i += 10)
            set.references[i].state += "!";
    }
    std::rotate(after.sets.begin(), after.sets.begin() + 100, after.sets.end());
    const QVector<qxThingDifference> found = qxDocumentDiff::of(before, after).things;
    EXPECT_EQ(found.size(), 300);
    for (const qxThingDifference &each : found) {
        EXPECT_TRUE(each.before >= 0 && each.after >= 0
                    && after.sets[std::size_t(each.after)].name
                        == "New " + before.sets[std::size_t(each.before)].name)
            << each.before << ' ' << each.after << ' ' << each.fields.size();
    }
}

TEST(DiffTest, ScriptsAreComparedLineByLine)
{
    for (const auto &[before, after, expected] :
         {std::make_tuple("", "a\nb", "@@ -0,0 +1,2 @@|+a|+b"),
          {"a\n", "", "@@ -1,1 +0,0 @@|-a"},
          {"a\nb\nc", "a\nB\nc", "@@ -1,3 +1,3 @@| a|-b|+B| c"},
          {"x\nx\ny\nx", "x\ny\nx\nx", "@@ -1,4 +1,4 @@| x|+y| x|-y| x"},
          {"a\nb", "a\nb\n", "\\ the last line has a line break now"},
          {"1\n2\n3\n4\n5\n6\n7\n8\n9\n10\n11\n12\n13\n14\n15\n16",
           "0\n1\n2\n3\n4\n5\n6\n8\n9\n10\n11\n12\n13\n14\n15",
           "@@ -1,10 +1,10 @@|+0| 1| 2| 3| 4| 5| 6|-7| 8| 9| 10|@@ -13,4 +13,3 @@| 13| 14| "
           "15|-16"}})
        EXPECT_EQ(qxLineDiff::unified(before, after).join('|').toStdString(), expected) << after;

    // As many lines as are not quadratic, of which none and of which all are unique.
    QString same, other;
    for (int i = 0; i < 100000; ++i) {
        same += i % 2 ? "a\n" : "b\n";
        other += i % 3 ? "a\n" : "b\n";
    }
    EXPECT_GE(qxLineDiff::of(same, other).size(), 100000);
}

} // namespace
