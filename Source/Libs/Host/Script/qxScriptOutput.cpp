#include "Script/qxScriptOutput.h"

#include "Script/qxPython.h"
#include "Script/qxScriptNesting.h"
#include "Script/qxScriptRunner.h"
#include "qxLog.h"

#include <boost/python/stl_iterator.hpp>

#include <unistd.h>
#include <utility>

namespace {

namespace python = boost::python;

/// Where goes what scripts print: to `lines` if that is set.
struct Destination {
    std::FILE *file = stdout;
    std::function<void(const std::string &)> lines;
    std::string begun; ///< the last line, as long as it has no end
};

Destination &destination()
{
    static Destination destination;
    return destination;
}

/// Hands the line on, by which scripts could be led to print again.
void endLine()
{
    const std::string line = std::exchange(destination().begun, std::string());
    if (const auto lines = destination().lines)
        lines(line);
}

void addToLines(const std::string &text)
{
    for (const char each : text) {
        if (each == '\n')
            endLine();
        else
            destination().begun += each;
    }
}

qxScriptOutput::Capture *capturing = nullptr;

/// What scripts know as sys.stdout and sys.stderr: as much of a file as print and input need.
class Stream {
public:
    explicit Stream(bool errors) : m_errors(errors) {}

    void write(const python::object &text) const
    {
        qxScriptOutput::write(qxPythonText(text.ptr()), m_errors);
    }
    void writeLines(const python::object &lines) const
    {
        for (python::stl_input_iterator<python::object> line(lines), end; line != end; ++line)
            write(*line);
    }
    void flush() const { std::fflush(file()); }
    bool isatty() const { return ::isatty(fileno()) != 0; }
    int fileno() const { return ::fileno(file()); }

private:
    std::FILE *file() const { return m_errors ? stderr : destination().file; }

    bool m_errors;
};

/// A function of Python's own, for Python 2.7 takes no other.
const char *const showWarning =
    "def showwarning(message, category, filename, lineno, file=None, line=None):\n"
    "    log('%s:%d: %s: %s' % (filename, lineno, category.__name__, message))\n";

void logWarning(const python::object &text)
{
    qxLog::warning("%s", qxPythonText(text.ptr()).c_str());
}

void installWarnings()
{
    python::dict names;
    names["__builtins__"] = python::import(qxPythonBuiltins);
    names["log"] = python::make_function(logWarning);
    python::exec(showWarning, names, names);
    python::object warnings = python::import("warnings");
    warnings.attr("showwarning") = names["showwarning"];
}

} // namespace

void qxScriptOutput::install()
{
    const python::class_<Stream> stream = python::class_<Stream>("Stream", python::no_init)
                                              .def("write", &Stream::write)
                                              .def("writelines", &Stream::writeLines)
                                              .def("flush", &Stream::flush)
                                              .def("isatty", &Stream::isatty)
                                              .def("fileno", &Stream::fileno);
    python::object(stream).attr("encoding") = "utf-8";
    python::object(stream).attr("errors") = "backslashreplace";
    python::object sys = python::import("sys");
    sys.attr("stdout") = Stream(false);
    sys.attr("stderr") = Stream(true);
    installWarnings();
}

void qxScriptOutput::flush()
{
    if (!destination().begun.empty() && !qxScriptNesting::isNested())
        endLine();
    std::fflush(destination().file);
}

void qxScriptOutput::write(const std::string &text, bool toErrors)
{
    if (capturing && !toErrors)
        capturing->m_text += text;
    else if (destination().lines)
        addToLines(text);
    else
        std::fwrite(text.data(), 1, text.size(), toErrors ? stderr : destination().file);
}

qxScriptOutput::Capture::Capture() : m_outer(capturing)
{
    capturing = this;
}

qxScriptOutput::Capture::~Capture()
{
    capturing = m_outer;
}

void qxScriptRunner::setOutput(std::FILE *output)
{
    destination() = {output, nullptr, std::string()};
}

void qxScriptRunner::setOutput(const std::function<void(const std::string &line)> &output)
{
    destination() = {stderr, output, std::string()};
}
