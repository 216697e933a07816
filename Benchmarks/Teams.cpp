#include "Compare/qxDocumentDiff.h"
#include "Merge/qxDocumentMerge.h"
#include "Table/qxSetTable.h"
#include "Table/qxSetTableReader.h"
#include "qxBenchDocument.h"
#include "qxDocumentXml.h"

#include <benchmark/benchmark.h>

namespace {

qxDocument settled(const QByteArray &xml)
{
    qxDocument document = qxDocumentXml::read(xml);
    document.settle();
    return document;
}

/// The document as one person has changed it: every so many sets, in other places each.
QByteArray edited(QByteArray xml, const char *number)
{
    const QByteArray before = QByteArray(number) + "</Value>";
    return xml.replace(before, QByteArray(number) + "5</Value>");
}

struct Sides {
    explicit Sides(const benchmark::State &state)
        : base(qxBenchDocument::ofSets(qxBenchDocument::setsOf(int(state.range(0))))),
          ours(edited(base, "1")), theirs(edited(base, "2"))
    {
    }

    QByteArray base;
    QByteArray ours;
    QByteArray theirs;
};

/// What the commands do first with their files: two to compare, three to merge.
template <int files>
void readFiles(benchmark::State &state)
{
    const Sides sides(state);
    for (auto _ : state) {
        benchmark::DoNotOptimize(settled(sides.base));
        benchmark::DoNotOptimize(settled(sides.ours));
        if (files > 2)
            benchmark::DoNotOptimize(settled(sides.theirs));
    }
}

void compare(benchmark::State &state)
{
    const Sides sides(state);
    const qxDocument before = settled(sides.base);
    const qxDocument after = settled(sides.ours);
    for (auto _ : state) {
        if (qxDocumentDiff::of(before, after).things.size() != sides.base.count("1</Value>"))
            state.SkipWithError("a difference is lost");
    }
}

void merge(benchmark::State &state)
{
    const Sides sides(state);
    const qxDocument base = settled(sides.base);
    const qxDocument ours = settled(sides.ours);
    const qxDocument theirs = settled(sides.theirs);
    for (auto _ : state) {
        const qxDocumentMerge merged = qxDocumentMerge::of(base, ours, theirs);
        if (merged.document.sets.size() < base.sets.size())
            state.SkipWithError("a set is lost");
    }
}

void writeTable(benchmark::State &state)
{
    const qxDocument document = settled(Sides(state).base);
    for (auto _ : state)
        benchmark::DoNotOptimize(qxSetTable::write(document));
}

void readTable(benchmark::State &state)
{
    const Sides sides(state);
    const qxDocument document = settled(sides.base);
    const QByteArray table = qxSetTable::write(settled(sides.ours));
    for (auto _ : state) {
        if (!qxSetTableReader::read(table, document).flaws.empty())
            state.SkipWithError("the table cannot be read");
    }
}

} // namespace

// In hundreds of entries.
BENCHMARK(readFiles<2>)->Name("Compare/bare")->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(readFiles<3>)->Name("Merge/bare")->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(merge)->Name("Merge/documents")->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(compare)->Name("Compare/documents")->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(writeTable)->Name("Table/write")->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(readTable)->Name("Table/read")->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);
