#include "qxVariantVerifier.h"

#include "Report/qxOutput.h"
#include "Report/qxStreams.h"
#include "Session/qxSession.h"
#include "qxCommand.h"
#include "qxSharedReport.h"

#include <QCommandLineParser>
#include <QJsonObject>
#include <QTemporaryFile>

namespace {

const QString errorsKey = QStringLiteral("errors");
const QString linesKey = QStringLiteral("lines");

QList<QCommandLineOption> verifyOptions()
{
    return QList<QCommandLineOption>{{QStringLiteral("report"),
                                      QStringLiteral("Writes the same lines to CSV."),
                                      QStringLiteral("CSV")},
                                     qxShardOptions::json(),
                                     qxCommands::traceOption()}
    + qxShardOptions::all();
}

/// The lines of the report. The verifier writes as it goes, here to a draft.
bool draw(qxVariantVerifier &verifier, QByteArray &lines)
{
    const qxCaughtOutput same(qxCaughtOutput::Nowhere);
    QTemporaryFile draft;
    return draft.open() && verifier.verify(draft.fileName())
        && qxStreams::read(draft.fileName(), lines);
}

/// A share of the report; empty, after saying so, when it cannot be drawn.
QJsonObject partOf(const qxShare &share)
{
    qxVariantVerifier verifier(share);
    QByteArray lines;
    if (draw(verifier, lines))
        return {{errorsKey, verifier.errorCount()}, {linesKey, QString::fromUtf8(lines)}};
    qxOutput::error(QStringLiteral("the report cannot be written"));
    return {};
}

int runVerify(const QCommandLineParser &parser)
{
    const QString report = parser.value(QStringLiteral("report"));
    qxSharedReport work(qxCommands::verify, parser);
    int code = work.read({QStringLiteral("report")});
    if (code == Success)
        code = work.begin();
    if (code != Success)
        return code;
    qxSession session(parser.isSet(QStringLiteral("trace")));
    if (!work.isGathered() && !session.open(parser.positionalArguments().first()))
        return WorkFailed;
    if (work.makesParts())
        return work.makeParts(partOf);
    QByteArray lines;
    int errors = 0;
    const auto take = [&](const QJsonObject &part) {
        lines += part[linesKey].toString().toUtf8();
        errors += part[errorsKey].toInt();
    };
    if (!work.takeAll(partOf, take))
        return WorkFailed;
    qxOutput::text(QString::fromUtf8(lines));
    if (!report.isEmpty() && !qxStreams::isStandard(report) && !qxStreams::write(report, lines))
        return WorkFailed;
    if (errors == 0)
        return Success;
    return qxCommands::fail(
        QStringLiteral("%1 by the letter of the report, to which steps such as \"!Next\" are no "
                       "states; \"workbench lint FILE\" finds what is really wrong")
            .arg(errors == 1 ? QStringLiteral("1 error")
                             : QStringLiteral("%1 errors").arg(errors)));
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
