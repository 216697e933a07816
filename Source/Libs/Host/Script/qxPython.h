#pragma once

#include <boost/python.hpp>

#include <string>

/// Python and Boost.Python, and what differs between Python 2.7 and 3.

/// The name of the module with Python's own functions.
#if PY_MAJOR_VERSION >= 3
const char *const qxPythonBuiltins = "builtins";
#else
const char *const qxPythonBuiltins = "__builtin__";
#endif

/// A text object as UTF-8: lone surrogates as escapes, byte strings of Python 2.7 as they are, and
/// other objects as str() gives them. Leaves no Python error behind; an object that refuses gives
/// an empty text.
std::string qxPythonText(PyObject *object);

/// UTF-8 as Python's text object, with replacement characters for what is none.
boost::python::object qxPythonObject(const std::string &text);

/// Compiles UTF-8 text; a new reference, or null with a Python error set. `start` is
/// Py_file_input or Py_eval_input.
PyObject *qxPythonCompile(const std::string &text, const std::string &fileName, int start);
/// Runs what qxPythonCompile made, in the given global names; a new reference, or null with a
/// Python error set.
PyObject *qxPythonEvaluate(PyObject *code, PyObject *names);

/// Has `action` called between the next two steps of the script that runs, on the script's thread;
/// when it answers -1, with a Python error set, that is raised there. With Python 3 steps that take
/// long, such as a sleep, are broken off for it. To be called on any thread, for one action at a
/// time. False when it has to be tried again.
bool qxPythonAddPendingCall(int (*action)(void *));
/// Makes such calls arrive, whatever earlier scripts did to the signals of the program.
void qxPythonEnablePendingCalls();

/// Starts the interpreter, untouched by the user's environment and without signal handlers of its
/// own for the signals that users send; the reason when it cannot, else an empty text.
std::string qxPythonStart();
