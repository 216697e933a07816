#include "qxViewpointMenu.h"

#include "Undo/qxNameEdits.h"
#include "Undo/qxViewpointEdits.h"
#include "qxCameraFlight.h"
#include "qxText.h"

#include <QEvent>
#include <QInputDialog>
#include <QSettings>

namespace {

const int keyCount = 9;
const char *const smoothKey = "view/smoothViewpoints";

QString nameOf(int viewpoint)
{
    return qxText::fromUtf8(qxUberCameraUtils::getName(qxUberCameraPool::the()->get(viewpoint)));
}

} // namespace

qxViewpointMenu::qxViewpointMenu(QUndoStack *steps, QWidget *parent)
    : QMenu(parent), m_steps(steps), m_flight(new qxCameraFlight(this)), m_end(addSeparator())
{
    for (int number = 1; number <= keyCount; ++number)
        addViewpoint()->setShortcut(Qt::CTRL + Qt::ALT + Qt::Key_0 + number);
    add(QT_TR_NOOP("&Next Viewpoint"), Qt::ALT + Qt::Key_PageDown, &qxViewpointMenu::goToNext);
    add(QT_TR_NOOP("&Previous Viewpoint"), Qt::ALT + Qt::Key_PageUp,
        &qxViewpointMenu::goToPrevious);
    m_smooth = add(QT_TR_NOOP("Move &Smoothly"), QKeySequence(), nullptr);
    m_smooth->setCheckable(true);
    m_smooth->setChecked(QSettings().value(smoothKey, true).toBool());
    connect(m_smooth, &QAction::toggled, this,
            [](bool on) { QSettings().setValue(smoothKey, on); });
    addSeparator();
    add(QT_TR_NOOP("&Capture Viewpoint..."), Qt::CTRL + Qt::ALT + Qt::Key_C,
        &qxViewpointMenu::capture);
    m_rename = add(QT_TR_NOOP("&Rename Viewpoint..."), QKeySequence(), &qxViewpointMenu::rename);
    m_delete = add(QT_TR_NOOP("&Delete Viewpoint"), QKeySequence(), &qxViewpointMenu::remove);
    setToolTipsVisible(true);
    connect(this, &QMenu::aboutToShow, this, &qxViewpointMenu::check);
    retranslate();
    refresh();
}

QAction *qxViewpointMenu::add(const char *text, const QKeySequence &key,
                              void (qxViewpointMenu::*run)())
{
    QAction *const action = addAction(QString());
    action->setShortcut(key);
    if (run)
        connect(action, &QAction::triggered, this, run);
    m_texts.append({action, text});
    return action;
}

QAction *qxViewpointMenu::addViewpoint()
{
    auto *const action = new QAction(this);
    action->setCheckable(true);
    const int viewpoint = m_viewpoints.size();
    connect(action, &QAction::triggered, this, [this, viewpoint] { goTo(viewpoint); });
    insertAction(m_end, action);
    m_viewpoints << action;
    return action;
}

void qxViewpointMenu::changeEvent(QEvent *event)
{
    QMenu::changeEvent(event);
    if (event->type() != QEvent::LanguageChange)
        return;
    retranslate();
    refresh();
}

void qxViewpointMenu::retranslate()
{
    for (const auto &action : m_texts)
        action.first->setText(tr(action.second));
}

void qxViewpointMenu::showNewScene()
{
    m_ofFile = qxUberCameraPool::the()->count();
    refresh();
}

/// Actions with keys stay: hotkeys of sets must not change with the viewpoints.
void qxViewpointMenu::refresh()
{
    const int count = qxUberCameraPool::the()->count();
    while (m_viewpoints.size() > std::max(count, keyCount))
        delete m_viewpoints.takeLast();
    while (m_viewpoints.size() < count)
        addViewpoint();
    for (int each = 0; each < m_viewpoints.size(); ++each) {
        QAction *const action = m_viewpoints[each];
        const QString name = nameOf(each).replace('&', QLatin1String("&&"));
        action->setText(each >= count         ? tr("Viewpoint %1").arg(each + 1)
                            : each < keyCount ? QStringLiteral("&%1 %2").arg(each + 1).arg(name)
                                              : name);
        action->setVisible(each < count);
        action->setEnabled(each < count);
    }
    check();
}

void qxViewpointMenu::check()
{
    const int current = m_flight->target();
    for (int each = 0; each < m_viewpoints.size(); ++each)
        m_viewpoints[each]->setChecked(each == current);
    m_rename->setEnabled(current >= 0);
    m_delete->setEnabled(current >= m_ofFile);
    m_delete->setToolTip(current >= 0 && current < m_ofFile
                             ? tr("This viewpoint is part of the file: it stays.")
                             : tr("Viewpoints that were captured can be deleted until the file is "
                                  "opened again."));
}

void qxViewpointMenu::goTo(int viewpoint)
{
    m_flight->flyTo(viewpoint, m_smooth->isChecked());
    check();
    Q_EMIT told(nameOf(viewpoint));
}

void qxViewpointMenu::step(int way)
{
    const int count = qxUberCameraPool::the()->count();
    if (count == 0)
        return Q_EMIT told(tr("The scene has no viewpoints."));
    const int current = m_flight->target();
    goTo(current < 0 ? (way > 0 ? 0 : count - 1) : (current + way + count) % count);
}

QString qxViewpointMenu::currentName() const
{
    return nameOf(m_flight->target());
}

void qxViewpointMenu::capture()
{
    bool isWanted = false;
    const QString name = QInputDialog::getText(
        parentWidget(), tr("Capture Viewpoint"), tr("Name of the viewpoint:"), QLineEdit::Normal,
        tr("Viewpoint %1").arg(qxUberCameraPool::the()->count() + 1), &isWanted);
    if (!isWanted || name.trimmed().isEmpty())
        return;
    const QString given = qxViewpointEdits::capture(*m_steps, name);
    refresh();
    Q_EMIT told(given.isEmpty() ? tr("There is no camera to capture.")
                                : tr("The viewpoint \"%1\" is captured.").arg(given));
}

void qxViewpointMenu::rename()
{
    const QString before = currentName();
    bool isWanted = false;
    const QString after = QInputDialog::getText(parentWidget(), tr("Rename Viewpoint"),
                                                tr("New name of \"%1\":").arg(before),
                                                QLineEdit::Normal, before, &isWanted);
    if (!isWanted || after == before || after.trimmed().isEmpty())
        return;
    qxRenameRequest request;
    request.thing = qxRenameRequest::Viewpoint;
    request.before = before;
    request.after = after;
    const auto outcome = qxNameEdits::rename(*m_steps, QStringLiteral("viewpoint"), request);
    refresh();
    if (!outcome.refusal.isEmpty())
        Q_EMIT told(outcome.refusal);
}

void qxViewpointMenu::remove()
{
    const QString name = currentName();
    if (qxViewpointEdits::remove(*m_steps, name))
        Q_EMIT told(tr("The viewpoint \"%1\" is deleted.").arg(name));
    refresh();
}
