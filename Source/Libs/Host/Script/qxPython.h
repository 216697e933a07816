#pragma once

#include <boost/python.hpp>

#include <string>

/// Includes Python and Boost.Python, and hides the differences between Python 2.7 and 3.

/// The name of the module with Python's own functions.
#if PY_MAJOR_VERSION >= 3
const char *const qxPythonBuiltins = "builtins";
#else
const char *const qxPythonBuiltins = "__builtin__";
#endif

/// A text object as UTF-8: lone surrogates as escapes, byte strings of Python 2.7 as they are, and
/// other objects as str() gives them. Leaves no Python error set; if str() fails, the text is
/// empty.
std::string qxPythonText(PyObject *object);

/// UTF-8 as Python's text object, with replacement characters for invalid bytes.
boost::python::object qxPythonObject(const std::string &text);

/// Compiles UTF-8 text; a new reference, or null with a Python error set. `start` is
/// Py_file_input or Py_eval_input.
PyObject *qxPythonCompile(const std::string &text, const std::string &fileName, int start);
/// Runs what qxPythonCompile made, in the given global names; a new reference, or null with a
/// Python error set.
PyObject *qxPythonEvaluate(PyObject *code, PyObject *names);

/// Lets the script's thread call `action` between its next two steps; if it returns -1, with a
/// Python error set, that is raised there. With Python 3 long steps, such as a sleep, are
/// interrupted for it. May be called on any thread, for one action at a time. False if it must be
/// tried again.
bool qxPythonAddPendingCall(int (*action)(void *));
/// Makes sure that such calls work even if earlier scripts changed the program's signals.
void qxPythonEnablePendingCalls();

/// Starts the interpreter, ignoring the user's environment and without its own handlers for signals
/// of users. Returns the reason if it cannot start, else an empty text.
std::string qxPythonStart();
