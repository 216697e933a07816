#include "qxNodeVariant.h"
#include "qxVariants.h"

#include <benchmark/benchmark.h>

// Finding a variant by name must cost the same however many there are.
static void findVariant(benchmark::State &state)
{
    const int count = int(state.range(0));
    QStringList names;
    for (int i = 0; i < count; ++i) {
        names += QStringLiteral("Variant %1").arg(i);
        qxVariants::createNodeVariant(names.last(), false);
    }
    int i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(qxVariants::findNodeVariant(names.at(i)));
        i = (i + 7919) % count;
    }
    qxVariants::clearNodeVariants();
}
BENCHMARK(findVariant)->Name("LookUp/registry")->Arg(10)->Arg(1000)->Arg(100000);
