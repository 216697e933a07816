// Notifications and their messages, the module bus, the log.
#include "Services/services.h"
#include "qxConnector.h"
#include "qxController.h"
#include "qxDockWindowManager.h"
#include "qxLog.h"
#include "qxMessage.h"
#include "qxModuleBase.h"

#include <QString>

#include <algorithm>
#include <cstdarg>
#include <iostream>

namespace {

/// In the order of registration.
typedef std::vector<std::pair<std::string, qxController::Callback>> Callbacks;
Callbacks &callbacks() { return *single<Callbacks>(); }

bool isRegistered(const Callbacks::value_type &callback)
{
    return std::count(callbacks().begin(), callbacks().end(), callback) > 0;
}

void write(const char *level, const char *format, va_list arguments)
{
    std::cerr << level << QString::vasprintf(format, arguments).trimmed().toStdString() << '\n';
}

} // namespace

void qxController::call(const char *name, qxMessage &message, int)
{
    for (const auto &callback : Callbacks(callbacks())) { // they may register and unregister others
        if (callback.first == name && isRegistered(callback))
            callback.second(message);
    }
}

void qxController::call(const char *name, int flag)
{
    qxMessage none;
    call(name, none, flag);
}

void qxController::addCB(const char *name, Callback callback)
{
    if (!isRegistered({name, callback}))
        callbacks().emplace_back(name, callback);
}

void qxController::subCB(const char *name, Callback callback)
{
    const Callbacks::value_type gone(name, callback);
    callbacks().erase(std::remove(callbacks().begin(), callbacks().end(), gone), callbacks().end());
}

// No window, no docks, no mouse pointer; pictures are made when they are asked for.
QWidget *qxController::getMainWindow() { return nullptr; }
QDockWidget *qxDockWindowManager::getDockWidget(const QString &) const { return nullptr; }
void qxController::setBusy(bool, bool) {}
void qxController::updateRender(bool) {}

qxDockWindowManager *qxController::getDockWindowManager() { return single<qxDockWindowManager>(); }

// There are no other modules that keep materials.
void qxModuleBase::sendMessage(qxMessage &, bool) {}

// Nothing is sent to other sessions.
qxConnector *qxConnector::the() { return single<qxConnector>(); }

qxMessage::qxMessage() = default;
qxMessage::qxMessage(unsigned int code) : m_code(code) {}

void qxMessage::set(const std::string &key, boost::any &&value, bool replace)
{
    const boost::any *old = find(key);
    if (!old)
        m_entries.emplace_back(key, std::move(value));
    else if (replace)
        const_cast<boost::any &>(*old) = std::move(value);
}

const boost::any *qxMessage::find(const std::string &key) const
{
    const auto found = std::find_if(m_entries.begin(), m_entries.end(),
                                    [&key](const Entry &entry) { return entry.first == key; });
    return found == m_entries.end() ? nullptr : &found->second;
}

void qxLog::warning(const char *format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    write("warning: ", format, arguments);
    va_end(arguments);
}

void qxLog::error(const char *format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    write("error: ", format, arguments);
    va_end(arguments);
}
