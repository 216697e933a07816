#include "Script/qxScriptNesting.h"

#include "Script/qxPython.h"
#include "qxLog.h"

namespace {

const int mostLevels = 32;

int depth = 0;
bool inLeaf = false;
PyObject *ending = nullptr; ///< the exception that scripts are being ended with
bool raisePending = false;
int interrupts = 0; ///< of the scripts that run

/// Whether a text of the application runs, called by a script.
bool isBusyForAScript()
{
    return inLeaf && depth > 1;
}

PyObject *stopException()
{
    // No Exception: "except Exception" in a script is not meant for it.
    static PyObject *const type = [] {
        char name[] = "qxHost.ScriptsStopped";
        return PyErr_NewException(name, PyExc_BaseException, nullptr);
    }();
    return type;
}

/// Runs as soon as Python code goes on.
int raiseEnding(void *)
{
    raisePending = false;
    if (!ending || isBusyForAScript())
        return 0;
    PyObject *const exception = ending;
    if (depth == 1)
        ending = nullptr;
    if (qxScriptNesting::isStop(exception))
        PyErr_SetString(exception, "scripts call each other too deeply");
    else
        PyErr_SetNone(exception);
    return -1;
}

/// Runs between two steps of Python code, and asks for that again.
int raiseAgain(void *)
{
    if (interrupts == 0)
        return 0;
    Py_AddPendingCall(raiseAgain, nullptr);
    if (isBusyForAScript())
        return 0;
    PyErr_SetNone(PyExc_KeyboardInterrupt);
    return -1;
}

void endAll()
{
    if (ending)
        return;
    ending = stopException();
    qxLog::error("scripts call each other more than %d levels deep: all of them are ended",
                 mostLevels);
}

} // namespace

qxScriptNesting::qxScriptNesting(bool leaf) : m_mayRun(leaf || !ending), m_outerLeaf(inLeaf)
{
    // The innermost script still has its clipping plane set.
    if (m_mayRun && depth >= (leaf ? mostLevels + 1 : mostLevels)) {
        m_mayRun = false;
        endAll();
    }
    ++depth;
    inLeaf = leaf;
}

qxScriptNesting::~qxScriptNesting()
{
    --depth;
    inLeaf = m_outerLeaf;
    if (depth == 0) {
        ending = nullptr;
        interrupts = 0;
    }
    if (ending && !raisePending)
        raisePending = Py_AddPendingCall(raiseEnding, nullptr) == 0;
}

bool qxScriptNesting::isRunning()
{
    return depth > 0;
}

bool qxScriptNesting::isNested()
{
    return depth > 1;
}

void qxScriptNesting::raiseInterrupt()
{
    PyErr_SetNone(PyExc_KeyboardInterrupt);
    if (depth > 0 && ++interrupts == 2)
        Py_AddPendingCall(raiseAgain, nullptr);
}

void qxScriptNesting::interrupt()
{
    ending = PyExc_KeyboardInterrupt;
}

bool qxScriptNesting::isStop(PyObject *type)
{
    return type == stopException();
}
