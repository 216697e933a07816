#include "qxShardOptions.h"

#include "Session/qxShardPlan.h"
#include "qxCommand.h"
#include "qxValueKind.h"

#include <QCommandLineParser>
#include <QDir>
#include <QRegularExpression>

namespace {

const QString parts = QStringLiteral("parts");
const QString plan = QStringLiteral("plan");
const QString shard = QStringLiteral("shard");

int wrongUse(const QString &reason)
{
    return qxCommands::fail(reason, WrongUse);
}

/// 0 for what is no such number.
int numberOf(const QString &text)
{
    static const QRegularExpression form(QStringLiteral("^\\d{1,5}$"));
    const int number = form.match(text).hasMatch() ? text.toInt() : 0;
    return number <= qxShardPlan::mostShards ? number : 0;
}

/// The option of them that is given; empty if none is.
QString given(const QCommandLineParser &parser, const QStringList &options)
{
    for (const QString &option : options) {
        if (parser.isSet(option))
            return option;
    }
    return QString();
}

} // namespace

QList<QCommandLineOption> qxShardOptions::all()
{
    return {
        {parts,
         QStringLiteral("Takes what --shard has made in this folder instead of making it here."),
         QStringLiteral("DIR")},
        {plan,
         QStringLiteral("With --parts: shares the work out to N shards, writes the plan to DIR, "
                        "and tells what is missing there and what it will take."),
         QStringLiteral("N")},
        {shard,
         QStringLiteral("With --parts: does what the plan has for shard I of N and is missing in "
                        "DIR; without a plan it makes one."),
         QStringLiteral("I/N")},
    };
}

QCommandLineOption qxShardOptions::json()
{
    return {QStringLiteral("json"),
            QStringLiteral("With --plan or --shard: writes JSON for other programs.")};
}

int qxShardOptions::read(const QCommandLineParser &parser, const QStringList &outputs)
{
    const bool plans = parser.isSet(plan);
    const bool shares = parser.isSet(shard);
    folder = parser.value(parts);
    if (plans && shares)
        return wrongUse(QStringLiteral("--plan and --shard do not go together"));
    if ((plans || shares) && folder.isEmpty())
        return wrongUse(QStringLiteral("--%1 needs --parts DIR").arg(plans ? plan : shard));
    if (folder.isEmpty())
        return Success;
    task = plans ? Plan : shares ? Shard : Gather;
    const QString value = parser.value(plans ? plan : shard);
    count = numberOf(shares ? value.section(QLatin1Char('/'), 1) : value);
    number = shares ? numberOf(value.section(QLatin1Char('/'), 0, 0)) : 0;
    if (plans && count == 0)
        return wrongUse(QStringLiteral("--plan is a number of shards from 1 to %1, not \"%2\"")
                            .arg(qxShardPlan::mostShards)
                            .arg(value));
    if (shares && (number == 0 || number > count))
        return wrongUse(QStringLiteral("--shard is I/N, such as 3/8, with I from 1 to N and N up "
                                       "to %1, not \"%2\"")
                            .arg(qxShardPlan::mostShards)
                            .arg(value));
    const QString output = makesParts() ? given(parser, outputs) : QString();
    if (!output.isEmpty())
        return wrongUse(
            QStringLiteral("--%1 and --%2 do not go together").arg(output, plans ? plan : shard));
    if (makesParts())
        return qxValueKinds::checkFolder(folder);
    return QDir(folder).exists()
        ? Success
        : qxCommands::fail(QStringLiteral("%1: the folder does not exist").arg(folder));
}
