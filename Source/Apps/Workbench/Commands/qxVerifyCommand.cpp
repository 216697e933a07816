#include "qxVariantVerifier.h"

#include "Report/qxOutput.h"
#include "Report/qxStreams.h"
#include "Session/qxSession.h"
#include "qxCommand.h"

#include <QCommandLineParser>
#include <QTemporaryFile>

namespace {

QList<QCommandLineOption> verifyOptions()
{
    return {{QStringLiteral("report"), QStringLiteral("Writes the same lines to CSV."),
             QStringLiteral("CSV")},
            qxCommands::traceOption()};
}

/// The lines of the report. The verifier writes as it goes, here to a draft.
bool draw(qxVariantVerifier &verifier, QByteArray &lines)
{
    const qxCaughtOutput same(qxCaughtOutput::Nowhere);
    QTemporaryFile draft;
    return draft.open() && verifier.verify(draft.fileName())
        && qxStreams::read(draft.fileName(), lines);
}

int runVerify(const QCommandLineParser &parser)
{
    qxSession session(parser.isSet(QStringLiteral("trace")));
    if (!session.open(parser.positionalArguments().first()))
        return WorkFailed;
    qxVariantVerifier verifier;
    const QString report = parser.value(QStringLiteral("report"));
    QByteArray lines;
    if (!draw(verifier, lines))
        return qxCommands::fail(QStringLiteral("the report cannot be written"));
    qxOutput::text(QString::fromUtf8(lines));
    if (!report.isEmpty() && !qxStreams::isStandard(report) && !qxStreams::write(report, lines))
        return WorkFailed;
    if (verifier.errorCount() == 0)
        return Success;
    return qxCommands::fail(
        QStringLiteral("%1 by the letter of the report, to which steps such as \"!Next\" are no "
                       "states; \"workbench lint FILE\" finds what is really wrong")
            .arg(verifier.errorCount() == 1
                     ? QStringLiteral("1 error")
                     : QStringLiteral("%1 errors").arg(verifier.errorCount())));
}

} // namespace

const qxCommand qxCommands::verify = {
    "verify",
    "FILE",
    "Checks sets, node and material variants against the scene.",
    1,
    1,
    verifyOptions,
    runVerify,
    "One line for each problem and for each object without one. The report goes by the letter: it "
    "knows sets, node\nand material variants, and takes every action but showing and hiding, all "
    "and none for an error, so that\nsound scenes have errors, too. What is really wrong with all "
    "kinds of variants is what \"workbench lint\" tells."};
