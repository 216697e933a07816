#include "qxSharedWork.h"

#include "Files/qxDocumentFile.h"
#include "Report/qxOutput.h"
#include "Script/qxScriptRunner.h"
#include "Session/qxNeededFiles.h"
#include "Session/qxShardCosts.h"
#include "qxCommand.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>
#include <numeric>

namespace {

constexpr int MostNames = 20; ///< that are listed

const QString environment = QStringLiteral("environment");

/// The options that no product depends on, and those about scripts: a plan says nobody's scripts
/// may run, and where others run than did for the plan, the fingerprints tell.
const QStringList &indifferent()
{
    static const QStringList names{
        QStringLiteral("parts"),   QStringLiteral("plan"),    QStringLiteral("shard"),
        QStringLiteral("json"),    QStringLiteral("junit"),   QStringLiteral("trace"),
        QStringLiteral("threads"), QStringLiteral("scripts"), QStringLiteral("no-scripts")};
    return names;
}

QString text(double seconds)
{
    return seconds < 10 ? QString::number(seconds, 'f', 1) : QString::number(seconds, 'f', 0);
}

} // namespace

qxSharedWork::qxSharedWork(const qxCommand &command, const QCommandLineParser &parser)
    : m_command(command), m_parser(parser), m_file(parser.positionalArguments().first())
{
    m_sinceStart.start();
}

QString qxSharedWork::program()
{
    return QStringLiteral("workbench ") + QCoreApplication::applicationVersion();
}

int qxSharedWork::read(const QStringList &outputs)
{
    m_outputs = outputs;
    const int code = m_options.read(m_parser, outputs);
    if (code != Success || m_options.makesParts())
        return code;
    const QCommandLineOption json = qxShardOptions::json();
    for (const QCommandLineOption &option : m_command.options()) {
        if (option.description() == json.description() && m_parser.isSet(option))
            return qxCommands::fail(QStringLiteral("--json needs --plan or --shard"), WrongUse);
    }
    return Success;
}

int qxSharedWork::begin(const qxProductForm &form)
{
    if (m_options.task == qxShardOptions::Whole)
        return Success;
    m_folder = qxPartsFolder(m_options.folder, form);
    const QStringList command = commandHere();
    const bool isToBeMade = m_options.task == qxShardOptions::Plan
        || (m_options.task == qxShardOptions::Shard && !m_folder.hasPlan());
    if (isToBeMade) {
        m_plan.command = command;
        lookAtFiles();
        return Success;
    }
    if (!m_folder.readPlan(m_plan))
        return WorkFailed;
    const int planCode = checkPlan(command);
    return planCode == Success && m_options.task == qxShardOptions::Gather ? checkProducts()
                                                                           : planCode;
}

QStringList qxSharedWork::commandHere() const
{
    QStringList words{QLatin1String(m_command.name)};
    for (const QCommandLineOption &option : m_command.options()) {
        const QString name = option.names().first();
        if (!m_parser.isSet(option) || m_outputs.contains(name) || indifferent().contains(name))
            continue;
        const QString word = QStringLiteral("--") + name;
        if (option.valueName().isEmpty())
            words += word;
        for (const QString &value : m_parser.values(option))
            words += {word, name == environment ? QFileInfo(value).absoluteFilePath() : value};
    }
    return words;
}

/// Before the scene is opened: if a file changes then, the plan is out of date, and nothing else.
void qxSharedWork::lookAtFiles()
{
    m_plan.scene = {QFileInfo(m_file).absoluteFilePath(), qxShardPlan::sha256(m_file)};
    qxDocumentFile scene;
    QStringList needs;
    if (scene.load(m_file)) // If not, opening it will tell why.
        needs = qxNeededFiles::of(scene.sceneJson());
    if (m_parser.optionNames().contains(environment))
        needs += QFileInfo(m_parser.value(environment)).absoluteFilePath();
    needs.removeDuplicates();
    const QDir home = QFileInfo(m_file).absoluteDir();
    for (const QString &path : qAsConst(needs))
        m_plan.needs.append({path, qxShardPlan::sha256(home.filePath(path))});
}

bool qxSharedWork::isUnchanged(const qxShardPlan::File &file) const
{
    const QString path = QFileInfo(m_file).absoluteDir().filePath(file.path);
    return qxShardPlan::sha256(path) == file.sha256;
}

/// Success, or why the plan is none for this work.
int qxSharedWork::checkPlan(const QStringList &command) const
{
    const auto refuse = [this](const QString &reason) {
        return qxCommands::fail(QStringLiteral("%1: %2").arg(m_folder.path(), reason));
    };
    if (m_plan.command != command)
        return refuse(
            QStringLiteral("the plan is for \"%1\", not for \"%2\"")
                .arg(m_plan.command.join(QLatin1Char(' ')), command.join(QLatin1Char(' '))));
    if (m_options.task == qxShardOptions::Shard && m_plan.shards != m_options.count)
        return refuse(QStringLiteral("the plan is for %1 shards, not for %2")
                          .arg(m_plan.shards)
                          .arg(m_options.count));
    const QString again = QStringLiteral("; --plan %1 plans anew, and keeps what still holds");
    if (m_plan.program != program())
        return refuse(
            QStringLiteral("the plan is one of %1, not of %2").arg(m_plan.program, program())
            + again.arg(m_plan.shards));
    if (!QFileInfo::exists(m_file))
        return qxCommands::fail(QStringLiteral("%1: the file does not exist").arg(m_file));
    QStringList changed;
    if (qxShardPlan::sha256(m_file) != m_plan.scene.sha256)
        changed += m_file;
    for (const qxShardPlan::File &file : m_plan.needs) {
        if (!isUnchanged(file))
            changed += file.path;
    }
    return changed.isEmpty() ? Success
                             : refuse(QStringLiteral("%1 has changed since the plan was made")
                                          .arg(changed.join(QStringLiteral(", ")))
                                      + again.arg(m_plan.shards));
}

/// Success, or which products are missing.
int qxSharedWork::checkProducts() const
{
    int missing = 0;
    for (const qxShardPlan::Item &item : m_plan.items) {
        if (m_folder.holds(item.product))
            continue;
        if (++missing <= MostNames)
            qxOutput::error(QStringLiteral("%1: \"%2\" of shard %3 is missing")
                                .arg(m_folder.path(), item.name)
                                .arg(item.shard));
    }
    if (missing == 0)
        return Success;
    return qxCommands::fail(QStringLiteral("%1: %2 of %3 are missing; nothing was written")
                                .arg(m_folder.path())
                                .arg(missing)
                                .arg(m_plan.items.size()));
}

int qxSharedWork::share(const QVector<qxShardPlan::Item> &items)
{
    const QStringList command = m_plan.command;
    const qxShardCosts costs(m_folder.path(), command);
    m_plan.program = program();
    m_plan.shards = m_options.count;
    m_plan.loadSeconds = costs.loadSeconds() > 0 ? costs.loadSeconds() : m_loadSeconds;
    m_plan.peakBytes = costs.peakBytes() > 0 ? costs.peakBytes() : qxShardCostLog::peakBytes();
    m_plan.scriptsFailed = qxScriptRunner::haveFailed();
    m_plan.items = items;
    for (const qxShardPlan::Item &item : items) {
        if (!m_there.contains(item.product) && m_folder.holds(item.product))
            m_there.insert(item.product);
    }
    m_plan.share([this](const QByteArray &product) { return m_there.contains(product); });
    if (m_options.task == qxShardOptions::Plan)
        return m_folder.writePlan(m_plan) ? Success : WorkFailed;
    return m_folder.addPlan(m_plan) ? checkPlan(command) : WorkFailed;
}

QVector<qxShardPlan::Item> qxSharedWork::itemsOfShard() const
{
    QVector<qxShardPlan::Item> items;
    QSet<QByteArray> known;
    for (const qxShardPlan::Item &item : m_plan.items) {
        if (item.shard == m_options.number && !known.contains(item.product))
            items += item;
        known.insert(item.product);
    }
    return items;
}

int qxSharedWork::tellPlan() const
{
    QVector<int> missing(m_plan.shards, 0);
    QSet<QByteArray> known;
    for (const qxShardPlan::Item &item : m_plan.items) {
        if (!known.contains(item.product) && !m_there.contains(item.product))
            ++missing[item.shard - 1];
        known.insert(item.product);
    }
    const QVector<double> seconds = m_plan.secondsOfShards(
        [this](const QByteArray &product) { return m_there.contains(product); });
    const int sum = std::accumulate(missing.begin(), missing.end(), 0);
    double longest = 0;
    QJsonArray tasks;
    for (int shard = 0; shard < m_plan.shards; ++shard) {
        const double each = missing[shard] == 0 ? 0 : m_plan.loadSeconds + seconds[shard];
        longest = std::max(longest, each);
        tasks += QJsonObject{{QStringLiteral("shard"), shard + 1},
                             {QStringLiteral("missing"), missing[shard]},
                             {QStringLiteral("seconds"), each}};
    }
    return print(QStringLiteral("%1 of %2 to be made by %3 shards; the longest takes about %4 s, "
                                "each %5 MB")
                     .arg(sum)
                     .arg(known.size())
                     .arg(m_plan.shards)
                     .arg(text(longest))
                     .arg(m_plan.peakBytes / 1000000),
                 QJsonObject{{QStringLiteral("items"), m_plan.items.size()},
                             {QStringLiteral("products"), known.size()},
                             {QStringLiteral("missing"), sum},
                             {QStringLiteral("shards"), m_plan.shards},
                             {QStringLiteral("loadSeconds"), m_plan.loadSeconds},
                             {QStringLiteral("seconds"), longest},
                             {QStringLiteral("bytes"), double(m_plan.peakBytes)},
                             {QStringLiteral("tasks"), tasks}});
}

int qxSharedWork::tellShard(int made, int kept) const
{
    return print(QStringLiteral("shard %1 of %2: %3 made, %4 kept")
                     .arg(m_options.number)
                     .arg(m_options.count)
                     .arg(made)
                     .arg(kept),
                 QJsonObject{{QStringLiteral("shard"), m_options.number},
                             {QStringLiteral("shards"), m_options.count},
                             {QStringLiteral("made"), made},
                             {QStringLiteral("kept"), kept},
                             {QStringLiteral("seconds"), seconds()},
                             {QStringLiteral("bytes"), double(qxShardCostLog::peakBytes())}});
}

int qxSharedWork::print(const QString &line, const QJsonObject &object) const
{
    if (m_parser.optionNames().contains(QStringLiteral("json")))
        qxOutput::json(object);
    else
        qxOutput::line(line);
    return Success;
}
