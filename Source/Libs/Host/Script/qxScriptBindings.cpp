#include "Script/qxScriptBindings.h"

#include "Script/qxPython.h"

namespace python = boost::python;

void qxScriptBindings::define()
{
    const python::object module(python::handle<>(python::borrowed(PyImport_AddModule("qxHost"))));
    python::scope scope(module);
    const python::docstring_options docstrings(true, true, false); // no signatures of C++
    scope.attr("__doc__") = "What the host offers to scripts.";
    defineValues();
    defineHandles();
    defineClipping();

    // Python's own exit() also closes the standard input, which the program may still read.
    const python::object exit = python::import("sys").attr("exit");
    python::object builtins = python::import(qxPythonBuiltins);
    builtins.attr("exit") = exit;
    builtins.attr("quit") = exit;
}
