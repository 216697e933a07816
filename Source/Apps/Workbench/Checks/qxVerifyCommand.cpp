#include "qxVariantVerifier.h"

#include "qxCommand.h"
#include "qxSession.h"

#include <QCommandLineParser>

namespace {

QList<QCommandLineOption> options()
{
    return {{QStringLiteral("report"), QStringLiteral("Writes the same lines to CSV."),
             QStringLiteral("CSV")},
            qxCommands::traceOption()};
}

int run(const QCommandLineParser &parser)
{
    qxSession session(parser.isSet(QStringLiteral("trace")));
    if (!session.open(parser.positionalArguments().first()))
        return WorkFailed;
    qxVariantVerifier verifier;
    const QString report = parser.value(QStringLiteral("report"));
    if (report.isEmpty()) {
        verifier.verifyVariantSets();
        verifier.verifyNodeVariants();
        verifier.verifyMaterialVariants();
    } else if (!verifier.verify(report)) {
        return qxCommands::fail(QStringLiteral("%1: the report cannot be written").arg(report));
    }
    return verifier.errorCount() == 0 ? Success : WorkFailed;
}

} // namespace

const qxCommand qxCommands::verify = {
    "verify", "FILE", "Checks sets, node and material variants against the scene.", 1, 1,
    options,  run};
