#include "qxVariantWriter.h"

#include "Report/qxLintReport.h"
#include "Report/qxOutput.h"
#include "Report/qxStreams.h"
#include "Script/qxScriptCheck.h"
#include "Session/qxSession.h"
#include "qxCommand.h"
#include "qxLinter.h"
#include "qxLog.h"
#include "qxSharedReport.h"
#include "qxText.h"

#include <QCommandLineParser>
#include <QJsonArray>
#include <QJsonObject>

#include <vector>

namespace {

const QString findingsKey = QStringLiteral("findings");
const QString refusedKey = QStringLiteral("refused");

QList<QCommandLineOption> lintOptions()
{
    return QList<QCommandLineOption>{
               qxCommands::jsonOption(),
               {QStringLiteral("junit"), QStringLiteral("Writes JUnit XML for a build server.")},
               {QStringLiteral("report"), QStringLiteral("Writes the same to a file."),
                QStringLiteral("TXT|JSON|XML")},
               qxCommands::traceOption()}
    + qxShardOptions::all();
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
/// mend some of it. Without one the file's own material variants are as good as a document.
class Lint {
public:
    Lint(qxSession &session, const QString &file) : m_session(session), m_file(file) {}

    /// False, after saying why, when there is nothing to look at.
    bool open()
    {
        if (!m_session.openScene(m_file)
            || !m_session.hasRoomFor(m_session.file().variantsDocument()))
            return false;
        m_document = m_session.file().variantsDocument();
        m_isAccepted = m_document.isEmpty();
        if (!m_isAccepted)
            return true;
        const bool isOpen = m_session.open(m_file);
        m_document = qxVariantWriter().write();
        return isOpen;
    }

    /// What is found in a share; the first one also tells whether the reader refuses the document.
    QJsonObject part(const qxShare &share)
    {
        const qxFindings findings = qxLinter::lint(m_document, compile, share);
        QJsonObject part{{findingsKey, qxLintReport::toJson(findings)}};
        if (share.index > 0 || m_isAccepted || isUnreadable(findings))
            return part;
        m_isAccepted = isAccepted(m_session, m_document, m_reason);
        if (!m_isAccepted)
            part.insert(refusedKey, m_reason);
        return part;
    }

    static bool isUnreadable(const qxFindings &findings)
    {
        return !findings.isEmpty() && findings.first().code == qxCode::UnreadableDocument;
    }

private:
    qxSession &m_session;
    QString m_file;
    QByteArray m_document;
    bool m_isAccepted = false;
    QString m_reason;
};

/// The findings of all shares; what the reader refuses comes first.
bool gather(const qxSharedReport &work, const qxSharedReport::Make &make, qxFindings &findings)
{
    std::vector<qxFindings> shares;
    QString refused;
    const auto take = [&](const QJsonObject &part) {
        shares.push_back(qxLintReport::fromJson(part[findingsKey].toArray()));
        if (part.contains(refusedKey))
            refused = part[refusedKey].toString();
    };
    if (!work.takeAll(make, take))
        return false;
    findings = qxLinter::merge(shares);
    if (!refused.isEmpty() && !Lint::isUnreadable(findings))
        findings.prepend({qxCode::UnreadableDocument, refused, QString(), 1, 1, 0, {}, {}});
    return true;
}

int runLint(const QCommandLineParser &parser)
{
    const bool json = parser.isSet(QStringLiteral("json"));
    const bool isJUnit = parser.isSet(QStringLiteral("junit"));
    if (json && isJUnit)
        return qxCommands::fail(QStringLiteral("--json and --junit do not go together"), WrongUse);
    qxSharedReport work(qxCommands::lint, parser);
    int code = work.read({QStringLiteral("report"), QStringLiteral("junit")});
    if (code == Success)
        code = work.begin();
    if (code != Success)
        return code;
    const QString file = parser.positionalArguments().first();
    qxSession session(parser.isSet(QStringLiteral("trace")));
    Lint lint(session, file);
    if (!work.isGathered() && !lint.open())
        return WorkFailed;
    const auto part = [&lint](const qxShare &share) { return lint.part(share); };
    if (work.makesParts())
        return work.makeParts(part);
    qxFindings findings;
    if (!gather(work, part, findings))
        return WorkFailed;

    const QByteArray text = json ? qxLintReport::json(file, findings)
        : isJUnit                ? qxLintReport::jUnit(file, findings)
                                 : qxLintReport::text(findings);
    qxOutput::bytes(text);
    const QString report = parser.value(QStringLiteral("report"));
    if (!report.isEmpty() && !qxStreams::isStandard(report) && !qxStreams::write(report, text))
        return WorkFailed;
    return qxLintReport::count(findings, qxSeverity::Error) == 0 ? Success : WorkFailed;
}

} // namespace

const qxCommand qxCommands::lint = {
    "lint",      "FILE", "Finds what is wrong, or hardly meant, in variants and sets.", 1, 1,
    lintOptions, runLint};
