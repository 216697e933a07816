#include "Script/qxScriptCheck.h"

#include "Script/qxInterpreter.h"
#include "Script/qxPython.h"

namespace {

namespace python = boost::python;

/// Takes the current Python error and says what it is; only errors of syntax have a line.
std::string takeError()
{
    PyObject *fetched[3];
    PyErr_Fetch(&fetched[0], &fetched[1], &fetched[2]);
    PyErr_NormalizeException(&fetched[0], &fetched[1], &fetched[2]);
    const python::handle<> type(fetched[0]);
    const python::handle<> value(python::allow_null(fetched[1]));
    const python::handle<> traceback(python::allow_null(fetched[2]));
    if (!value)
        return qxPythonText(type.get());
    if (!PyErr_GivenExceptionMatches(type.get(), PyExc_SyntaxError)) {
        const std::string text = qxPythonText(value.get());
        return text.empty()
            ? qxPythonText(python::object(python::object(type).attr("__name__")).ptr())
            : text;
    }
    const python::object error(value);
    return "line " + qxPythonText(python::object(error.attr("lineno")).ptr()) + ": "
        + qxPythonText(python::object(error.attr("msg")).ptr());
}

/// As long as it lives, what Python warns of is not told.
class Quiet {
public:
    Quiet() : m_filters(python::import("warnings").attr("catch_warnings")())
    {
        m_filters.attr("__enter__")();
        python::import("warnings").attr("simplefilter")("ignore");
    }
    Quiet(const Quiet &) = delete;
    ~Quiet() { m_filters.attr("__exit__")(); }

private:
    python::object m_filters;
};

} // namespace

std::string qxScriptCheck::flawOf(const std::string &text)
{
    if (text.find('\0') != std::string::npos)
        return "the text of the script holds a NUL character";
    if (!qxInterpreter::start())
        return "it cannot be checked: Python does not start";
    const Quiet quiet;
    const python::handle<> code(
        python::allow_null(qxPythonCompile(text, "<script>", Py_file_input)));
    return code ? std::string() : takeError();
}
