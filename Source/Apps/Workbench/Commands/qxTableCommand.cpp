#include "Files/qxDocumentFile.h"
#include "Files/qxMemoryBudget.h"
#include "Report/qxDiffReport.h"
#include "Report/qxOutput.h"
#include "Report/qxStreams.h"
#include "Session/qxEditedDocument.h"
#include "Table/qxSetTable.h"
#include "Table/qxSetTableReader.h"
#include "qxCommand.h"
#include "qxDocumentXml.h"

#include <QCommandLineParser>

#include <algorithm>

namespace {

struct SeparatorWord {
    const char *word;
    char separator;
};

const SeparatorWord separatorWords[] = {{"comma", ','}, {"semicolon", ';'}, {"tab", '\t'}};

QList<QCommandLineOption> tableOptions()
{
    return {
        {QStringLiteral("out"),
         QStringLiteral("Writes the table to CSV; - is standard output, which is the default."),
         QStringLiteral("CSV")},
        {QStringLiteral("spreadsheet"),
         QStringLiteral("Writes it as office programs open it by double click, with what separates "
                        "cells in their language: where 0,5 is a half, a semicolon."),
         QStringLiteral("comma|semicolon|tab")},
        {QStringLiteral("in"),
         QStringLiteral("Edits the sets as CSV says, - for standard input; needs --save, or "
                        "--dry-run."),
         QStringLiteral("CSV")},
        qxEditedDocument::saveOption(),
        {QStringLiteral("dry-run"), QStringLiteral("Only tells what --in would change.")}};
}

/// Says so when there is not.
bool hasRoom(const QString &name, qint64 bytes)
{
    const qint64 limit = qxMemoryBudget::limit();
    if (bytes <= limit)
        return true;
    qxOutput::error(
        QStringLiteral("%1: %2 of memory are needed for the table, %3 are allowed "
                       "(--memory-limit)")
            .arg(name, qxMemoryBudget::text(double(bytes)), qxMemoryBudget::text(double(limit))));
    return false;
}

/// The document that the file holds.
bool load(const QString &path, qxDocumentFile &file, qxDocument &document)
{
    QString reason;
    if (!file.load(path))
        reason = file.errorString();
    else if (file.isScene() && file.document().isEmpty())
        reason = QStringLiteral("%1: the scene holds no variants document; \"workbench create %1 "
                                "--save OUT\" makes variants of what can vary in it")
                     .arg(path);
    else
        return qxEditedDocument::read(path, file.document(), document);
    qxOutput::error(reason);
    return false;
}

int exportTable(const QCommandLineParser &parser)
{
    qxSetTable::Form form;
    const QString word = parser.value(QStringLiteral("spreadsheet"));
    if (!word.isEmpty()) {
        const auto found = std::find_if(
            std::begin(separatorWords), std::end(separatorWords),
            [&word](const SeparatorWord &each) { return word == QLatin1String(each.word); });
        if (found == std::end(separatorWords))
            return qxCommands::fail(QStringLiteral("--spreadsheet is comma, semicolon or tab"),
                                    WrongUse);
        form = {found->separator, true};
    }
    const QString path = parser.positionalArguments().first();
    qxDocumentFile file;
    qxDocument document;
    if (!load(path, file, document) || !hasRoom(path, qxSetTable::mostBytes(document)))
        return WorkFailed;
    const QString out = parser.isSet(QStringLiteral("out")) ? parser.value(QStringLiteral("out"))
                                                            : QStringLiteral("-");
    if (qxSetTable::mostBytes(document) > INT_MAX)
        return qxCommands::fail(QStringLiteral("%1: a table of more than 2 GB").arg(path));
    return qxStreams::write(out, qxSetTable::write(document, form)) ? Success : WorkFailed;
}

int refuse(const QString &table, const qxSetTableReader::Reading &reading)
{
    for (const qxSetTableReader::Flaw &flaw : reading.flaws)
        qxOutput::error(flaw.cell.isEmpty()
                            ? QStringLiteral("%1: %2").arg(table, flaw.reason)
                            : QStringLiteral("%1: %2: %3").arg(table, flaw.cell, flaw.reason));
    const int count = int(reading.flaws.size()) + reading.furtherFlaws;
    return qxCommands::fail(
        QStringLiteral("%1: nothing is changed, because of %2")
            .arg(table,
                 count == 1 ? QStringLiteral("this") : QStringLiteral("%1 flaws").arg(count)));
}

/// What the table changes.
void report(const QString &path, const QString &table, const qxDocument &before,
            const qxSetTableReader::Reading &reading)
{
    qxFileComparison comparison;
    comparison.nameBefore = path;
    comparison.nameAfter =
        QStringLiteral("%1 with %2")
            .arg(path, qxStreams::isStandard(table) ? QStringLiteral("the table") : table);
    comparison.before = before;
    comparison.after = reading.document;
    comparison.variants = qxDocumentDiff::of(comparison.before, comparison.after);
    qxDiffReport::print(comparison, false);
    const int left = int(reading.document.sets.size()) - reading.rows;
    if (left > 0)
        qxOutput::line(left == 1
                           ? QStringLiteral("1 set without a row stays as it is")
                           : QStringLiteral("%1 sets without a row stay as they are").arg(left));
}

int save(qxDocumentFile &file, const qxDocument &document, const QCommandLineParser &parser)
{
    const QString out = parser.value(QStringLiteral("save"));
    const bool isSaved =
        file.save(out, qxDocumentXml::write(document), parser.isSet(QStringLiteral("force")));
    for (const QString &warning : file.warnings())
        qxOutput::error(QStringLiteral("%1: %2").arg(out, warning));
    return isSaved ? Success : qxCommands::fail(file.errorString());
}

int importTable(const QCommandLineParser &parser)
{
    const QString in = parser.value(QStringLiteral("in"));
    QByteArray table;
    const QString path = parser.positionalArguments().first();
    qxDocumentFile file;
    qxDocument document;
    if (!qxStreams::read(in, table) || !hasRoom(in, qxSetTableReader::mostMemory(table))
        || !load(path, file, document) || !qxEditedDocument::maySave(file, parser))
        return WorkFailed;
    const qxSetTableReader::Reading reading = qxSetTableReader::read(table, document);
    if (!reading.flaws.empty())
        return refuse(in, reading);
    report(path, in, document, reading);
    return parser.isSet(QStringLiteral("dry-run")) ? Success : save(file, reading.document, parser);
}

int runTable(const QCommandLineParser &parser)
{
    const bool in = parser.isSet(QStringLiteral("in"));
    const bool isDry = parser.isSet(QStringLiteral("dry-run"));
    const bool saves = parser.isSet(QStringLiteral("save"));
    if (in && (parser.isSet(QStringLiteral("out")) || parser.isSet(QStringLiteral("spreadsheet"))))
        return qxCommands::fail(QStringLiteral("--in does not go together with --out and "
                                               "--spreadsheet"),
                                WrongUse);
    if (in ? saves == isDry : saves || isDry)
        return qxCommands::fail(QStringLiteral("--in goes together with --save or --dry-run: "
                                               "--in CSV --save OUT"),
                                WrongUse);
    return in ? importTable(parser) : exportTable(parser);
}

} // namespace

const qxCommand qxCommands::table = {
    "table",
    "FILE",
    "Writes the sets as a table, a state in each cell, or edits them by one.",
    1,
    1,
    tableOptions,
    runTable,
    "Nothing is written when a cell is wrong; all that is wrong is told at once."};
