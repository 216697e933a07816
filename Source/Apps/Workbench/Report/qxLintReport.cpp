#include "Report/qxLintReport.h"

#include "Core/qxVisibleText.h"
#include "qxOutput.h"

#include <QHash>
#include <QJsonArray>
#include <QJsonObject>
#include <QXmlStreamWriter>

#include <algorithm>

namespace {

const QString codeKey = QStringLiteral("code");
const QString messageKey = QStringLiteral("message");
const QString pathKey = QStringLiteral("path");
const QString lineKey = QStringLiteral("line");
const QString columnKey = QStringLiteral("column");
const QString moreKey = QStringLiteral("more");

QString placeOf(const qxFinding &finding)
{
    return QStringLiteral("%1:%2").arg(finding.line).arg(finding.column);
}

QString counted(int count, const char *word)
{
    return QStringLiteral("%1 %2%3").arg(count).arg(QLatin1String(word),
                                                    count == 1 ? QString() : QStringLiteral("s"));
}

/// A line of its own for findings that are not listed.
QString moreOf(const qxFinding &finding)
{
    return finding.more == 0 ? QString()
                             : QStringLiteral("and %1 more of %2\n")
                                   .arg(finding.more)
                                   .arg(qxCheckCodes::id(finding.code));
}

/// Characters that no XML can hold may stand in names; a carriage return would come back as a line
/// break.
QString forXml(QString text)
{
    const auto isUnfit = [](QChar each) {
        const bool isBlank = each == QLatin1Char('\t') || each == QLatin1Char('\n');
        return (each < QLatin1Char(' ') && !isBlank) || each.unicode() >= 0xFFFE;
    };
    std::replace_if(text.begin(), text.end(), isUnfit, QChar(QChar::ReplacementCharacter));
    return text;
}

QString lines(const qxFindings &findings)
{
    QString text;
    for (const qxFinding &each : findings)
        text += QStringLiteral("%1: %2 (%3)\n").arg(placeOf(each), each.message, each.path)
            + moreOf(each);
    return forXml(text);
}

void writeCase(QXmlStreamWriter &xml, const qxCodeRow &row, const qxFindings &found)
{
    xml.writeStartElement(QStringLiteral("testcase"));
    xml.writeAttribute(QStringLiteral("classname"), QStringLiteral("workbench.lint"));
    xml.writeAttribute(
        QStringLiteral("name"),
        QStringLiteral("%1 %2").arg(QLatin1String(row.id), QLatin1String(row.title)));
    xml.writeAttribute(QStringLiteral("time"), QStringLiteral("0"));
    if (!found.isEmpty() && row.severity == qxSeverity::Error) {
        xml.writeStartElement(QStringLiteral("failure"));
        xml.writeAttribute(QStringLiteral("message"), forXml(found.first().message));
        xml.writeAttribute(QStringLiteral("type"), QLatin1String(row.id));
        xml.writeCharacters(lines(found));
        xml.writeEndElement();
    } else if (!found.isEmpty()) {
        xml.writeTextElement(QStringLiteral("system-out"), lines(found));
    }
    xml.writeEndElement();
}

qxFindings only(const qxFindings &findings, qxCode code)
{
    qxFindings result;
    std::copy_if(findings.begin(), findings.end(), std::back_inserter(result),
                 [code](const qxFinding &each) { return each.code == code; });
    return result;
}

/// The codes of the linter; the rest belong to explanations.
QVector<qxCodeRow> lintCodes()
{
    QVector<qxCodeRow> rows;
    for (const qxCodeRow &row : qxCheckCodes::all()) {
        if (row.code < qxCode::SkippedNoVariant)
            rows += row;
    }
    return rows;
}

} // namespace

int qxLintReport::count(const qxFindings &findings, qxSeverity severity)
{
    int count = 0;
    for (const qxFinding &each : findings)
        count += each.severity() == severity ? 1 + each.more : 0;
    return count;
}

QByteArray qxLintReport::text(const qxFindings &findings)
{
    QString text;
    for (const qxFinding &each : findings)
        text += QStringLiteral("%1: %2 %3: %4 (%5)\n")
                    .arg(placeOf(each), qxCheckCodes::word(each.severity()),
                         qxCheckCodes::id(each.code), each.message, each.path)
            + moreOf(each);
    if (findings.isEmpty())
        text += QStringLiteral("no findings\n");
    else
        text += QStringLiteral("%1, %2, %3\n")
                    .arg(counted(count(findings, qxSeverity::Error), "error"),
                         counted(count(findings, qxSeverity::Warning), "warning"),
                         counted(count(findings, qxSeverity::Hint), "hint"));
    return qxVisibleText::lines(text).toUtf8();
}

QJsonArray qxLintReport::toJson(const qxFindings &findings)
{
    QJsonArray array;
    for (const qxFinding &each : findings) {
        QJsonObject object{{codeKey, qxCheckCodes::id(each.code)},
                           {QStringLiteral("severity"), qxCheckCodes::word(each.severity())},
                           {messageKey, each.message},
                           {pathKey, each.path},
                           {lineKey, each.line},
                           {columnKey, each.column}};
        if (each.more > 0)
            object.insert(moreKey, each.more);
        array += object;
    }
    return array;
}

qxFindings qxLintReport::fromJson(const QJsonArray &array)
{
    QHash<QString, qxCode> codes;
    for (const qxCodeRow &row : qxCheckCodes::all())
        codes.insert(QLatin1String(row.id), row.code);
    qxFindings findings;
    for (const QJsonValue &each : array)
        findings.append({codes.value(each[codeKey].toString(), qxCode::UnreadableDocument),
                         each[messageKey].toString(),
                         each[pathKey].toString(),
                         each[lineKey].toInt(),
                         each[columnKey].toInt(),
                         each[moreKey].toInt(),
                         {},
                         {}});
    return findings;
}

QByteArray qxLintReport::json(const QString &file, const qxFindings &findings)
{
    return qxOutput::jsonText(
        QJsonObject{{QStringLiteral("file"), file},
                    {QStringLiteral("findings"), toJson(findings)},
                    {QStringLiteral("errors"), count(findings, qxSeverity::Error)},
                    {QStringLiteral("warnings"), count(findings, qxSeverity::Warning)},
                    {QStringLiteral("hints"), count(findings, qxSeverity::Hint)}});
}

QByteArray qxLintReport::jUnit(const QString &file, const qxFindings &findings)
{
    const QVector<qxCodeRow> rows = lintCodes();
    QStringList failed;
    for (const qxFinding &each : findings) {
        if (each.severity() == qxSeverity::Error)
            failed += qxCheckCodes::id(each.code);
    }
    failed.removeDuplicates();

    QByteArray bytes;
    QXmlStreamWriter xml(&bytes);
    xml.setAutoFormatting(true);
    xml.writeStartDocument();
    xml.writeStartElement(QStringLiteral("testsuites"));
    xml.writeStartElement(QStringLiteral("testsuite"));
    xml.writeAttribute(QStringLiteral("name"), forXml(file));
    xml.writeAttribute(QStringLiteral("tests"), QString::number(rows.size()));
    xml.writeAttribute(QStringLiteral("failures"), QString::number(failed.size()));
    xml.writeAttribute(QStringLiteral("errors"), QStringLiteral("0"));
    xml.writeAttribute(QStringLiteral("skipped"), QStringLiteral("0"));
    xml.writeAttribute(QStringLiteral("time"), QStringLiteral("0"));
    for (const qxCodeRow &row : rows)
        writeCase(xml, row, only(findings, row.code));
    xml.writeEndDocument();
    return bytes;
}
