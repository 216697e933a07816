#include "qxPrompt.h"

#include "Script/qxScriptRunner.h"
#include "qxScript.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <boost/python.hpp>

#include <csignal>

namespace python = boost::python;

/// The sources of a library are not looked at before they are needed.
static void initResources()
{
    Q_INIT_RESOURCE(qxPrompt);
}

namespace {

/// While it exists, the prompt may take Ctrl-C for itself.
class KeptInterrupt {
public:
    KeptInterrupt() { sigaction(SIGINT, nullptr, &m_programs); }
    KeptInterrupt(const KeptInterrupt &) = delete;
    ~KeptInterrupt() { sigaction(SIGINT, &m_programs, nullptr); }

private:
    struct sigaction m_programs;
};

/// The module of qxPrompt.py, out of the way of the names that the person sees. The interpreter
/// runs.
python::object promptModule()
{
    const char name[] = "qxPrompt";
    python::object modules = python::import("sys").attr("modules");
    if (modules.contains(name))
        return modules[name];
    python::object made = python::import("types").attr("ModuleType")(name);
    python::object names = made.attr("__dict__");
    // Python 2.7 does not see to that itself.
    names["__builtins__"] =
        python::object(python::handle<>(python::borrowed(PyEval_GetBuiltins())));
    initResources();
    QFile source(QStringLiteral(":/Script/qxPrompt.py"));
    source.open(QIODevice::ReadOnly);
    python::exec(source.readAll().constData(), names);
    made.attr("console") = made.attr("Console")();
    modules[name] = made;
    return made;
}

/// Asks the console in a script of the application, so that what it runs can be interrupted.
QJsonDocument ask(const char *operation, const QString &text)
{
    if (qxScript::executeNUSR("True") != "True") // starts the interpreter, if nothing has yet
        return QJsonDocument();
    try {
        promptModule();
    } catch (const python::error_already_set &) {
        PyErr_Print();
        return QJsonDocument();
    }
    const QByteArray argument =
        QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact).toBase64();
    const QByteArray expression = QByteArray("__import__('qxPrompt').console.") + operation
        + "(__import__('json').loads(__import__('base64').b64decode('" + argument
        + "').decode('utf-8'))[0])";
    return QJsonDocument::fromJson(
        QByteArray::fromStdString(qxScript::executeNUSR(expression.constData())));
}

} // namespace

bool qxPrompt::run()
{
    // Starts the interpreter, if nothing has yet.
    if (!qxScriptRunner::run(std::string(), "prompt"))
        return false;
    const KeptInterrupt interrupt;
    try {
        python::object module = promptModule();
        const python::object terminal = module.attr("Terminal")();
        module.attr("terminal") = terminal;
        bool succeeded = true;
        while (!terminal.attr("ended") && terminal.attr("next")())
            succeeded =
                qxScriptRunner::run("__import__('qxPrompt').terminal.execute()", "<prompt>");
        return succeeded || !terminal.attr("ended");
    } catch (const python::error_already_set &) {
        PyErr_Print();
        return false;
    }
}

qxPrompt::Answer qxPrompt::run(const QString &statement)
{
    const QJsonDocument answered = ask("answer", statement);
    if (answered.isNull()) {
        // A statement that would not end was ended without any ceremony.
        qxScript::executeNUS("__import__('qxPrompt').console.put_back()", false);
        return {false, QStringLiteral("KeyboardInterrupt")};
    }
    const QJsonObject answer = answered.object();
    return {answer.value("more").toBool(), answer.value("text").toString()};
}

QStringList qxPrompt::completions(const QString &text)
{
    QStringList names;
    for (const QJsonValue &name : ask("names", text).array())
        names << name.toString();
    names.removeDuplicates();
    return names;
}
