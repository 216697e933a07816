#include "Script/qxPython.h"

#include <atomic>
#include <csignal>
#include <filesystem>

namespace {

const char byteOrderMark[] = "\xEF\xBB\xBF";

std::string withoutMark(const std::string &text)
{
    return text.compare(0, 3, byteOrderMark) == 0 ? text.substr(3) : text;
}

std::string bytesOf(PyObject *bytes)
{
    return std::string(PyBytes_AS_STRING(bytes), std::size_t(PyBytes_GET_SIZE(bytes)));
}

/// The running program: what Python takes for its own executable. Otherwise it would look for
/// itself in the user's PATH and find what is installed there.
std::string programPath()
{
    std::error_code failed;
    return std::filesystem::read_symlink("/proc/self/exe", failed).string();
}

} // namespace

std::string qxPythonText(PyObject *object)
{
    namespace python = boost::python;
    python::handle<> text(python::allow_null(PyUnicode_Check(object) || PyBytes_Check(object)
                                                 ? python::incref(object)
                                                 : PyObject_Str(object)));
    if (text && PyUnicode_Check(text.get()))
        text = python::handle<>(
            python::allow_null(PyUnicode_AsEncodedString(text.get(), "utf-8", "backslashreplace")));
    if (text)
        return bytesOf(text.get());
    PyErr_Clear();
    return std::string();
}

#if PY_MAJOR_VERSION >= 3

boost::python::object qxPythonObject(const std::string &text)
{
    return boost::python::object(boost::python::handle<>(
        PyUnicode_DecodeUTF8(text.data(), Py_ssize_t(text.size()), "replace")));
}

PyObject *qxPythonCompile(const std::string &text, const std::string &fileName, int start)
{
    PyCompilerFlags flags{PyCF_SOURCE_IS_UTF8 | PyCF_IGNORE_COOKIE, PY_MINOR_VERSION};
    return Py_CompileStringFlags(withoutMark(text).c_str(), fileName.c_str(), start, &flags);
}

PyObject *qxPythonEvaluate(PyObject *code, PyObject *names)
{
    return PyEval_EvalCode(code, names, names);
}

namespace {

pthread_t scriptsThread;
std::atomic<int (*)(void *)> wanted{nullptr};

void callWanted(int, const boost::python::object &)
{
    const auto action = wanted.load();
    if (action && action(nullptr) != 0)
        boost::python::throw_error_already_set();
}

/// What another thread asks for, a script in a loop does not notice. It notices signals, and most
/// calls that take long do so, too. By default this one does nothing.
void installSignal()
{
    scriptsThread = pthread_self();
    const boost::python::object signals = boost::python::import("signal");
    signals.attr("signal")(SIGURG, boost::python::make_function(callWanted));
    signals.attr("siginterrupt")(SIGURG, false);
    sigset_t unblocked;
    sigemptyset(&unblocked);
    sigaddset(&unblocked, SIGURG);
    pthread_sigmask(SIG_UNBLOCK, &unblocked, nullptr);
}

} // namespace

bool qxPythonAddPendingCall(int (*action)(void *))
{
    wanted = action;
    return pthread_kill(scriptsThread, SIGURG) == 0;
}

void qxPythonEnablePendingCalls()
{
    if (!Py_IsInitialized())
        return;
    try {
        installSignal();
    } catch (const boost::python::error_already_set &) {
        PyErr_Clear();
    }
}

std::string qxPythonStart()
{
    PyPreConfig before;
    PyPreConfig_InitIsolatedConfig(&before);
    before.utf8_mode = 1;
#ifdef __SANITIZE_ADDRESS__
    before.allocator = PYMEM_ALLOCATOR_MALLOC; // of Python's own memory the sanitizer sees little
#endif
    PyStatus status = Py_PreInitialize(&before);

    PyConfig config;
    PyConfig_InitIsolatedConfig(&config);
    if (!PyStatus_Exception(status))
        status = PyConfig_SetBytesString(&config, &config.program_name, programPath().c_str());
    if (!PyStatus_Exception(status))
        status = Py_InitializeFromConfig(&config);
    PyConfig_Clear(&config);
    if (!PyStatus_Exception(status)) {
        installSignal();
        return std::string();
    }
    return status.err_msg ? status.err_msg : "unknown reason";
}

#else

boost::python::object qxPythonObject(const std::string &text)
{
    return boost::python::str(text);
}

PyObject *qxPythonCompile(const std::string &text, const std::string &fileName, int start)
{
    // Python 2.7 takes the bytes of texts as they are.
    namespace python = boost::python;
    const python::handle<> valid(
        python::allow_null(PyUnicode_DecodeUTF8(text.data(), Py_ssize_t(text.size()), "strict")));
    if (!valid)
        return nullptr;
    // The mark says UTF-8, and unlike the flag for that it allows a coding line.
    const std::string marked = byteOrderMark + withoutMark(text);
    return Py_CompileString(marked.c_str(), fileName.c_str(), start);
}

PyObject *qxPythonEvaluate(PyObject *code, PyObject *names)
{
    return PyEval_EvalCode(reinterpret_cast<PyCodeObject *>(code), names, names);
}

namespace {

namespace converter = boost::python::converter;

/// Lets functions that take a text take a unicode object as well, not only a byte string. The bytes
/// live as long as the object.
void *bytesOfUnicode(PyObject *object)
{
    const char *bytes = nullptr;
    Py_ssize_t length = 0;
    if (!PyUnicode_Check(object))
        return nullptr;
    if (PyObject_AsCharBuffer(object, &bytes, &length) == 0)
        return const_cast<char *>(bytes);
    PyErr_Clear();
    return nullptr;
}

void makeTextOfUnicode(PyObject *object, converter::rvalue_from_python_stage1_data *data)
{
    typedef converter::rvalue_from_python_storage<std::string> Storage;
    void *const text = reinterpret_cast<Storage *>(data)->storage.bytes;
    new (text) std::string(qxPythonText(object));
    data->convertible = text;
}

} // namespace

bool qxPythonAddPendingCall(int (*action)(void *))
{
    return Py_AddPendingCall(action, nullptr) == 0;
}

void qxPythonEnablePendingCalls() {} // Scripts cannot keep pending calls away.

std::string qxPythonStart()
{
    // Python 2.7 ends the process when it misses its library.
    if (!std::filesystem::exists(QX_PYTHON_HOME "/lib/python2.7/os.py"))
        return "there is no library below " QX_PYTHON_HOME;
    static std::string home = QX_PYTHON_HOME; // both are kept as pointers
    static std::string program = programPath();
    Py_NoUserSiteDirectory = 1;
    Py_IgnoreEnvironmentFlag = 1;
    Py_SetPythonHome(&home[0]);
    Py_SetProgramName(&program[0]);
    Py_InitializeEx(0);
    char noArgument[] = "";
    char *arguments[] = {noArgument};
    PySys_SetArgvEx(1, arguments, 0);
    PyUnicode_SetDefaultEncoding("utf-8");
    Py_MakePendingCalls(); // makes the lock by which other threads add calls
    converter::registry::insert(&bytesOfUnicode, boost::python::type_id<char>());
    converter::registry::push_back(&bytesOfUnicode, &makeTextOfUnicode,
                                   boost::python::type_id<std::string>());
    return std::string();
}

#endif
