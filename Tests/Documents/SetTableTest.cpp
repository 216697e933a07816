#include "RandomDocument.h"
#include "Table/qxSetTable.h"
#include "Table/qxSetTableReader.h"
#include "qxDocumentXml.h"

#include <gtest/gtest.h>

#include <ostream>

static QByteArray xmlOf(const qxDocument &document)
{
    return qxDocumentXml::write(document);
}

/// Two groups with sets in them, one without, variants of two kinds.
static qxDocument paintShop()
{
    QByteArray xml = R"(<Variants>
        <VariantGroup name="Street"><VariantSet name="City">
            <NodeVariantRef ref="Wheels" state="Steel"/>
            <MaterialVariantRef ref="Paint" state="Red"/><Value name="Price">100</Value>
        </VariantSet><VariantSet name="Sport" comment="fast"/></VariantGroup>
        <VariantGroup name="Track"><VariantSet name="Race"/></VariantGroup>
        <VariantSet name="Bare"><LightVariantRef ref="Gone" state="!Enable"/></VariantSet>
        <NodeVariant name="Wheels"><State name="Steel"/><State name="Alloy"/></NodeVariant>
        <NodeVariant name="Roof"><State name="Open"/></NodeVariant>
        <MaterialVariant name="Paint"><State name="Red"/><State name="Blue"/></MaterialVariant>
        </Variants>)";
    qxDocument document = qxDocumentXml::read(xml);
    document.settle();
    return document;
}

/// What is wrong with the table, a line for each flaw.
static std::string flawsOf(const QByteArray &table, const qxDocument &document = paintShop())
{
    std::string lines;
    for (const auto &flaw : qxSetTableReader::read(table, document).flaws)
        lines += (flaw.cell + ": " + flaw.reason + '\n').toStdString();
    return lines;
}

static QByteArray titles = "Group,Set,Comment,node Wheels,node Roof,material Paint,light Gone,"
                           "value Price\n";

TEST(SetTableTest, TableHasARowForEachSetAndAColumnForEachVariantAndKey)
{
    EXPECT_EQ(qxSetTable::write(paintShop()),
              titles
                  + "Street,City,,Steel,,Red,,100\n"
                    "Street,Sport,fast,,,,,\n"
                    "Track,Race,,,,,,\n"
                    ",Bare,,,,,!Enable,\n");
    qxDocument tricky = paintShop();
    tricky.groups[0].name = "=1+1";
    tricky.sets[0].name = "'quoted'";
    tricky.sets[0].comment = "one\n\"two\"; three";
    tricky.sets[0].references[0].state.clear();
    tricky.sets[0].values[0].more = "-12.50";
    tricky.sets[1].comment = "-A1";
    tricky.sets.resize(2);
    EXPECT_EQ(qxSetTable::write(tricky, {';', true}),
              "\xEF\xBB\xBF"
              "Group;Set;Comment;node Wheels;node Roof;material Paint;value Price\r\n"
              "'=1+1;''quoted';\"one\n\"\"two\"\"; three\";';;Red;-12.50\r\n"
              "'=1+1;Sport;'-A1;;;;\r\n");
}

TEST(SetTableTest, WhatIsWrittenReadsAsTheSameDocument)
{
    for (unsigned seed = 0; seed < 300; ++seed) {
        SCOPED_TRACE(seed);
        RandomDocument random(seed);
        qxDocument document = random.make(4);
        for (qxDocumentSet &set : document.sets) { // what spreadsheets find hard
            const QString text =
                QStringList{"=x", "+1",  "-",     "-1,5", "@",      "'",
                            "\t", " a ", "a;b,c", "\"",   "x\r\ny", ""}[int(random.below(12))];
            set.comment = text;
            set.name += text;
            set.values.push_back({"key" + text, text, {}});
        }
        document.settle();
        const QByteArray before = xmlOf(document);
        for (const qxSetTable::Form &form :
             {qxSetTable::Form{}, qxSetTable::Form{';', true}, qxSetTable::Form{'\t', true}}) {
            const QByteArray table = qxSetTable::write(document, form);
            EXPECT_LE(table.size(), qxSetTable::mostBytes(document) + 3);
            const auto read = qxSetTableReader::read(table, document);
            ASSERT_TRUE(read.flaws.empty()) << qPrintable(read.flaws[0].reason);
            EXPECT_EQ(xmlOf(read.document), before);
        }
    }
}

struct EditedTable {
    const char *what;
    QByteArray table;
    std::function<void(qxDocument &document)> edit; ///< that it stands for

    friend void PrintTo(const EditedTable &table, std::ostream *out) { *out << table.what; }
};

class EditedTableTest : public testing::TestWithParam<EditedTable> {};

TEST_P(EditedTableTest, RowsEditTheirSetsAndNothingElse)
{
    qxDocument expected = paintShop();
    GetParam().edit(expected);
    expected.settle();
    EXPECT_EQ(flawsOf(GetParam().table), "");
    EXPECT_EQ(xmlOf(qxSetTableReader::read(GetParam().table, paintShop()).document),
              xmlOf(expected));
}

static qxDocumentSet setOf(const char *name, int group)
{
    qxDocumentSet set;
    set.name = name;
    set.group = group;
    return set;
}

static const qxVariantKind *const node = &qxVariantKinds::node;

INSTANTIATE_TEST_SUITE_P(
    SetTableTest, EditedTableTest,
    testing::Values(
        EditedTable{"nothing but titles", titles, [](qxDocument &) {}},
        EditedTable{"another state, and a new entry behind those of its kind",
                    "set,node Roof,node Wheels\nCity,Open,Alloy\n",
                    [](qxDocument &document) {
                        document.sets[0].references[0].state = "Alloy";
                        document.sets[0].references.push_back({node, "Roof", "Open", {}});
                    }},
        EditedTable{"emptied cells, old ends of lines, a quote that needs none",
                    "Set;\"node Wheels\";value Price;Comment\rCity;;;\rSport;;;\r;;;\r",
                    [](qxDocument &document) {
                        document.sets[0].references.erase(document.sets[0].references.begin());
                        document.sets[0].values.clear();
                        document.sets[1].comment.clear();
                    }},
        EditedTable{"a price for all, which is a new key",
                    "\xEF\xBB\xBFSet\tvalue Cost\tvalue Price\r\nCity\t7\t\"1,5\"\r\nBare\t'\t",
                    [](qxDocument &document) {
                        document.sets[0].values = {{"Cost", "7", {}}, {"Price", "1,5", {}}};
                        document.sets[3].values = {{"Cost", "", {}}};
                    }},
        EditedTable{"new sets, one of them in a new group, in the order of their rows",
                    "Group,Set,material Paint\nNew,Second,\nTrack,First,Blue\n,Loose,\nNew,Third,",
                    [](qxDocument &document) {
                        document.groups.emplace_back();
                        document.groups.back().name = "New";
                        auto &sets = document.sets;
                        sets.insert(sets.end(),
                                    {setOf("Loose", -1), setOf("First", 1), setOf("Second", 2),
                                     setOf("Third", 2)});
                        sets[sets.size() - 3].references = {
                            {&qxVariantKinds::material, "Paint", "Blue", {}}};
                    }},
        EditedTable{"sets go to other groups, behind what is there",
                    "Group,Set\nTrack,City\n,Sport\nStreet,Bare\n",
                    [](qxDocument &document) {
                        auto &sets = document.sets;
                        std::rotate(sets.begin(), sets.begin() + 2, sets.end());
                        sets[1].group = 0;
                        sets[2].group = 1;
                        sets[3].group = -1;
                    }},
        EditedTable{"rows that end early, where nothing was",
                    "Set,node Wheels,node Roof\nCity,Alloy\nSport",
                    [](qxDocument &document) { document.sets[0].references[0].state = "Alloy"; }}));

TEST(SetTableTest, AllFlawsAreToldAtOnceByCellWithWhatIsMeant)
{
    EXPECT_EQ(flawsOf("Grp,Set,node Wheel,Set,node Wheels,,glass X\n"
                      "Street,City,,,Alloi,,\n"
                      "Street,,,,Steel,,\n"
                      "Street,Sport,,,Red,note,\n"
                      "Street,City,,,Steel,,\n"
                      "Street,Race,,,Steel,,,\n"
                      ",Bare,x\n"),
              "A1: no column is called \"Grp\"; there are Group, Set, Comment, and those for "
              "variants and values, which begin with node, material, light, overlay, transform, "
              "value\n"
              "C1: no node variant is called \"Wheel\"; did you mean \"Wheels\"?\n"
              "D1: the column \"Set\" stands in B1 already\n"
              "G1: no column is called \"glass X\"; there are Group, Set, Comment, and those for "
              "variants and values, which begin with node, material, light, overlay, transform, "
              "value\n"
              "E2: \"Alloi\" is no state of node \"Wheels\"; did you mean \"Alloy\"?\n"
              "B3: the set has no name\n"
              "F4: its column has no title in the first row\n"
              "E4: \"Red\" is no state of node \"Wheels\"; it has \"Steel\", \"Alloy\"\n"
              "B5: the set \"City\" stands in B2 already\n"
              "H6: the row has more cells than the first one\n");
    EXPECT_EQ(flawsOf("Set,Comment,node Wheels,light Gone\nCity\nBare,\"a\nb\",,!Disable\n"
                      "Sport,\x02,,\n"),
              "C2: the row ends before this cell, which was \"Steel\"; an empty cell drops it\n"
              "D3: \"!Disable\" is no state of light \"Gone\"\n"
              "B4: a document cannot hold one of its characters\n");
    EXPECT_EQ(flawsOf("Set,Comment\nCi\"ty,\n\"Race\"x,\nBare,\"open\nSport,\n"),
              "A2: a quote stands in a cell without quotes; in quotes it is written twice\n"
              "A3: something stands behind its closing quote\n"
              "B4: its quote does not end\n");
    EXPECT_EQ(flawsOf("Price, node wheels,Sets\n"),
              "A1: no column is called \"Price\"; did you mean \"value Price\"?\n"
              "B1: no column is called \" node wheels\"; did you mean \"node Wheels\"?\n"
              "C1: no column is called \"Sets\"; did you mean \"Set\"?\n"
              ": no column of the first row is called \"Set\"\n");
    EXPECT_EQ(flawsOf("Group,Set\n ,City\n,  \n"),
              "A2: the group has no name\nB3: the set has no name\n");
    EXPECT_EQ(flawsOf(""), ": no column of the first row is called \"Set\"\n");
}

TEST(SetTableTest, WhatIsNoTableIsRefusedAtOnce)
{
    EXPECT_EQ(flawsOf(QByteArray("Set\nCi\0ty\n", 10)), ": it holds a NUL, which no table does\n");
    EXPECT_EQ(flawsOf("\xFF\xFES"), ": it is text in UTF-16; save the table as CSV in UTF-8\n");
    EXPECT_EQ(flawsOf("Set\nCity\n\xE4\n"),
              ": line 3 is no text in UTF-8; save the table as CSV in UTF-8\n");
    const auto many = qxSetTableReader::read("Set\n" + QByteArray("x,y\n").repeated(3000), {});
    EXPECT_EQ(many.flaws.size(), 1000u);
    EXPECT_EQ(many.furtherFlaws, 4999); // each row but the first has two
    EXPECT_EQ(many.flaws[999].cell, "B502");
    const auto wide = qxSetTableReader::read(QByteArray(2000000, ','), {});
    EXPECT_EQ(wide.flaws.size(), 1u);
    qxSetTableReader::read("Set\n\"" + QByteArray(2000000, '\n'), {});
}
