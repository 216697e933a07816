#include "qxPresentation.h"

#include "qxVariantGroup.h"
#include "qxVariantSet.h"
#include "qxVariants.h"

#include "Sets/qxSetMatch.h"
#include "Sets/qxSetsView.h"
#include "Sets/qxVariantSetsDock.h"
#include "qxKeyHints.h"
#include "qxSetCaption.h"

#include <QAction>
#include <QApplication>
#include <QDockWidget>
#include <QKeyEvent>
#include <QMainWindow>
#include <QMenuBar>
#include <QStatusBar>
#include <QToolBar>

namespace {

///@{
/// Milliseconds.
const int restTime = 2500;
const int hintTime = 6000;
const int resizeTime = 1000; ///< after which a window is as large as it will be
///@}

/// Where a key leads: to the next set or to the one before; nowhere for 0.
int stepOf(int key)
{
    switch (key) {
    case Qt::Key_Right:
    case Qt::Key_PageDown:
    case Qt::Key_Space:
        return 1;
    case Qt::Key_Left:
    case Qt::Key_PageUp:
    case Qt::Key_Backspace:
        return -1;
    default:
        return 0;
    }
}

/// Scenes may use N themselves.
bool isForNames(int key)
{
    return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_N;
}

} // namespace

qxPresentation::qxPresentation(QMainWindow *window, QWidget *view, qxVariantSetsDock *sets)
    : QObject(window), m_window(window), m_view(view), m_sets(sets),
      m_caption(new qxSetCaption(view)), m_action(new QAction(this)), m_names(new QAction(this))
{
    m_action->setCheckable(true);
    m_action->setShortcut(Qt::Key_F11);
    m_view->addAction(m_action); // The menus are hidden meanwhile.
    m_names->setCheckable(true);
    connect(m_action, &QAction::triggered, this, [this](bool on) { on ? begin() : end(); });
    connect(m_names, &QAction::toggled, this, &qxPresentation::showCaption);
    connect(sets, &qxVariantSetsDock::selected, this, [this](const QString &set) {
        m_shown = set;
        showCaption();
    });
    m_idle.setInterval(restTime);
    m_idle.callOnTimeout([this] { m_view->setCursor(Qt::BlankCursor); });
    m_hint.setInterval(hintTime);
    m_hint.callOnTimeout(this, &qxPresentation::showCaption);
    m_restore.setInterval(resizeTime);
    m_restore.callOnTimeout(this, &qxPresentation::restoreLayout);
    for (QTimer *timer : {&m_idle, &m_hint, &m_restore})
        timer->setSingleShot(true);
    m_window->installEventFilter(this);
    retranslate();
}

/// Keys that are none of actions: elsewhere they belong to the view, or to sets.
void qxPresentation::retranslate()
{
    const auto shown = [](const QList<QKeySequence> &keys) {
        return QKeySequence::listToString(keys, QKeySequence::NativeText);
    };
    m_caption->setAccessibleName(tr("Presentation"));
    qxKeyHints::tell(
        *m_caption,
        {{shown({Qt::Key_Right, Qt::Key_PageDown, Qt::Key_Space}), tr("Next set")},
         {shown({Qt::Key_Left, Qt::Key_PageUp, Qt::Key_Backspace}), tr("Previous set")},
         {shown({Qt::Key_Return, Qt::Key_N}), tr("Show or hide the name of the set")},
         {shown({Qt::Key_Escape}), tr("End the presentation")}});
}

void qxPresentation::begin()
{
    m_action->setChecked(m_isRunning || m_view->isVisible());
    if (m_isRunning || !m_view->isVisible()) // There is no scene.
        return;
    if (m_isRestoring)
        restoreLayout();
    m_isRunning = true;
    m_layout = m_window->saveState();
    m_size = m_window->size();
    m_state = m_window->windowState();
    m_focus = QApplication::focusWidget();
    m_hadMenus = !m_window->menuBar()->isHidden();
    m_hadStatus = !m_window->statusBar()->isHidden();
    m_hadTracking = m_view->hasMouseTracking();
    hideParts();
    m_window->setWindowState(m_state | Qt::WindowFullScreen);
    m_view->setFocus();
    m_view->setMouseTracking(true);
    m_view->installEventFilter(this);
    showPointer();
    tellKeys();
}

void qxPresentation::hideParts()
{
    for (QDockWidget *dock : m_window->findChildren<QDockWidget *>())
        dock->hide();
    for (QToolBar *bar : m_window->findChildren<QToolBar *>())
        bar->hide();
    m_window->menuBar()->hide();
    m_window->statusBar()->hide();
}

void qxPresentation::end()
{
    if (!m_isRunning)
        return;
    m_isRunning = false;
    m_action->setChecked(false);
    m_view->removeEventFilter(this);
    m_view->setMouseTracking(m_hadTracking);
    m_view->unsetCursor();
    m_idle.stop();
    m_hint.stop();
    showCaption();
    m_window->menuBar()->setVisible(m_hadMenus);
    m_window->statusBar()->setVisible(m_hadStatus);
    m_isRestoring = true;
    m_window->setWindowState(m_state);
    // Docks fit themselves to the window: it must be as large as it was.
    if (m_window->size() == m_size)
        restoreLayout();
    else
        m_restore.start();
}

void qxPresentation::restoreLayout()
{
    if (!m_isRestoring)
        return;
    m_isRestoring = false;
    m_restore.stop();
    m_window->restoreState(m_layout);
    if (m_focus)
        m_focus->setFocus();
    Q_EMIT ended();
}

bool qxPresentation::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_window && event->type() == QEvent::LanguageChange)
        retranslate();
    if (watched == m_window && event->type() == QEvent::Resize && m_isRestoring
        && m_window->size() == m_size)
        QTimer::singleShot(0, this, &qxPresentation::restoreLayout);
    if (watched != m_view || !m_isRunning)
        return QObject::eventFilter(watched, event);
    if (event->type() == QEvent::MouseMove || event->type() == QEvent::MouseButtonPress)
        showPointer();
    const bool isPress = event->type() == QEvent::KeyPress;
    if (!isPress && event->type() != QEvent::ShortcutOverride)
        return false;
    const auto &key = static_cast<const QKeyEvent &>(*event);
    if (!isKey(key))
        return false;
    event->accept(); // Otherwise the view's own keys would come first.
    if (isPress)
        press(key);
    return true;
}

bool qxPresentation::isKey(const QKeyEvent &event) const
{
    const bool isPlain = !(event.modifiers() & ~Qt::KeypadModifier);
    return isPlain
        && (stepOf(event.key()) != 0 || isForNames(event.key()) || event.key() == Qt::Key_Escape);
}

void qxPresentation::press(const QKeyEvent &event)
{
    if (event.key() == Qt::Key_Escape)
        end();
    else if (isForNames(event.key()))
        m_names->toggle();
    else
        goTo(stepOf(event.key()));
}

/// Behind the last set comes the first one.
void qxPresentation::goTo(int step)
{
    const QStringList sets = m_sets->view()->shownSets();
    if (sets.isEmpty())
        return;
    const int place = sets.indexOf(shownSet());
    const int first = step > 0 ? 0 : sets.size() - 1;
    m_shown = sets[place < 0 ? first : (place + step + sets.size()) % sets.size()];
    m_sets->selectSet(m_shown);
    m_hint.stop();
    showCaption();
}

/// The set that was selected last, else one that the scene shows; empty for none.
QString qxPresentation::shownSet() const
{
    if (qxVariants::findVariantSet(m_shown))
        return m_shown;
    qxSetMatch match;
    for (const QString &name : m_sets->view()->shownSets()) {
        const qxVariantSet *const set = qxVariants::findVariantSet(name);
        if (set && match.matches(*set))
            return name;
    }
    return QString();
}

void qxPresentation::showCaption()
{
    const QString name = m_isRunning && m_names->isChecked() ? shownSet() : QString();
    const qxVariantSet *const set = qxVariants::findVariantSet(name);
    m_caption->showText(set && set->group ? QString(set->group->name) : QString(), name);
}

void qxPresentation::tellKeys()
{
    m_caption->showText(tr("Escape ends the presentation. Left and Right lead to other sets, "
                           "Enter shows their names."),
                        QString());
    m_hint.start();
}

void qxPresentation::showPointer()
{
    m_view->unsetCursor();
    m_idle.start();
}
