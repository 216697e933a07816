#include "qxConsolePython.h"

#include "qxScript.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

/// Runs a statement as Python's own prompt does and answers in JSON. Python 2.7 and 3 alike.
const char *const helper = R"(
def __qx_prompt():
    import code, json, sys

    class Text(object):
        def __init__(self):
            self.parts = []
        def write(self, text):
            self.parts.append(text if isinstance(text, type(u'')) else text.decode('utf-8', 'replace'))
        def flush(self):
            pass

    class Prompt(code.InteractiveInterpreter):
        def answer(self, statement):
            text = Text()
            self.streams = sys.stdout, sys.stderr
            sys.stdout = sys.stderr = text
            try:
                more = self.runsource(statement, '<console>', 'single')
            except SystemExit:
                more = False
            finally:
                self.put_back()
            return json.dumps({'more': bool(more), 'text': u''.join(text.parts)})
        def put_back(self):
            sys.stdout, sys.stderr = self.streams
        def names(self, text):
            import rlcompleter
            completer, found = rlcompleter.Completer(self.locals), []
            while len(found) < 200:
                name = completer.complete(text, len(found))
                if name is None:
                    break
                found.append(name)
            return json.dumps(found)

    return Prompt(globals())

__qx_prompt = __qx_prompt()
)";

/// Asks the prompt in the interpreter, which is made when a new scene left none.
QJsonDocument ask(const char *operation, const QString &text)
{
    if (qxScript::executeNUSR("'__qx_prompt' in globals()") != "True")
        qxScript::executeNUS(helper, false);
    const QByteArray argument =
        QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact).toBase64();
    const QByteArray expression = QByteArray("__qx_prompt.") + operation
        + "(__import__('json').loads(__import__('base64').b64decode('" + argument
        + "').decode('utf-8'))[0])";
    return QJsonDocument::fromJson(
        QByteArray::fromStdString(qxScript::executeNUSR(expression.constData())));
}

} // namespace

qxConsolePython::Answer qxConsolePython::run(const QString &statement)
{
    const QJsonDocument answered = ask("answer", statement);
    if (answered.isNull()) {
        // A statement that would not end was ended without any ceremony.
        qxScript::executeNUS("__qx_prompt.put_back()", false);
        return {false, QStringLiteral("KeyboardInterrupt")};
    }
    const QJsonObject answer = answered.object();
    return {answer.value("more").toBool(), answer.value("text").toString()};
}

QStringList qxConsolePython::completions(const QString &text)
{
    QStringList names;
    for (const QJsonValue &name : ask("names", text).array())
        names << name.toString();
    names.removeDuplicates();
    return names;
}
