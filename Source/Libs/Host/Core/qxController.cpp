#include "qxController.h"

#include "Core/qxCallList.h"
#include "Core/qxRenderRequests.h"
#include "qxMessage.h"

#include <cstring>
#include <string>

namespace {

/// One registration: a callback of a name, or a listener of all names.
struct Registration {
    std::string name;
    qxController::Callback callback;
    qxController::Listener listener;
};

/// A library that registers a callback while it is loaded finds the list ready. It is never
/// destroyed: a library that names no host may end after the host's.
qxCallList<Registration> &registrations()
{
    static qxCallList<Registration> &registrations = *new qxCallList<Registration>;
    return registrations;
}

/// A host has a handful of callbacks, so that comparing their names beats hashing the call's.
void announce(const char *name, qxMessage *message, int flag)
{
    registrations().run([=](const Registration &registered) {
        if (!registered.callback) {
            registered.listener(name, message, flag);
        } else if (std::strcmp(registered.name.c_str(), name) == 0) {
            qxMessage empty;
            registered.callback(message ? *message : empty);
        }
    });
}

int findCallback(const char *name, qxController::Callback callback)
{
    return registrations().find([=](const Registration &registered) {
        return registered.callback == callback && registered.name == name;
    });
}

} // namespace

void qxController::call(const char *name, int flag)
{
    announce(name, nullptr, flag);
}

void qxController::call(const char *name, qxMessage &message, int flag)
{
    announce(name, &message, flag);
}

void qxController::addCB(const char *name, Callback callback)
{
    if (findCallback(name, callback) == 0)
        registrations().add({name, callback, nullptr});
}

void qxController::subCB(const char *name, Callback callback)
{
    registrations().remove(findCallback(name, callback));
}

int qxController::addListener(const Listener &listener)
{
    return registrations().add({std::string(), nullptr, listener});
}

void qxController::removeListener(int id)
{
    registrations().remove(id);
}

void qxController::updateRender(bool everything)
{
    qxRenderRequests::request(everything);
}
