#include "Script/qxScriptInterrupt.h"

#include "Script/qxPython.h"
#include "Script/qxScriptNesting.h"

#include <csignal>

namespace {

typedef struct sigaction Action;

Action pythons; ///< sets a mark that Python sees between two steps of a script
Action programs;

/// What Python calls for the signal, between two steps of a script.
void interrupt(int, const boost::python::object &)
{
    qxScriptNesting::raiseInterrupt();
    boost::python::throw_error_already_set();
}

} // namespace

void qxScriptInterrupt::install()
{
    sigaction(SIGINT, nullptr, &programs);
    boost::python::import("signal").attr("signal")(SIGINT, boost::python::make_function(interrupt));
    sigaction(SIGINT, &programs, &pythons);
}

qxScriptInterrupt::qxScriptInterrupt()
{
    sigaction(SIGINT, nullptr, &programs);
    if (programs.sa_handler != SIG_IGN)
        sigaction(SIGINT, &pythons, nullptr);
}

qxScriptInterrupt::~qxScriptInterrupt()
{
    sigaction(SIGINT, &programs, nullptr);
    if (PyErr_CheckSignals() != 0)
        PyErr_Clear(); // came too late for the script
}
