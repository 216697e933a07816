#include "qxWindowWatchdog.h"

#include <QCoreApplication>
#include <QKeyEvent>

namespace {

const std::chrono::milliseconds timeout(500);

bool isFromUser(QEvent::Type type)
{
    switch (type) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
    case QEvent::Shortcut:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::TouchBegin:
    case QEvent::DragEnter:
    case QEvent::Drop:
    case QEvent::Close:
        return true;
    default:
        return false;
    }
}

} // namespace

qxWindowWatchdog::qxWindowWatchdog(QObject *parent)
    : QObject(parent), m_watchdog(timeout, [this] { return onTimeout(); })
{
}

bool qxWindowWatchdog::onTimeout()
{
    m_isStopped = false;
    Q_EMIT stillRuns();
    qApp->installEventFilter(this);
    QCoreApplication::processEvents();
    qApp->removeEventFilter(this);
    return !m_isStopped;
}

bool qxWindowWatchdog::eventFilter(QObject *, QEvent *event)
{
    if (!isFromUser(event->type()))
        return false;
    if (event->type() == QEvent::KeyPress)
        m_isStopped |= static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape;
    event->ignore();
    return true;
}
