#include "Script/qxInterpreter.h"

#include "Script/qxPython.h"
#include "Script/qxScriptBindings.h"
#include "Script/qxScriptError.h"
#include "Script/qxScriptInterrupt.h"
#include "Script/qxScriptOutput.h"
#include "qxLog.h"

namespace {

namespace python = boost::python;

/// The dictionary of the global names; borrowed.
PyObject *names()
{
    return PyModule_GetDict(PyImport_AddModule("__main__"));
}

bool startOnce()
{
    const std::string reason = qxPythonStart();
    if (!reason.empty()) {
        qxLog::error("scripts cannot run: Python does not start: %s", reason.c_str());
        return false;
    }
    try {
        qxScriptOutput::install();
        qxScriptInterrupt::install();
        qxScriptBindings::define();
        return true;
    } catch (const python::error_already_set &) {
        qxScriptError::report("the host's bindings", std::string());
        return false;
    }
}

/// Compiles and evaluates; null with a Python error set.
python::handle<> evaluate(const std::string &text, const std::string &fileName, int start)
{
    if (text.find('\0') != std::string::npos) {
        PyErr_SetString(PyExc_ValueError, "the text of the script holds a NUL character");
        return python::handle<>();
    }
    const python::handle<> code(python::allow_null(qxPythonCompile(text, fileName, start)));
    if (!code)
        return code;
    return python::handle<>(python::allow_null(qxPythonEvaluate(code.get(), names())));
}

} // namespace

bool qxInterpreter::start()
{
    static const bool started = startOnce();
    return started;
}

void qxInterpreter::fillNames()
{
    clearNames(); // of what only the first session would have
    python::object names(python::handle<>(python::borrowed(::names())));
    names["__name__"] = "__main__";
    names["__doc__"] = python::object();
    names["__builtins__"] = python::import(qxPythonBuiltins);
    run("from qxHost import *", "<host>");
}

void qxInterpreter::clearNames()
{
    PyDict_Clear(names());
}

bool qxInterpreter::run(const std::string &text, const std::string &fileName)
{
    const python::handle<> result = evaluate(text, fileName, Py_file_input);
    const bool ended = result || qxScriptError::report(text, fileName);
    qxScriptOutput::flush();
    return ended;
}

std::string qxInterpreter::print(const std::string &expression)
{
    const qxScriptOutput::Capture capture;
    const python::handle<> result = evaluate(expression, "<expression>", Py_eval_input);
    if (!result) {
        qxScriptError::report(expression, "<expression>");
        return std::string();
    }
    std::string printed = capture.text();
    if (result.get() != Py_None)
        return printed + qxPythonText(result.get());
    if (!printed.empty() && printed.back() == '\n')
        printed.pop_back();
    return printed;
}
