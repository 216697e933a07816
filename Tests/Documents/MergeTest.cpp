#include "Compare/qxDocumentPairs.h"
#include "Merge/qxDocumentMerge.h"
#include "PlainDocument.h"
#include "RandomDocument.h"
#include "TestFiles.h"
#include "qxDocumentXml.h"

#include <QJsonDocument>
#include <QRegularExpression>
#include <QSet>

#include <gtest/gtest.h>

namespace {

typedef qxMergePreference Prefer;

#ifdef __SANITIZE_ADDRESS__ // takes many times as long
const unsigned rounds = 1000;
#else
const unsigned rounds = 10000;
#endif

/// Base and what two sides made of it.
struct Sides {
    Sides(unsigned seed, int sorts)
    {
        RandomDocument random(seed);
        base = ours = theirs = random.make(2);
        random.edit(ours, 1 + int(random.below(4)), sorts);
        random.edit(theirs, 1 + int(random.below(4)), sorts);
    }

    qxDocumentMerge merged(Prefer preference = Prefer::Both) const
    {
        return qxDocumentMerge::of(base, ours, theirs, preference);
    }
    qxDocumentMerge exchanged(Prefer preference = Prefer::Both) const
    {
        return qxDocumentMerge::of(base, theirs, ours, preference);
    }

    qxDocument base, ours, theirs;
};

bool hasRenames(const qxDocument &before, const qxDocument &after)
{
    const qxDocumentPairs pairs(before, after);
    const auto isRenamed = [](const auto &list, const auto &laterList, const qxPairing &pairing) {
        for (std::size_t i = 0; i < list.size(); ++i) {
            const int place = pairing.after[i];
            if (place >= 0 && list[i].name != laterList[std::size_t(place)].name)
                return true;
        }
        return false;
    };
    for (const qxDocumentVariant &variant : before.variants) {
        for (const qxDocumentOption &each : variant.options) {
            if (pairs.state(variant.kind, variant.name, each.name) != each.name)
                return true;
        }
    }
    return isRenamed(before.groups, after.groups, pairs.groups())
        || isRenamed(before.sets, after.sets, pairs.sets())
        || isRenamed(before.variants, after.variants, pairs.variants());
}

QByteArray list(const QVector<qxMergeConflict> &conflicts)
{
    QByteArray lines;
    for (const qxMergeConflict &each : conflicts)
        lines += QJsonDocument(each.json()).toJson(QJsonDocument::Compact) + '\n';
    return lines;
}

/// The conflicts as they are when the sides are exchanged, but for the names of things, in any
/// order.
QStringList nameless(const QVector<qxMergeConflict> &conflicts, bool isExchanged)
{
    QStringList lines;
    for (qxMergeConflict each : conflicts) {
        if (isExchanged) {
            std::swap(each.texts[MergeOurs], each.texts[MergeTheirs]);
            if (each.sort == qxMergeConflict::RemovedByOurs)
                each.sort = qxMergeConflict::RemovedByTheirs;
            else if (each.sort == qxMergeConflict::RemovedByTheirs)
                each.sort = qxMergeConflict::RemovedByOurs;
        }
        QJsonObject object = each.json();
        for (const char *name : {"name", "second", "other", "entry"})
            object.remove(QLatin1String(name));
        if (each.field == QLatin1String("group"))
            object.remove(QStringLiteral("base"));
        lines << QJsonDocument(object).toJson(QJsonDocument::Compact);
    }
    lines.sort();
    return lines;
}

/// Paths with values, where versions of theirs are no different from ours.
QSet<QString> contents(const PlainDocument &plain)
{
    static const QRegularExpression mark(QStringLiteral(" \\(theirs( \\d+)?\\)"));
    QSet<QString> lines;
    for (auto each = plain.cbegin(); each != plain.cend(); ++each)
        lines << QString(each.key() + '=' + each.value()).remove(mark);
    return lines;
}

qxDocument settledOf(const QByteArray &elements)
{
    qxDocument document = qxDocumentXml::read("<Variants>" + elements + "</Variants>");
    EXPECT_TRUE(document.isWhole) << elements.constData();
    document.settle();
    return document;
}

QByteArray setOf(const QByteArray &name, const QByteArray &elements)
{
    return "<VariantSet name='" + name + "'>" + elements + "</VariantSet>";
}

QByteArray groupOf(const QByteArray &name, const QByteArray &elements)
{
    return "<VariantGroup name='" + name + "' visible='true'>" + elements + "</VariantGroup>";
}

QByteArray variantOf(const QByteArray &name, const QByteArray &states)
{
    QByteArray element = "<NodeVariant name='" + name + "' base='Wheels'>";
    for (const QByteArray &state : states.split(' '))
        element += "<State name='" + state + "'/>";
    return element + "</NodeVariant>";
}

QByteArray entryOf(const QByteArray &variant, const QByteArray &state)
{
    return "<NodeVariantRef ref='" + variant + "' state='" + state + "'/>";
}

/// Sides, what they are together, and what each of the conflicts is about.
struct MergeRow {
    const char *what;
    QByteArray base, ours, theirs, merged;
    const char *conflicts;
};

const QByteArray keyAndScript = "<Hotkey>F1</Hotkey><Script>%1</Script>";

QByteArray says(const char *text)
{
    return QByteArray(keyAndScript).replace("%1", text);
}

const QByteArray rims = variantOf("Rims", "Steel Alloy");
const QByteArray red = setOf("Red", entryOf("Rims", "Alloy"));

const MergeRow mergeRows[] = {
    {"a set of theirs follows a variant that ours renamed", red + rims,
     setOf("Red", entryOf("Wheels", "Alloy")) + variantOf("Wheels", "Steel Alloy"),
     red + setOf("Blue", entryOf("Rims", "Steel")) + rims,
     setOf("Red", entryOf("Wheels", "Alloy")) + setOf("Blue", entryOf("Wheels", "Steel"))
         + variantOf("Wheels", "Steel Alloy"),
     ""},
    {"a set of theirs follows a state that ours renamed", red + rims,
     setOf("Red", entryOf("Rims", "Light")) + variantOf("Rims", "Steel Light"),
     red + setOf("Blue", entryOf("Rims", "Alloy")) + rims,
     setOf("Red", entryOf("Rims", "Light")) + setOf("Blue", entryOf("Rims", "Light"))
         + variantOf("Rims", "Steel Light"),
     ""},
    {"a set that one side renamed and the other changed", red + rims,
     setOf("Rouge", entryOf("Rims", "Alloy")) + rims,
     setOf("Red", says("1") + entryOf("Rims", "Alloy")) + rims,
     setOf("Rouge", says("1") + entryOf("Rims", "Alloy")) + rims, ""},
    {"two scripts become two sets, of which the first has the key", setOf("Red", says("0")),
     setOf("Red", says("1")), setOf("Red", says("2")),
     setOf("Red", says("1")) + setOf("Red (theirs)", "<Script>2</Script>"), "set.script"},
    {"a second set refers to the second version of a variant", red + rims,
     setOf("Red", says("1") + entryOf("Rims", "Alloy")) + QByteArray(rims).replace("Wheels", "One"),
     setOf("Red", says("2") + entryOf("Rims", "Alloy")) + QByteArray(rims).replace("Wheels", "Two"),
     setOf("Red", says("1") + entryOf("Rims", "Alloy"))
         + setOf("Red (theirs)", "<Script>2</Script>" + entryOf("Rims (theirs)", "Alloy"))
         + QByteArray(rims).replace("Wheels", "One")
         + QByteArray(rims).replace("Wheels", "Two").replace("Rims", "Rims (theirs)"),
     "set.script variant.base"},
    {"what one side removed and the other changed stays", red + setOf("Blue", "") + rims,
     setOf("Blue", "") + rims, setOf("Red", entryOf("Rims", "Steel")) + setOf("Blue", "") + rims,
     setOf("Red", entryOf("Rims", "Steel")) + setOf("Blue", "") + rims, "set."},
    {"a variant that one side removed and the other uses anew stays", setOf("Red", "") + rims,
     setOf("Red", ""), red + rims, red + rims, "variant."},
    {"a state that one side removed and the other uses anew stays", setOf("Red", "") + rims,
     setOf("Red", "") + variantOf("Rims", "Steel"), red + rims, red + rims, "variant.state"},
    {"a state with two names is two states", red + rims,
     setOf("Red", entryOf("Rims", "Light")) + variantOf("Rims", "Steel Light"),
     setOf("Red", entryOf("Rims", "Sport")) + variantOf("Rims", "Steel Sport"),
     setOf("Red", entryOf("Rims", "Light")) + variantOf("Rims", "Steel Light Sport"),
     "variant.state"},
    {"one name for two sets", red + rims, red + setOf("New", says("1")) + rims,
     setOf("New", entryOf("Rims", "Alloy")) + rims,
     setOf("New (theirs)", entryOf("Rims", "Alloy")) + setOf("New", says("1")) + rims, "set."},
    {"one name for two new sets", "", setOf("New", says("1")), setOf("New", says("2")),
     setOf("New", says("1")) + setOf("New (theirs)", "<Script>2</Script>"), "set.script"},
    {"a set in two groups", groupOf("A", "") + groupOf("B", "") + red + rims,
     groupOf("A", red) + groupOf("B", "") + rims, groupOf("A", "") + groupOf("B", red) + rims,
     groupOf("A", red) + groupOf("B", setOf("Red (theirs)", entryOf("Rims", "Alloy"))) + rims,
     "set.group"},
    {"a group that one side removed and the other put a set into", groupOf("A", red) + rims, rims,
     groupOf("A", red + setOf("Blue", "")) + rims, groupOf("A", setOf("Blue", "")) + rims,
     "group."},
    {"orders of both sides", setOf("1", "") + setOf("2", "") + setOf("3", "") + setOf("4", ""),
     setOf("4", "") + setOf("1", "") + setOf("2", "") + setOf("C", "") + setOf("3", ""),
     setOf("1", "") + setOf("2", "") + setOf("A", "") + setOf("B", "") + setOf("3", "")
         + setOf("4", "") + setOf("5", ""),
     setOf("4", "") + setOf("1", "") + setOf("2", "") + setOf("A", "") + setOf("B", "")
         + setOf("C", "") + setOf("3", "") + setOf("5", ""),
     ""},
};

} // namespace

TEST(MergeTest, WithAnUnchangedSideTheOtherIsTaken)
{
    for (unsigned seed = 0; seed < rounds; ++seed) {
        const Sides sides(seed, RandomDocument::Everything);
        const auto ours = inOrder(sides.ours);
        const qxDocumentMerge merges[] = {qxDocumentMerge::of(sides.base, sides.ours, sides.base),
                                          qxDocumentMerge::of(sides.base, sides.base, sides.ours),
                                          qxDocumentMerge::of(sides.base, sides.ours, sides.ours)};
        for (const qxDocumentMerge &each : merges) {
            ASSERT_EQ(inOrder(each.document), ours) << seed << ", " << &each - merges;
            ASSERT_EQ(list(each.conflicts), "") << seed;
            ASSERT_EQ(each.notes, QStringList()) << seed;
        }
    }
}

TEST(MergeTest, IsThatOfPlainMapsAndLosesNothing)
{
    unsigned clean = 0, compared = 0;
    for (unsigned seed = 0; seed < rounds; ++seed) {
        const Sides sides(seed, RandomDocument::Everything & ~RandomDocument::Renames);
        if (hasRenames(sides.base, sides.ours) || hasRenames(sides.base, sides.theirs))
            continue; // a new thing that is like one that is gone
        ++compared;
        const PlainDocument base = plain(sides.base), ours = plain(sides.ours),
                            theirs = plain(sides.theirs);
        bool isClean = false;
        const PlainDocument wanted = plainMerge(base, ours, theirs, isClean);
        clean += isClean;
        const qxDocumentMerge merge = sides.merged();
        ASSERT_EQ(merge.conflicts.isEmpty(), isClean) << seed << list(merge.conflicts).constData();
        const PlainDocument result = plain(merge.document);
        if (isClean) {
            ASSERT_EQ(result, wanted) << seed;
            continue;
        }
        // Whatever a side changed or added is there, in one version or the other.
        const QSet<QString> all = contents(result), before = contents(base);
        for (const QString &line : contents(ours) + contents(theirs)) {
            ASSERT_TRUE(before.contains(line) || all.contains(line))
                << seed << ": " << line.toStdString();
        }
    }
    EXPECT_GT(compared, rounds * 9 / 10);
    EXPECT_GT(clean, compared / 4);
    EXPECT_LT(clean, compared * 19 / 20);
}

TEST(MergeTest, ExchangingTheSidesOnlyExchangesTheNamesOfVersions)
{
    for (unsigned seed = 0; seed < rounds; ++seed) {
        const Sides sides(seed, RandomDocument::Everything);
        const qxDocumentMerge one = sides.merged(), other = sides.exchanged();
        ASSERT_EQ(nameless(one.conflicts, false), nameless(other.conflicts, true)) << seed;
        if (one.conflicts.isEmpty()) {
            ASSERT_EQ(inOrder(one.document), inOrder(other.document)) << seed;
        } else {
            auto ours = inOrder(sides.merged(Prefer::Ours).document);
            for (auto &each : ours) {
                each.first.replace("(theirs", "(ours");
                each.second.replace("(theirs", "(ours");
            }
            ASSERT_EQ(ours, inOrder(sides.exchanged(Prefer::Theirs).document)) << seed;
        }
        qxDocument settled = one.document;
        settled.settle();
        ASSERT_EQ(inOrder(settled), inOrder(one.document)) << seed;
    }
}

TEST(MergeTest, EachSideIsFoundAgainInTheResult)
{
    for (const MergeRow &row : mergeRows) {
        const qxDocumentMerge merge =
            qxDocumentMerge::of(settledOf(row.base), settledOf(row.ours), settledOf(row.theirs));
        QStringList conflicts;
        for (const qxMergeConflict &each : merge.conflicts) {
            const char *const things[] = {"group.", "set.", "variant."};
            conflicts << things[each.thing] + each.field;
        }
        EXPECT_EQ(conflicts.join(' '), row.conflicts) << row.what;
        EXPECT_EQ(qxDocumentXml::write(merge.document), qxDocumentXml::write(settledOf(row.merged)))
            << row.what;
    }
    const QByteArray key = "<Hotkey>F2</Hotkey>";
    EXPECT_EQ(
        qxDocumentMerge::of(settledOf(""), settledOf(setOf("A", key)), settledOf(setOf("B", key)))
            .notes,
        QStringList("F2 is now the key of set \"A\" and set \"B\""));
}
