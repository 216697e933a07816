#include "Script/qxScriptSession.h"

#include "Core/qxCallList.h"
#include "Script/qxInterpreter.h"
#include "Script/qxPython.h"
#include "Script/qxScriptError.h"
#include "qxPythonInit.h"

namespace {

/// Libraries register while they are loaded, and go after the host's library: never destroyed.
struct Sessions {
    qxCallList<qxPythonInit::Callback> callbacks;
    bool running = false;
    bool beginning = false;
};

Sessions &sessions()
{
    static Sessions &sessions = *new Sessions;
    return sessions;
}

/// While it exists, what callbacks run is set-up.
class Beginning {
public:
    Beginning() : m_outer(sessions().beginning) { sessions().beginning = true; }
    Beginning(const Beginning &) = delete;
    ~Beginning() { sessions().beginning = m_outer; }

private:
    bool m_outer;
};

/// A library that fails to define its bindings must not take the host with it.
void tell(qxPythonInit::Callback callback, bool destroy)
{
    try {
        callback(destroy);
    } catch (const boost::python::error_already_set &) {
        qxScriptError::report(std::string(), "<start of a library>");
    }
}

void tellAll(bool destroy)
{
    sessions().callbacks.run(
        [destroy](qxPythonInit::Callback callback) { tell(callback, destroy); });
}

} // namespace

qxPythonInit::qxPythonInit(Callback callback) : m_id(sessions().callbacks.add(callback))
{
    if (!sessions().running)
        return;
    const Beginning beginning;
    tell(callback, false);
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
    sessions().running = true;
    const Beginning beginning;
    tellAll(false);
    return true;
}

void qxScriptSession::end()
{
    if (!sessions().running)
        return;
    tellAll(true);
    qxInterpreter::clearNames();
    sessions().running = false;
}

bool qxScriptSession::isBeginning()
{
    return sessions().beginning;
}
