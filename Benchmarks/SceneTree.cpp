#include "Window/qxSceneTree.h"
#include "qxBenchScene.h"

#include <QCoreApplication>
#include <QLineEdit>

#include <benchmark/benchmark.h>

/// A letter more in the search of the tree, or all of them gone, until it is painted.
static void searchTree(benchmark::State &state)
{
    const qxBenchScene scene(int(state.range(0)) / 5, 0);
    qxNodeSelection picked;
    qxSceneTree tree(&picked);
    tree.resize(300, 800);
    tree.show();
    const QString text = QStringLiteral("d 12");
    int letters = 0;
    for (auto _ : state) {
        letters = letters < text.size() ? letters + 1 : 0;
        tree.search()->setText(text.left(letters));
        QCoreApplication::processEvents();
    }
}

// Argument: number of nodes.
BENCHMARK(searchTree)->Name("SceneTree/search")->Arg(100000)->Unit(benchmark::kMillisecond);
