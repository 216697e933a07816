#include "qxWindowLayout.h"

#include <QDockWidget>
#include <QEvent>
#include <QMainWindow>
#include <QScreen>
#include <QSettings>
#include <QStatusBar>
#include <QStyle>
#include <QTabBar>
#include <QToolBar>

#include <algorithm>

namespace {

const int narrow = 130; ///< characters: docks beside the view would leave it no room
const int setsWidth = 60; ///< the most characters at first
const int treesWidth = 48;
const int linesBelow = 9; ///< of the log at first

/// The first of them that the window has is the front one where they stand behind each other.
const char *const besides[] = {"qxVariantSetsDock", "qxVariantsDock", "scene"};

bool isBeside(const QDockWidget &dock)
{
    return std::any_of(std::begin(besides), std::end(besides),
                       [&dock](const char *name) { return dock.objectName() == name; });
}

bool isAboveOrBelow(Qt::DockWidgetArea area)
{
    return area == Qt::TopDockWidgetArea || area == Qt::BottomDockWidgetArea;
}

int charactersOf(const QMainWindow &window)
{
    return window.width() / std::max(1, window.fontMetrics().averageCharWidth());
}

} // namespace

qxWindowLayout::qxWindowLayout(QMainWindow *window) : QObject(window), m_window(window)
{
    m_window->setDockNestingEnabled(true);
    // Lists are long, lines are few.
    m_window->setCorner(Qt::BottomLeftCorner, Qt::LeftDockWidgetArea);
    m_window->setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);
    m_window->installEventFilter(this);
    for (QDockWidget *dock : m_window->findChildren<QDockWidget *>()) {
        m_docks.append(dock); // Later they are in another order.
        connect(dock, &QDockWidget::dockLocationChanged, this, &qxWindowLayout::limitHeights);
        connect(dock, &QDockWidget::topLevelChanged, this, &qxWindowLayout::limitHeights);
    }
    addDocks();
}

/// Of the screen and how fine it is: docks that fit one are too large for another.
QString qxWindowLayout::screenKey() const
{
    const QScreen &screen = *m_window->screen();
    const QSize size = screen.size();
    return QStringLiteral("layouts/%1x%2@%3/")
        .arg(size.width())
        .arg(size.height())
        .arg(screen.devicePixelRatio());
}

void qxWindowLayout::restore()
{
    const QSettings settings;
    if (!m_window->restoreGeometry(settings.value(screenKey() + "geometry").toByteArray())) {
        const QSize room = m_window->screen()->availableSize();
        const QSize wanted = (room * 0.85).expandedTo(QSize(1280, 800));
        m_window->resize(wanted.boundedTo(room));
        if (wanted != m_window->size() || wanted.width() == room.width())
            m_window->setWindowState(Qt::WindowMaximized); // Its frame needs room, too.
    }
    m_isPlaced = m_window->restoreState(settings.value(screenKey() + "docks").toByteArray());
}

void qxWindowLayout::save() const
{
    QSettings settings;
    settings.setValue(screenKey() + "geometry", m_window->saveGeometry());
    settings.setValue(screenKey() + "docks", m_window->saveState());
}

void qxWindowLayout::reset()
{
    addDocks();
    sizeDocks();
}

bool qxWindowLayout::eventFilter(QObject *watched, QEvent *event)
{
    const QEvent::Type type = event->type(); // Tabs come and go with a request for a layout.
    if (watched == m_window && (type == QEvent::Resize || type == QEvent::LayoutRequest))
        limitHeights();
    if (watched == m_window && event->type() == QEvent::Show && !m_isPlaced) {
        m_isPlaced = true;
        reset(); // Docks take a size only when the window has one.
    }
    return QObject::eventFilter(watched, event);
}

/// Lists beside the view, everything else behind each other below it.
void qxWindowLayout::addDocks()
{
    const bool isNarrow = charactersOf(*m_window) < narrow;
    for (QDockWidget *dock : m_docks) {
        dock->setFloating(false);
        m_window->removeDockWidget(dock);
    }
    const auto dockOf = [this](const char *name) {
        return m_window->findChild<QDockWidget *>(QString::fromLatin1(name));
    };
    QDockWidget *const sets = dockOf(besides[0]);
    QDockWidget *const variants = dockOf(besides[1]);
    QDockWidget *const tree = dockOf(besides[2]);
    m_window->addDockWidget(Qt::RightDockWidgetArea, sets);
    if (isNarrow) {
        m_window->tabifyDockWidget(sets, variants);
        m_window->tabifyDockWidget(variants, tree);
    } else {
        m_window->addDockWidget(Qt::LeftDockWidgetArea, tree);
        m_window->addDockWidget(Qt::LeftDockWidgetArea, variants);
    }
    QDockWidget *front = nullptr;
    for (QDockWidget *dock : m_docks) {
        if (isBeside(*dock))
            continue;
        if (front)
            m_window->tabifyDockWidget(front, dock);
        else
            m_window->addDockWidget(Qt::BottomDockWidgetArea, front = dock);
    }
    for (QDockWidget *dock : m_docks)
        dock->setVisible(!isNarrow || isBeside(*dock));
    sets->raise();
    if (front)
        front->raise();
}

void qxWindowLayout::sizeDocks()
{
    limitHeights();
    const int width = m_window->width();
    const int character = m_window->fontMetrics().averageCharWidth();
    const auto dockOf = [this](const char *name) {
        return m_window->findChild<QDockWidget *>(QString::fromLatin1(name));
    };
    const bool isNarrow = charactersOf(*m_window) < narrow;
    const int ofSets = isNarrow ? width * 4 / 10 : width * 28 / 100;
    m_window->resizeDocks({dockOf(besides[0]), dockOf(besides[1])},
                          {std::min(ofSets, setsWidth * character),
                           std::min(isNarrow ? ofSets : width * 22 / 100, treesWidth * character)},
                          Qt::Horizontal);
    if (!isNarrow)
        m_window->resizeDocks({dockOf(besides[2]), dockOf(besides[1])}, {2, 3}, Qt::Vertical);
    const int lines = linesBelow * m_window->fontMetrics().lineSpacing();
    for (QDockWidget *dock : m_docks) {
        if (!isBeside(*dock) && dock->isVisible())
            m_window->resizeDocks({dock}, {std::min(lines, m_window->height() / 5)}, Qt::Vertical);
    }
}

/// What lies beside may be as high as the window, and so may what floats.
void qxWindowLayout::limitHeights()
{
    int bars = m_window->menuWidget() ? m_window->menuWidget()->height() : 0;
    for (const QToolBar *bar : m_window->findChildren<QToolBar *>()) {
        const bool isLine = bar->orientation() == Qt::Horizontal && !bar->isFloating();
        bars += isLine && bar->isVisible() ? bar->height() : 0;
    }
    bars += m_window->statusBar()->height();
    for (const QTabBar *tabs :
         m_window->findChildren<QTabBar *>(QString(), Qt::FindDirectChildrenOnly))
        bars += tabs->isVisible() ? tabs->sizeHint().height() : 0;
    bars += m_window->style()->pixelMetric(QStyle::PM_DockWidgetSeparatorExtent);
    const int half = std::max(0, (m_window->height() - bars) / 2);
    for (QDockWidget *dock : m_window->findChildren<QDockWidget *>()) {
        const bool isLimited =
            !dock->isFloating() && isAboveOrBelow(m_window->dockWidgetArea(dock));
        const int limit = std::max(half, dock->minimumSizeHint().height());
        dock->setMaximumHeight(isLimited ? limit : QWIDGETSIZE_MAX);
    }
}
