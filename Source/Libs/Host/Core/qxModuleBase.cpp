#include "qxModuleBase.h"

#include "Core/qxCallList.h"
#include "Core/qxModuleBus.h"
#include "qxMessage.h"

#include <QCoreApplication>

namespace {

qxCallList<qxModuleBus::Listener> &busListeners()
{
    static qxCallList<qxModuleBus::Listener> listeners;
    return listeners;
}

void deliver(qxMessage &message)
{
    busListeners().run([&](const qxModuleBus::Listener &listener) { listener(message); });
}

} // namespace

void qxModuleBase::sendMessage(qxMessage &message, bool later)
{
    QCoreApplication *const application = QCoreApplication::instance();
    if (!later || !application)
        return deliver(message);
    QMetaObject::invokeMethod(
        application, [copy = message]() mutable { deliver(copy); }, Qt::QueuedConnection);
}

int qxModuleBus::addListener(const Listener &listener)
{
    return busListeners().add(listener);
}

void qxModuleBus::removeListener(int id)
{
    busListeners().remove(id);
}
