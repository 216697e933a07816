#include "qxVariantSet.h"
#include "qxVariantVerifier.h"
#include "qxVariants.h"

#include "qxBenchScene.h"
#include "qxLinter.h"

#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <fcntl.h>

#include <unistd.h>

namespace {

const int Variants = 2000;
const int EntriesOfASet = 200;

/// The benchmarks count in hundreds of entries: 10,000 of them are 5,000 sets.
int setsOf(const benchmark::State &state)
{
    return int(state.range(0)) * 100 / EntriesOfASet;
}

/// Which variant an entry of a set refers to, and which child it chooses.
int variantOf(int set, int entry)
{
    return (set * 7 + entry) % Variants;
}

int childOf(int set, int entry)
{
    return (set / 4 + entry * set) % 4;
}

/// Standard output goes nowhere as long as it lives: the verifier writes all its lines there.
class Quiet {
public:
    Quiet() : m_output(dup(STDOUT_FILENO))
    {
        std::fflush(stdout);
        const int nowhere = open("/dev/null", O_WRONLY);
        dup2(nowhere, STDOUT_FILENO);
        close(nowhere);
    }
    Quiet(const Quiet &) = delete;
    ~Quiet()
    {
        std::fflush(stdout);
        dup2(m_output, STDOUT_FILENO);
        close(m_output);
    }

private:
    int m_output;
};

QByteArray documentOf(int sets)
{
    QByteArray text = "<Variants>\n";
    for (int set = 0; set < sets; ++set) {
        text += "<VariantSet name=\"Set " + QByteArray::number(set) + "\">\n";
        for (int i = 0; i < EntriesOfASet; ++i) {
            text += "<NodeVariantRef ref=\"" + qxBenchScene::switchName(variantOf(set, i)).toUtf8()
                + "\" state=\"" + qxBenchScene::childName(childOf(set, i)).toUtf8() + "\"/>\n";
        }
        // No two sets are equal, whatever they refer to.
        text += "<Value name=\"Number\">" + QByteArray::number(set) + "</Value></VariantSet>\n";
    }
    for (int variant = 0; variant < Variants; ++variant) {
        const QByteArray name = qxBenchScene::switchName(variant).toUtf8();
        text += "<NodeVariant name=\"" + name + "\" base=\"" + name + "\">\n";
        for (int child = 0; child < 4; ++child)
            text += "<State name=\"" + qxBenchScene::childName(child).toUtf8() + "\"/>\n";
        text += "</NodeVariant>\n";
    }
    return text + "</Variants>\n";
}

void verify(benchmark::State &state)
{
    const qxBenchScene scene(Variants, Variants);
    for (int index = 0; index < setsOf(state); ++index) {
        qxVariantSet *const set =
            qxVariants::createVariantSet(QStringLiteral("Set %1").arg(index), false, nullptr);
        for (int i = 0; i < EntriesOfASet; ++i)
            set->addNodeVariant(qxBenchScene::switchName(variantOf(index, i)),
                                qxBenchScene::childName(childOf(index, i)));
    }
    const QTemporaryDir folder;
    qxVariantVerifier verifier;
    for (auto _ : state) {
        const Quiet quiet;
        if (!verifier.verify(folder.filePath(QStringLiteral("report.csv"))))
            state.SkipWithError("the report cannot be written");
    }
    state.SetItemsProcessed(state.iterations() * setsOf(state) * EntriesOfASet);
}

void lint(benchmark::State &state)
{
    const qxBenchScene scene(Variants, 0);
    const QByteArray document = documentOf(setsOf(state));
    for (auto _ : state) {
        const qxFindings findings =
            qxLinter::lint(document, [](const QString &) { return QString(); });
        if (!findings.isEmpty())
            state.SkipWithError("the document is not clean");
    }
    state.SetItemsProcessed(state.iterations() * setsOf(state) * EntriesOfASet);
    state.SetBytesProcessed(state.iterations() * document.size());
}

} // namespace

BENCHMARK(verify)->Name("Verify/report")->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(lint)->Name("Lint/document")->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);
