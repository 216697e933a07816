#include "qxScriptWatch.h"

#include "qxScriptPause.h"

#include <QCoreApplication>
#include <QKeyEvent>

namespace {

const int pulse = 100;
const int patience = 500;

qxScriptWatch *current = nullptr;

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

qxScriptWatch::qxScriptWatch(QObject *parent) : QObject(parent)
{
    current = this;
    qxScriptPause::setLook(goOn);
    m_sinceBeat.start();
    m_pulse.callOnTimeout(this, [this] { m_sinceBeat.start(); });
    m_pulse.start(pulse);
}

qxScriptWatch::~qxScriptWatch()
{
    qxScriptPause::setLook(nullptr);
    current = nullptr;
}

bool qxScriptWatch::goOn()
{
    return current->m_sinceBeat.elapsed() < patience || current->look();
}

bool qxScriptWatch::look()
{
    m_isStopped = false;
    m_sinceBeat.start();
    emit stillRuns();
    qApp->installEventFilter(this);
    QCoreApplication::processEvents();
    qApp->removeEventFilter(this);
    m_sinceBeat.start();
    return !m_isStopped;
}

bool qxScriptWatch::eventFilter(QObject *, QEvent *event)
{
    if (!isFromUser(event->type()))
        return false;
    if (event->type() == QEvent::KeyPress)
        m_isStopped |= static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape;
    event->ignore();
    return true;
}
