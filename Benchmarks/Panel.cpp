#include "qxNodeVariant.h"
#include "qxVariantGroup.h"
#include "qxVariantSet.h"
#include "qxVariants.h"

#include "Sets/qxSetsView.h"
#include "Sets/qxVariantSetsDock.h"
#include "qxBenchScene.h"
#include "qxPanelChanges.h"

#include <QAbstractItemView>
#include <QBuffer>
#include <QCoreApplication>
#include <QImage>
#include <QLineEdit>
#include <QMainWindow>
#include <QScrollBar>

#include <benchmark/benchmark.h>

const int Groups = 100;
const int References = 200;
const int Variants = 1000;

static void handleEvents()
{
    // What is announced is shown in the next turn, which may ask for a picture in the one after.
    for (int turn = 0; turn < 3; ++turn)
        QCoreApplication::processEvents();
}

static QByteArray picture(int number)
{
    QImage image(264, 256, QImage::Format_RGB32);
    image.fill(QColor::fromHsv(number % 360, 200, 200));
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

/// A scene with sets in groups, a tenth of them with a preview.
class Sets {
public:
    explicit Sets(int count) : m_scene(Variants, Variants)
    {
        std::vector<qxVariantGroup *> groups;
        for (int i = 0; i < Groups; ++i)
            groups.push_back(
                qxVariants::createVariantGroup(QStringLiteral("Group %1").arg(i), false, true));
        for (int i = 0; i < count; ++i)
            add(i, groups[std::size_t(i % Groups)]);
    }

private:
    static void add(int number, qxVariantGroup *group)
    {
        qxVariantSet *const set =
            qxVariants::createVariantSet(QStringLiteral("Set %1").arg(number), false, group);
        set->comment = QStringLiteral("the comment of %1").arg(number);
        for (int i = 0; i < References; ++i)
            set->addNodeVariant(qxBenchScene::switchName((number * 7 + i) % Variants),
                                qxBenchScene::childName(i % 2));
        if (number % 10 == 0)
            set->setPreview(picture(number));
    }

    qxBenchScene m_scene;
};

/// The dock in a window, as it is after the first picture of it.
class Panel {
public:
    explicit Panel(qxSetsView::Form form = qxSetsView::List)
    {
        m_window.addDockWidget(Qt::RightDockWidgetArea, &m_dock);
        m_window.resize(700, 900);
        m_dock.view()->setForm(form);
        m_window.show();
        handleEvents();
    }

    qxVariantSetsDock &dock() { return m_dock; }

private:
    QMainWindow m_window;
    qxVariantSetsDock m_dock;
};

static void open(benchmark::State &state)
{
    const Sets sets(int(state.range(0)));
    for (auto _ : state)
        const Panel panel;
}

static void typeIntoSearch(benchmark::State &state)
{
    const Sets sets(int(state.range(0)));
    Panel panel;
    auto *const search = panel.dock().findChild<QLineEdit *>(QStringLiteral("search"));
    const QString text = QStringLiteral("set 12");
    int length = 0;
    for (auto _ : state) {
        length = length % text.size() + 1;
        search->setText(text.left(length));
        handleEvents();
    }
}

static void editSet(benchmark::State &state)
{
    const Sets sets(int(state.range(0)));
    const Panel panel;
    int turn = 0;
    for (auto _ : state) {
        qxVariants::findVariantSet(QStringLiteral("Set 7"))->comment = QString::number(++turn);
        Q_EMIT qxPanelChanges::the().setsEdited();
        handleEvents();
    }
}

static void changeState(benchmark::State &state)
{
    const Sets sets(int(state.range(0)));
    const Panel panel;
    int turn = 0;
    for (auto _ : state) {
        qxVariants::findNodeVariant(qxBenchScene::switchName(7))
            ->onSelect(qxBenchScene::childName(++turn % 2));
        handleEvents();
    }
}

static void scrollGallery(benchmark::State &state)
{
    const Sets sets(int(state.range(0)));
    Panel panel(qxSetsView::Gallery);
    auto *const view = static_cast<QAbstractItemView *>(panel.dock().view()->currentWidget());
    QScrollBar *const bar = view->verticalScrollBar();
    for (auto _ : state) {
        bar->setValue(bar->value() == bar->maximum() ? 0 : bar->value() + 150);
        handleEvents();
    }
}

// Argument: number of sets, in 100 groups.
#define QX_PANEL_BENCHMARK(FUNCTION, NAME) \
    BENCHMARK(FUNCTION)->Name(NAME)->Arg(1000)->Arg(5000)->Arg(10000)->Unit(benchmark::kMillisecond)
QX_PANEL_BENCHMARK(open, "Panel/open");
QX_PANEL_BENCHMARK(typeIntoSearch, "Panel/search");
QX_PANEL_BENCHMARK(editSet, "Panel/editedSet");
QX_PANEL_BENCHMARK(changeState, "Panel/state");
QX_PANEL_BENCHMARK(scrollGallery, "Panel/gallery");
