#include "Rename/qxRegistryRename.h"
#include "Report/qxOutput.h"
#include "Session/qxEditedDocument.h"
#include "qxCommand.h"
#include "qxRegistryDocument.h"
#include "qxSuggestions.h"

#include <QCommandLineParser>
#include <QJsonArray>
#include <QJsonObject>

namespace {

QJsonArray notesOf(const std::vector<qxRenameNote> &notes, bool isChange)
{
    QJsonArray array;
    for (const qxRenameNote &each : notes) {
        QJsonObject object{
            {QStringLiteral("place"), each.place},
            {isChange ? QStringLiteral("before") : QStringLiteral("text"), each.before}};
        if (isChange)
            object[QStringLiteral("after")] = each.after;
        array += object;
    }
    return array;
}

/// One rename by the command line.
class RenameRun {
public:
    explicit RenameRun(const QCommandLineParser &parser)
        : m_parser(parser), m_edited(parser.isSet(QStringLiteral("trace"))),
          m_word(parser.positionalArguments()[1])
    {
        m_request.before = parser.positionalArguments()[2];
        m_request.after = parser.positionalArguments()[3];
        m_request.owner = parser.value(QStringLiteral("of"));
    }

    int run();

private:
    bool isDry() const { return m_parser.isSet(QStringLiteral("dry-run")); }
    qxRegistryRename::Outcome renameDocument();
    void print(const qxRenameImpact &impact, int objects) const;

    const QCommandLineParser &m_parser;
    qxEditedDocument m_edited;
    const QString m_word;
    qxRenameRequest m_request;
};

/// By the names alone.
qxRegistryRename::Outcome RenameRun::renameDocument()
{
    qxRegistryRename::Outcome outcome;
    outcome.refusal = qxRenameWords::completeOwner(m_edited.document, m_request);
    if (outcome.refusal.isEmpty())
        outcome.refusal = qxRenameWords::refusal(m_edited.document, m_request, {}, m_word);
    if (outcome.refusal.isEmpty())
        outcome.impact = qxDocumentRename::apply(m_edited.document, m_request);
    return outcome;
}

void RenameRun::print(const qxRenameImpact &impact, int objects) const
{
    if (m_parser.isSet(QStringLiteral("json")))
        return qxOutput::json(
            QJsonObject{{QStringLiteral("kind"), m_word},
                        {QStringLiteral("before"), m_request.before},
                        {QStringLiteral("after"), m_request.after},
                        {QStringLiteral("objects"), objects},
                        {QStringLiteral("changed"), notesOf(impact.changed, true)},
                        {QStringLiteral("left"), notesOf(impact.left, false)}});
    QString counts = QStringLiteral("places in variants and sets: %1").arg(impact.changed.size());
    if (objects > 0)
        counts = QStringLiteral("objects in the scene: %1, %2").arg(objects).arg(counts);
    qxOutput::line(QStringLiteral("%1 \"%2\" -> \"%3\" (%4)")
                       .arg(m_word, m_request.before, m_request.after, counts));
    QList<QStringList> rows;
    for (const qxRenameNote &each : impact.changed)
        rows += {QLatin1String("  ") + each.place,
                 QStringLiteral("%1 -> %2").arg(each.before, each.after)};
    qxOutput::table(rows);
    if (impact.left.empty())
        return;
    qxOutput::line(QStringLiteral("not changed, look here:"));
    rows.clear();
    for (const qxRenameNote &each : impact.left)
        rows += {QLatin1String("  ") + each.place, each.before};
    qxOutput::table(rows);
}

int RenameRun::run()
{
    const bool isSaved = m_parser.isSet(QStringLiteral("save"));
    if (!qxRenameWords::take(m_word, m_request))
        return qxCommands::fail(QStringLiteral("nothing is of the kind \"%1\"").arg(m_word)
                                    + qxSuggestions::question(m_word, qxRenameWords::all()),
                                WrongUse);
    if (isSaved == isDry())
        return qxCommands::fail(QStringLiteral("rename needs either --save OUT or --dry-run"),
                                WrongUse);
    if (!m_edited.open(m_parser.positionalArguments().first()) || !m_edited.maySave(m_parser))
        return WorkFailed;
    qxRegistryRename::Outcome outcome;
    if (m_edited.isScene()) {
        outcome = qxRegistryRename::apply(m_word, m_request, isDry());
        m_edited.document = qxRegistryDocument::current();
    } else {
        outcome = renameDocument();
    }
    if (!outcome.refusal.isEmpty())
        return qxCommands::fail(outcome.refusal);
    print(outcome.impact, outcome.scene ? outcome.scene->count() : 0);
    return m_edited.saveIfAsked(m_parser);
}

QList<QCommandLineOption> renameOptions()
{
    return {{QStringLiteral("of"),
             QStringLiteral("The variant that has the option, or the node that has the transform "
                            "state."),
             QStringLiteral("OWNER")},
            {QStringLiteral("dry-run"),
             QStringLiteral("Tells what would change, and changes nothing.")},
            qxEditedDocument::saveOption(),
            qxCommands::jsonOption(),
            qxCommands::traceOption()};
}

int runRename(const QCommandLineParser &parser)
{
    return RenameRun(parser).run();
}

} // namespace

const qxCommand qxCommands::rename = {
    "rename",
    "FILE KIND OLD NEW",
    "Renames something of a scene or its variants, and every place that names it.",
    4,
    4,
    renameOptions,
    runRename,
    "KIND is group, set, option, node, light, overlay, material, viewpoint or transform-state; "
    "node-variant, material-variant, light-variant, overlay-variant or transform-variant; and "
    "node-option and its like where several kinds of variants have the option."};
