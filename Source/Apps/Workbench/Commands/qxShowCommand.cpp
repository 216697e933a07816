#include "qxShowCommand.h"

#include "Session/qxSession.h"

#include <QCommandLineParser>

QList<QCommandLineOption> qxShowCommand::options()
{
    return {qxCommands::jsonOption(), qxCommands::traceOption()};
}

int qxShowCommand::run(const QCommandLineParser &parser, Print json, Print table)
{
    qxSession session(parser.isSet(QStringLiteral("trace")));
    if (!session.open(parser.positionalArguments().first()))
        return WorkFailed;
    const Print print = parser.isSet(QStringLiteral("json")) ? json : table;
    print(session);
    return Success;
}
