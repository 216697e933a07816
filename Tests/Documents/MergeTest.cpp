#include "PlainDocument.h"
#include "RandomDocument.h"
#include "TestFiles.h"
#include "qxDocumentMerge.h"
#include "qxDocumentPairs.h"

#include <QJsonDocument>
#include <QRegularExpression>
#include <QSet>

#include <gtest/gtest.h>

namespace {

typedef qxMergePreference Prefer;

const unsigned rounds = 10000;

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
    EXPECT_LT(clean, compared * 9 / 10);
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
