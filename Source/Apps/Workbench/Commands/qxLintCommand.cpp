#include "qxVariantWriter.h"

#include "Report/qxLintReport.h"
#include "Script/qxScriptCheck.h"
#include "Session/qxSession.h"
#include "qxCommand.h"
#include "qxLinter.h"
#include "qxLog.h"
#include "qxText.h"

#include <QCommandLineParser>

namespace {

QList<QCommandLineOption> lintOptions()
{
    return {qxCommands::jsonOption(),
            {QStringLiteral("junit"), QStringLiteral("Writes JUnit XML for a build server.")},
            qxCommands::traceOption()};
}

QString compile(const QString &script)
{
    return qxText::fromUtf8(qxScriptCheck::flawOf(qxText::toUtf8(script)));
}

/// Has the reader read the document as well: it refuses what no document of ours has.
bool isAccepted(qxSession &session, const QByteArray &document, QString &reason)
{
    const int listener = qxLog::addListener([&](qxLog::Level level, const std::string &line) {
        if (level == qxLog::Error && reason.isEmpty())
            reason = qxText::fromUtf8(line);
    });
    const bool isRead = session.readDocument(document);
    qxLog::removeListener(listener);
    if (!isRead && reason.isEmpty())
        reason = QStringLiteral("the bytes are no text in UTF-8");
    return isRead;
}

/// Looks at the document beside the scene as the file holds it: reading the document would already
/// mend some of it.
qxFindings lintScene(qxSession &session, const QByteArray &document)
{
    qxFindings findings = qxLinter::lint(document, compile);
    QString reason;
    const bool isKnown = !findings.isEmpty() && findings.first().code == qxCode::UnreadableDocument;
    if (!isKnown && !isAccepted(session, document, reason))
        findings.prepend({qxCode::UnreadableDocument, reason, QString(), 1, 1, 0, {}, {}});
    return findings;
}

int runLint(const QCommandLineParser &parser)
{
    const bool json = parser.isSet(QStringLiteral("json"));
    if (json && parser.isSet(QStringLiteral("junit")))
        return qxCommands::fail(QStringLiteral("--json and --junit do not go together"), WrongUse);
    const QString file = parser.positionalArguments().first();
    qxSession session(parser.isSet(QStringLiteral("trace")));
    if (!session.openScene(file) || !session.hasRoomFor(session.file().variantsDocument()))
        return WorkFailed;
    qxFindings findings;
    if (!session.file().variantsDocument().isEmpty())
        findings = lintScene(session, session.file().variantsDocument());
    else if (session.open(file)) // The file's own material variants are as good as a document.
        findings = qxLinter::lint(qxVariantWriter().write(), compile);

    if (json)
        qxLintReport::printJson(file, findings);
    else if (parser.isSet(QStringLiteral("junit")))
        qxLintReport::printJUnit(file, findings);
    else
        qxLintReport::print(findings);
    return qxLintReport::count(findings, qxSeverity::Error) == 0 ? Success : WorkFailed;
}

} // namespace

const qxCommand qxCommands::lint = {
    "lint",      "FILE", "Finds what is wrong, or hardly meant, in variants and sets.", 1, 1,
    lintOptions, runLint};
