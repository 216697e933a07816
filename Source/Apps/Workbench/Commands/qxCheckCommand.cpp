#include "Commands/qxAmbiguousNodes.h"
#include "Report/qxOutput.h"
#include "Session/qxSession.h"
#include "qxCommand.h"
#include "qxShowCommand.h"

#include <QCommandLineParser>
#include <QJsonArray>
#include <QJsonObject>

namespace {

QJsonArray asJson(const qxAmbiguousNodes &nodes)
{
    QJsonArray array;
    for (int i = 0; i < nodes.count(); ++i) {
        const QStringList row = nodes.row(i);
        array += QJsonObject{{QStringLiteral("name"), row[0]}, {QStringLiteral("path"), row[1]}};
    }
    return array;
}

int runCheck(const QCommandLineParser &parser)
{
    qxSession session(parser.isSet(QStringLiteral("trace")));
    if (!session.open(parser.positionalArguments().first()))
        return WorkFailed;
    const qxAmbiguousNodes nodes;
    if (parser.isSet(QStringLiteral("json")))
        qxOutput::json(asJson(nodes));
    else if (nodes.isEmpty())
        qxOutput::line(QStringLiteral("no ambiguous nodes"));
    else
        qxOutput::table(nodes.count(), [&nodes](int index) { return nodes.row(index); });
    return nodes.isEmpty() ? Success : WorkFailed;
}

} // namespace

const qxCommand qxCommands::check = {
    "check", "FILE", "Lists nodes that a capture could not tell apart: name and path of each.",
    1,       1,      qxShowCommand::options,
    runCheck};
