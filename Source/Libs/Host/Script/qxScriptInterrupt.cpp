#include "Script/qxScriptInterrupt.h"

#include "Script/qxPython.h"

#include <csignal>

namespace {

typedef struct sigaction Action;

Action pythons; ///< sets a mark that Python sees between two steps of a script
Action programs;

} // namespace

void qxScriptInterrupt::install()
{
    sigaction(SIGINT, nullptr, &programs);
    const boost::python::object signals = boost::python::import("signal");
    const boost::python::object handler = signals.attr("default_int_handler");
    signals.attr("signal")(SIGINT, handler);
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
