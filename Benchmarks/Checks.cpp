#include "qxNodeVariant.h"
#include "qxVariantReader.h"
#include "qxVariantSet.h"
#include "qxVariantVerifier.h"
#include "qxVariants.h"

#include "Commands/qxCommandTable.h"
#include "qxBenchDocument.h"
#include "qxBenchScene.h"
#include "qxLinter.h"
#include "qxRegistryLint.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <fcntl.h>

#include <climits>
#include <unistd.h>

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

static void verify(benchmark::State &state)
{
    const qxBenchScene scene(qxBenchDocument::Variants, qxBenchDocument::Variants);
    for (int index = 0; index < qxBenchDocument::setsOf(int(state.range(0))); ++index) {
        qxVariantSet *const set =
            qxVariants::createVariantSet(QStringLiteral("Set %1").arg(index), false, nullptr);
        for (int i = 0; i < qxBenchDocument::EntriesOfASet; ++i)
            set->addNodeVariant(qxBenchScene::switchName(qxBenchDocument::variantOf(index, i)),
                                qxBenchScene::childName(qxBenchDocument::childOf(index, i)));
    }
    const QTemporaryDir folder;
    qxVariantVerifier verifier;
    for (auto _ : state) {
        const Quiet quiet;
        if (!verifier.verify(folder.filePath(QStringLiteral("report.csv"))))
            state.SkipWithError("the report cannot be written");
    }
    state.SetItemsProcessed(state.iterations() * qxBenchDocument::setsOf(int(state.range(0)))
                            * qxBenchDocument::EntriesOfASet);
}

static void lint(benchmark::State &state)
{
    const qxBenchScene scene(qxBenchDocument::Variants, 0);
    const QByteArray document =
        qxBenchDocument::ofSets(qxBenchDocument::setsOf(int(state.range(0))));
    for (auto _ : state) {
        const qxFindings findings =
            qxLinter::lint(document, [](const QString &) { return QString(); });
        if (!findings.isEmpty())
            state.SkipWithError("the document is not clean");
    }
    state.SetItemsProcessed(state.iterations() * qxBenchDocument::setsOf(int(state.range(0)))
                            * qxBenchDocument::EntriesOfASet);
    state.SetBytesProcessed(state.iterations() * document.size());
}

/// The sets of the document above in the registry; each round edits one of them. Counted are the
/// entries of all sets, as above.
static void lintEdit(benchmark::State &state)
{
    const qxBenchScene scene(qxBenchDocument::Variants, 0);
    const int sets = qxBenchDocument::setsOf(int(state.range(0)));
    qxVariantReader().read(qxBenchDocument::ofSets(sets));
    qxRegistryLint lint([](const QString &) { return QString(); });
    lint.work(INT_MAX);
    int round = 0;
    for (auto _ : state) {
        const auto set = std::next(qxVariants::_variantSets.begin(), round++ * 7 % sets);
        (*set)->nodeVariants.front().state = qxBenchScene::childName(round % 4);
        lint.lookAgain();
        lint.work(INT_MAX);
    }
    state.SetItemsProcessed(state.iterations() * sets * qxBenchDocument::EntriesOfASet);
}

static QString numbered(const char *word, int index)
{
    return QStringLiteral("%1 %2").arg(QLatin1String(word)).arg(index);
}

static qxVariantSet &addSet(int index)
{
    return *qxVariants::createVariantSet(numbered("Set", index), false, nullptr);
}

/// As many sets as the one variant has options: each takes another one.
static void verifyOptions(benchmark::State &state)
{
    const qxBenchScene scene(1, 1);
    qxVariant &variant = *qxVariants::findNodeVariant(qxBenchScene::switchName(0));
    for (int i = 0; i < int(state.range(0)); ++i) {
        qxVariantOption option;
        option.name = numbered("Option", i);
        variant.options.push_back(option);
        addSet(i).addNodeVariant(qxBenchScene::switchName(0), numbered("Option", i));
    }
    qxVariantVerifier verifier;
    for (auto _ : state) {
        const Quiet quiet;
        verifier.verifyVariantSets();
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

/// As many sets as viewpoints: each goes to another one.
static void lintViewpoints(benchmark::State &state)
{
    const qxBenchScene scene(0, 0);
    QByteArray document = "<Variants>\n";
    for (int i = 0; i < int(state.range(0)); ++i) {
        const QByteArray name = numbered("View", i).toUtf8();
        qxBenchScene::addViewpoint(numbered("View", i));
        document +=
            "<VariantSet name=\"" + name + "\"><ViewpointRef ref=\"" + name + "\"/></VariantSet>\n";
    }
    document += "</Variants>\n";
    for (auto _ : state) {
        const qxFindings findings =
            qxLinter::lint(document, [](const QString &) { return QString(); });
        if (!findings.isEmpty())
            state.SkipWithError("the document is not clean");
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

/// As many sets as lights, overlays and viewpoints, all of which stay.
static void optimize(benchmark::State &state)
{
    const qxBenchScene scene(0, 0);
    const int count = int(state.range(0));
    for (int i = 0; i < count; ++i) {
        qxBenchScene::addLight(numbered("Light", i));
        qxBenchScene::addOverlay(numbered("Overlay", i));
        qxBenchScene::addViewpoint(numbered("View", i));
    }
    for (int i = 0; i < count; ++i) {
        qxVariantSet &set = addSet(i);
        set.addViewpoint(numbered("View", i));
        set.addOverlayVariant(numbered("Overlay", i), variantEnable);
        for (int k = 0; k < 4; ++k)
            set.addLightVariant(numbered("Light", (i + k) % count), variantEnable);
    }
    for (auto _ : state)
        qxVariants::optimizeVariantSets();
    if (qxVariants::hasEmptyVariantSets())
        state.SkipWithError("something was dropped");
    state.SetItemsProcessed(state.iterations() * count);
}

/// A file of that many switches with one child each, and a variant for each of them.
static bool writeSwitches(const QString &path, int switches)
{
    QJsonArray nodes;
    QJsonArray roots;
    QByteArray document = "<Variants>\n";
    for (int i = 0; i < switches; ++i) {
        roots += 2 * i;
        nodes += QJsonObject{{"name", qxBenchScene::switchName(i)},
                             {"children", QJsonArray{2 * i + 1}},
                             {"extras", QJsonObject{{"qxSwitch", 0}}}};
        nodes += QJsonObject{{"name", qxBenchScene::childName(0)}};
        document += qxBenchDocument::variantText(i);
    }
    const QJsonObject scene{
        {"nodes", roots},
        {"extras", QJsonObject{{"qxVariants", QString::fromUtf8(document + "</Variants>")}}}};
    const QByteArray text = QJsonDocument(QJsonObject{{"asset", QJsonObject{{"version", "2.0"}}},
                                                      {"scene", 0},
                                                      {"scenes", QJsonArray{scene}},
                                                      {"nodes", nodes}})
                                .toJson();
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
}

/// The whole command, from the file to the last line.
static void showStates(benchmark::State &state)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("scene.gltf"));
    const int switches = int(state.range(0));
    if (!writeSwitches(path, switches))
        state.SkipWithError("the scene cannot be written");
    for (auto _ : state) {
        const Quiet quiet;
        if (qxCommands::dispatch({QStringLiteral("workbench"), QStringLiteral("state"), path}) != 0)
            state.SkipWithError("the states cannot be shown");
    }
    state.SetItemsProcessed(state.iterations() * switches);
}

BENCHMARK(showStates)->Name("State/command")->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(verify)->Name("Verify/report")->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(lint)->Name("Lint/document")->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(lintEdit)->Name("Lint/edit")->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(verifyOptions)
    ->Name("Verify/options")
    ->Arg(1000)
    ->Arg(10000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(lintViewpoints)
    ->Name("Lint/viewpoints")
    ->Arg(1000)
    ->Arg(10000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(optimize)->Name("Optimize/sets")->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);
