#include "Repair/qxDocumentRepair.h"
#include "Report/qxOutput.h"
#include "Session/qxEditedDocument.h"
#include "Session/qxFileVersion.h"
#include "qxCommand.h"
#include "qxSuggestions.h"

#include <QCommandLineParser>
#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>
#include <memory>

namespace {

QString scoreText(double score)
{
    return QString::number(score, 'f', 2);
}

QJsonObject objectOf(const qxBreak &broken, bool isRepaired)
{
    QJsonArray candidates;
    for (const qxRepairCandidate &each : broken.candidates)
        candidates += QJsonObject{{QStringLiteral("name"), each.name},
                                  {QStringLiteral("score"), each.score},
                                  {QStringLiteral("reason"), each.reason}};
    return {{QStringLiteral("key"), broken.key()},
            {QStringLiteral("name"), broken.name},
            {QStringLiteral("places"), QJsonArray::fromStringList(broken.places)},
            {isRepaired ? QStringLiteral("taken") : QStringLiteral("candidates"), candidates}};
}

/// One repair by the command line.
class RepairRun {
public:
    explicit RepairRun(const QCommandLineParser &parser)
        : m_parser(parser), m_edited(parser.isSet(QStringLiteral("trace")))
    {
    }

    int run();

private:
    bool open();
    bool takeHistory(const QString &file);
    bool takeChoices();
    bool choose(const QString &choice);
    void print(const std::vector<qxBreak> &left) const;
    void printJson(const std::vector<qxBreak> &left) const;

    const QCommandLineParser &m_parser;
    qxEditedDocument m_edited;
    qxFileVersion m_version;
    std::unique_ptr<qxRepairHistory> m_history;
    std::vector<qxBreak> m_repaired;
};

/// The old scene comes first: there is one at a time.
bool RepairRun::open()
{
    const QString file = m_parser.positionalArguments().first();
    if (m_parser.isSet(QStringLiteral("history")) && !takeHistory(file))
        return false;
    if (!m_edited.open(file) || !m_edited.maySave(m_parser))
        return false;
    if (!m_edited.isScene())
        qxOutput::error(QStringLiteral("%1: only in a scene names can be looked up").arg(file));
    return m_edited.isScene();
}

bool RepairRun::takeHistory(const QString &file)
{
    if (!m_version.find(file, m_parser.value(QStringLiteral("history")))) {
        qxOutput::error(m_version.errorString());
        return false;
    }
    if (!m_edited.open(m_version.path()))
        return false;
    if (m_edited.isScene())
        m_history = std::make_unique<qxRepairHistory>(
            qxRepairHistory{m_edited.document, qxSceneOutline::take()});
    return true;
}

/// Choices may come up by others, so each looks anew.
bool RepairRun::takeChoices()
{
    const QStringList choices = m_parser.values(QStringLiteral("choose"));
    return std::all_of(choices.begin(), choices.end(),
                       [this](const QString &each) { return choose(each); });
}

bool RepairRun::choose(const QString &choice)
{
    QStringList keys;
    for (const qxBreak &each : qxDocumentRepair::find(m_edited.document, m_history.get())) {
        keys += each.key();
        const QString start = each.key() + QLatin1Char('=');
        if (!choice.startsWith(start))
            continue;
        const QString name = choice.mid(start.size());
        QStringList names;
        for (const qxRepairCandidate &candidate : each.candidates) {
            names += QLatin1Char('"') + candidate.name + QLatin1Char('"');
            if (candidate.name != name)
                continue;
            m_repaired.push_back(each);
            m_repaired.back().candidates = {candidate};
            qxDocumentRepair::apply(m_edited.document, {m_repaired.back()});
            return true;
        }
        qxOutput::error(
            QStringLiteral("%1 has no candidate \"%2\", but %3")
                .arg(each.key(), name,
                     names.isEmpty() ? QStringLiteral("none") : names.join(QLatin1String(", "))));
        return false;
    }
    qxOutput::error(
        keys.contains(choice)
            ? QStringLiteral("\"%1\" is broken; choose for it as in \"%1=CANDIDATE\"").arg(choice)
            : QStringLiteral("nothing broken is chosen by \"%1\"").arg(choice)
                + qxSuggestions::question(choice.section(QLatin1Char('='), 0, 0), keys));
    return false;
}

void RepairRun::printJson(const std::vector<qxBreak> &left) const
{
    QJsonArray repaired;
    QJsonArray broken;
    for (const qxBreak &each : m_repaired)
        repaired += objectOf(each, true);
    for (const qxBreak &each : left)
        broken += objectOf(each, false);
    qxOutput::json(
        QJsonObject{{QStringLiteral("repaired"), repaired}, {QStringLiteral("broken"), broken}});
}

void RepairRun::print(const std::vector<qxBreak> &left) const
{
    for (const qxBreak &each : m_repaired) {
        const qxRepairCandidate &taken = each.candidates.front();
        qxOutput::line(QStringLiteral("repaired %1 -> %2").arg(each.key(), taken.name));
        qxOutput::line(QStringLiteral("  %1: %2").arg(scoreText(taken.score), taken.reason));
        for (const QString &place : each.places)
            qxOutput::line(QLatin1String("  in ") + place);
    }
    for (const qxBreak &each : left) {
        qxOutput::line(QLatin1String("broken ") + each.key());
        for (const QString &place : each.places)
            qxOutput::line(QLatin1String("  in ") + place);
        QList<QStringList> rows;
        for (const qxRepairCandidate &candidate : each.candidates)
            rows += {QStringLiteral("  %1 %2").arg(scoreText(candidate.score), candidate.name),
                     candidate.reason};
        qxOutput::table(rows);
        if (rows.isEmpty())
            qxOutput::line(QStringLiteral("  nothing like it is there"));
    }
    qxOutput::line(
        QStringLiteral("repaired: %1, broken: %2").arg(m_repaired.size()).arg(left.size()));
    if (!m_repaired.empty() && !m_parser.isSet(QStringLiteral("save")))
        qxOutput::line(QStringLiteral("nothing is saved without --save OUT"));
}

int RepairRun::run()
{
    if (!open() || !takeChoices())
        return WorkFailed;
    if (m_parser.isSet(QStringLiteral("apply"))) {
        for (qxBreak &each : qxDocumentRepair::applyClear(m_edited.document, m_history.get()))
            m_repaired.push_back(std::move(each));
    }
    const std::vector<qxBreak> left = qxDocumentRepair::find(m_edited.document, m_history.get());
    if (m_parser.isSet(QStringLiteral("json")))
        printJson(left);
    else
        print(left);
    const int code = m_edited.saveIfAsked(m_parser);
    return code == Success && !left.empty() ? WorkFailed : code;
}

QList<QCommandLineOption> repairOptions()
{
    return {{QStringLiteral("apply"),
             QStringLiteral("Takes the candidates that are meant beyond doubt.")},
            {QStringLiteral("choose"),
             QStringLiteral("Takes this candidate, as in \"node:Roof=Dach\"; may be given several "
                            "times."),
             QStringLiteral("BROKEN=CANDIDATE")},
            {QStringLiteral("history"),
             QStringLiteral("An earlier version of FILE: a file, or a revision of git such as "
                            "HEAD~1."),
             QStringLiteral("VERSION")},
            qxCommands::saveOption(),
            qxCommands::jsonOption(),
            qxCommands::traceOption()};
}

int runRepair(const QCommandLineParser &parser)
{
    return RepairRun(parser).run();
}

} // namespace

const qxCommand qxCommands::repair = {
    "repair",
    "FILE",
    "Finds what variants and sets name in vain, and what may be meant.",
    1,
    1,
    repairOptions,
    runRepair,
    "Nothing is changed without --apply or --choose. The exit code is 1 when something is left "
    "that does not work."};
