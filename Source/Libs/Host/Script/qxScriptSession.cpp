#include "Script/qxScriptSession.h"

#include "Core/qxCallList.h"
#include "Script/qxInterpreter.h"
#include "qxPythonInit.h"

namespace {

/// Libraries register while they are loaded: the list is there before, and outlives them.
struct Sessions {
    qxCallList<qxPythonInit::Callback> callbacks;
    bool running = false;
    bool beginning = false;
};

Sessions &sessions()
{
    static Sessions sessions;
    return sessions;
}

void tell(bool destroy)
{
    sessions().callbacks.run([destroy](qxPythonInit::Callback callback) { callback(destroy); });
}

} // namespace

qxPythonInit::qxPythonInit(Callback callback) : m_id(sessions().callbacks.add(callback))
{
    if (sessions().running)
        callback(false);
}

qxPythonInit::~qxPythonInit()
{
    sessions().callbacks.remove(m_id);
}

bool qxScriptSession::begin()
{
    if (sessions().running)
        return true;
    if (!qxInterpreter::start())
        return false;
    qxInterpreter::fillNames();
    sessions().running = sessions().beginning = true;
    tell(false);
    sessions().beginning = false;
    return true;
}

void qxScriptSession::end()
{
    if (!sessions().running)
        return;
    tell(true);
    qxInterpreter::clearNames();
    sessions().running = false;
}

bool qxScriptSession::isBeginning()
{
    return sessions().beginning;
}
