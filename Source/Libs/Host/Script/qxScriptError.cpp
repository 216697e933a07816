#include "Script/qxScriptError.h"

#include "Script/qxPython.h"
#include "Script/qxScriptNesting.h"
#include "qxLog.h"

namespace {

namespace python = boost::python;

bool interrupted = false;

/// The current Python error, taken from the interpreter.
struct Error {
    Error()
    {
        PyObject *fetched[3];
        PyErr_Fetch(&fetched[0], &fetched[1], &fetched[2]);
        PyErr_NormalizeException(&fetched[0], &fetched[1], &fetched[2]);
        type = taken(fetched[0]);
        value = taken(fetched[1]);
        traceback = taken(fetched[2]);
    }
    static python::object taken(PyObject *object)
    {
        return object ? python::object(python::handle<>(object)) : python::object();
    }
    bool is(PyObject *exception) const
    {
        return PyErr_GivenExceptionMatches(type.ptr(), exception) != 0;
    }

    python::object type, value, traceback;
};

/// While it exists, Python finds the lines of a text under its file name.
class KnownLines {
public:
    KnownLines(const std::string &text, const std::string &fileName)
        : m_cache(python::import("linecache").attr("cache")), m_fileName(qxPythonObject(fileName))
    {
        const python::object lines = qxPythonObject(text).attr("splitlines")(true);
        m_cache[m_fileName] = python::make_tuple(text.size(), python::object(), lines, m_fileName);
    }
    KnownLines(const KnownLines &) = delete;
    ~KnownLines()
    {
        if (PyDict_DelItem(m_cache.ptr(), m_fileName.ptr()) != 0)
            PyErr_Clear();
    }

private:
    python::object m_cache;
    python::object m_fileName;
};

/// Texts without a file have numbers instead, so that a function left by an earlier text is not
/// shown with lines of this one; the numbers mean nothing to anybody else.
std::string format(const Error &error, const std::string &text, const std::string &fileName)
{
    try {
        const KnownLines lines(text, fileName);
        const python::object formatted =
            python::import("traceback")
                .attr("format_exception")(error.type, error.value, error.traceback);
        const python::object joined = python::str("").join(formatted);
        return qxPythonText(
            python::import("re").attr("sub")("<script [0-9]+>", "<script>", joined).ptr());
    } catch (const python::error_already_set &) {
        PyErr_Clear();
        return qxPythonText(error.type.ptr()) + ": " + qxPythonText(error.value.ptr());
    }
}

/// Exits as the interpreter's own program does: without a value and with 0 all is well, another
/// number only counts, anything else is a message.
bool reportCode(const python::object &code)
{
    if (code.is_none())
        return true;
    if (!PyIndex_Check(code.ptr())) {
        qxLog::error("script error: %s", qxPythonText(code.ptr()).c_str());
        return false;
    }
    const Py_ssize_t status = PyNumber_AsSsize_t(code.ptr(), nullptr);
    if (PyErr_Occurred()) {
        PyErr_Clear();
        qxLog::error("script error: exit(%s)", qxPythonText(code.ptr()).c_str());
        return false;
    }
    if (status == 0)
        return true;
    qxLog::error("script error: exit(%zd)", status);
    return false;
}

/// Classes of scripts may be exits as well, and fail when they are asked.
bool reportExit(const Error &error)
{
    try {
        return reportCode(error.value.attr("code"));
    } catch (const python::error_already_set &) {
        PyErr_Clear();
        qxLog::error("script error: an exit without a readable code");
        return false;
    }
}

/// The scripts around this one end as well, and only the outermost one tells.
bool reportInterrupt()
{
    if (qxScriptNesting::isNested()) {
        qxScriptNesting::interrupt();
        return false;
    }
    qxLog::error("script error: interrupted");
    interrupted = true;
    return false;
}

} // namespace

bool qxScriptError::report(const std::string &text, const std::string &fileName)
{
    const Error error;
    if (qxScriptNesting::isStop(error.type.ptr()))
        return false; // the reason of the stop is in the log
    if (error.is(PyExc_SystemExit))
        return reportExit(error);
    if (error.is(PyExc_KeyboardInterrupt))
        return reportInterrupt();
    qxLog::error("script error:\n%s", format(error, text, fileName).c_str());
    return false;
}

bool qxScriptError::wereInterrupted()
{
    return interrupted;
}
