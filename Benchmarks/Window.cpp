#include "Files/qxMemoryBudget.h"
#include "Sets/qxSetsView.h"
#include "Sets/qxVariantSetsDock.h"
#include "Window/qxWorkbenchWindow.h"
#include "qxBenchDocument.h"

#include <QAction>
#include <QCoreApplication>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QUndoStack>

#include <benchmark/benchmark.h>

#include <memory>

namespace {

void handleEvents()
{
    // What is announced is shown in the next turn, which may ask for a picture in the one after.
    for (int turn = 0; turn < 3; ++turn)
        QCoreApplication::processEvents();
}

/// A scene file with a document in the window of the program, whose state is kept in a folder of
/// its own.
class OpenWindow {
public:
    explicit OpenWindow(int sets)
    {
        qputenv("XDG_STATE_HOME", m_folder.path().toLocal8Bit());
        qxMemoryBudget::setLimit(qint64(8) << 30);
        const QByteArray document = qxBenchDocument::ofSets(sets);
        const QJsonObject scene{
            {"asset", QJsonObject{{"version", "2.0"}}},
            {"scenes",
             QJsonArray{QJsonObject{
                 {"extras", QJsonObject{{"qxVariants", QString::fromUtf8(document)}}}}}}};
        m_path = m_folder.filePath(QStringLiteral("scene.gltf"));
        QFile file(m_path);
        file.open(QIODevice::WriteOnly);
        file.write(QJsonDocument(scene).toJson());
        file.close();
        m_window = std::make_unique<qxWorkbenchWindow>();
        m_window->show();
        handleEvents();
    }
    /// Edits are given up without a question.
    ~OpenWindow() { m_window.reset(); }

    void open()
    {
        if (!m_window->openFile(m_path))
            std::abort();
        handleEvents();
    }
    qxVariantSetsDock &dock() { return *m_window->setsDock(); }

private:
    QTemporaryDir m_folder;
    QString m_path;
    std::unique_ptr<qxWorkbenchWindow> m_window;
};

void open(benchmark::State &state)
{
    OpenWindow window(int(state.range(0)));
    for (auto _ : state)
        window.open();
}

/// A step, with all that follows: the docks show it, and the recovery file has it.
void edit(benchmark::State &state)
{
    OpenWindow window(int(state.range(0)));
    window.open();
    window.dock().view()->showSet(QStringLiteral("Set 7"));
    for (QAction *action : window.dock().setActions()) {
        if (action->shortcut() == QKeySequence(Qt::CTRL + Qt::Key_D))
            action->trigger();
    }
    QUndoStack &steps = *window.dock().undoStack();
    if (steps.count() != 1)
        state.SkipWithError("no step");
    for (auto _ : state) {
        steps.index() > 0 ? steps.undo() : steps.redo();
        handleEvents();
    }
}

} // namespace

// Argument: number of sets of 200 entries.
BENCHMARK(open)->Name("Window/open")->Arg(500)->Arg(5000)->Unit(benchmark::kMillisecond);
BENCHMARK(edit)->Name("Window/edit")->Arg(500)->Arg(5000)->Unit(benchmark::kMillisecond);
