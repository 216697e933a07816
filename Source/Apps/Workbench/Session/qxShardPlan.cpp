#include "Session/qxShardPlan.h"

#include <QCryptographicHash>
#include <QFile>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QSet>
#include <queue>

#include <algorithm>
#include <functional>
#include <utility>
#include <vector>

namespace {

constexpr int Format = 1;
constexpr double Shortest = 0.001; ///< seconds; where nothing is known, all get as many

/// Several items may be of one product.
struct Unit {
    const qxShardPlan::Item *item;
    bool isThere;
};

/// What is missing before what is there; the longest first.
bool isBefore(const Unit &one, const Unit &other)
{
    if (one.isThere != other.isThere)
        return other.isThere;
    if (one.item->seconds != other.item->seconds)
        return one.item->seconds > other.item->seconds;
    return one.item->name < other.item->name;
}

QJsonObject toJson(const qxShardPlan::File &file)
{
    return {{QStringLiteral("path"), file.path},
            {QStringLiteral("sha256"), QString::fromLatin1(file.sha256)}};
}

qxShardPlan::File fileFrom(const QJsonValue &json)
{
    return {json[QStringLiteral("path")].toString(),
            json[QStringLiteral("sha256")].toString().toLatin1()};
}

/// Products become names of files.
bool isProduct(const QByteArray &name)
{
    static const QRegularExpression form(QStringLiteral("^[0-9a-f]{16,128}$"));
    return form.match(QString::fromLatin1(name)).hasMatch();
}

} // namespace

void qxShardPlan::share(const std::function<bool(const QByteArray &product)> &isThere)
{
    std::vector<Unit> units;
    QSet<QByteArray> known;
    for (const Item &item : std::as_const(items)) {
        if (!known.contains(item.product))
            units.push_back({&item, isThere(item.product)});
        known.insert(item.product);
    }
    std::sort(units.begin(), units.end(), isBefore);

    typedef std::pair<double, int> Load; // of a shard
    std::priority_queue<Load, std::vector<Load>, std::greater<Load>> loads;
    for (int shard = 1; shard <= shards; ++shard)
        loads.push({0.0, shard});
    QHash<QByteArray, int> shardOf;
    for (const Unit &unit : units) {
        const Load least = loads.top();
        loads.pop();
        loads.push({least.first + std::max(unit.item->seconds, Shortest), least.second});
        shardOf[unit.item->product] = least.second;
    }
    for (Item &item : items)
        item.shard = shardOf[item.product];
}

QVector<double>
qxShardPlan::secondsOfShards(const std::function<bool(const QByteArray &product)> &isThere) const
{
    QVector<double> seconds(shards, 0.0);
    QSet<QByteArray> known;
    for (const Item &item : items) {
        if (!known.contains(item.product) && !isThere(item.product))
            seconds[item.shard - 1] += item.seconds;
        known.insert(item.product);
    }
    return seconds;
}

QByteArray qxShardPlan::toJson() const
{
    QJsonArray others;
    for (const File &file : needs)
        others += ::toJson(file);
    QJsonArray list;
    for (const Item &item : items)
        list += QJsonObject{{QStringLiteral("name"), item.name},
                            {QStringLiteral("product"), QString::fromLatin1(item.product)},
                            {QStringLiteral("seconds"), item.seconds},
                            {QStringLiteral("shard"), item.shard}};
    const QJsonObject measured{{QStringLiteral("loadSeconds"), loadSeconds},
                               {QStringLiteral("peakBytes"), double(peakBytes)}};
    const QJsonObject plan{{QStringLiteral("format"), Format},
                           {QStringLiteral("program"), program},
                           {QStringLiteral("command"), QJsonArray::fromStringList(command)},
                           {QStringLiteral("file"), ::toJson(scene)},
                           {QStringLiteral("needs"), others},
                           {QStringLiteral("shards"), shards},
                           {QStringLiteral("measured"), measured},
                           {QStringLiteral("scriptsFailed"), scriptsFailed},
                           {QStringLiteral("items"), list}};
    return QJsonDocument(plan).toJson();
}

QString qxShardPlan::read(const QByteArray &json)
{
    const QJsonObject plan = QJsonDocument::fromJson(json).object();
    if (plan.isEmpty())
        return QStringLiteral("it is no plan");
    if (plan[QStringLiteral("format")].toInt() != Format)
        return QStringLiteral("it is a plan of another version of the program");
    program = plan[QStringLiteral("program")].toString();
    for (const QJsonValue &word : plan[QStringLiteral("command")].toArray())
        command += word.toString();
    scene = fileFrom(plan[QStringLiteral("file")]);
    for (const QJsonValue &file : plan[QStringLiteral("needs")].toArray())
        needs += fileFrom(file);
    shards = plan[QStringLiteral("shards")].toInt();
    const QJsonValue measured = plan[QStringLiteral("measured")];
    loadSeconds = measured[QStringLiteral("loadSeconds")].toDouble();
    peakBytes = qint64(measured[QStringLiteral("peakBytes")].toDouble());
    scriptsFailed = plan[QStringLiteral("scriptsFailed")].toBool();
    bool isSound = !command.isEmpty() && shards >= 1 && shards <= mostShards;
    for (const QJsonValue &each : plan[QStringLiteral("items")].toArray()) {
        items.append({each[QStringLiteral("name")].toString(),
                      each[QStringLiteral("product")].toString().toLatin1(),
                      each[QStringLiteral("seconds")].toDouble(),
                      each[QStringLiteral("shard")].toInt()});
        const Item &item = items.last();
        isSound = isSound && isProduct(item.product) && item.shard >= 1 && item.shard <= shards;
    }
    return isSound ? QString() : QStringLiteral("it is no sound plan");
}

QByteArray qxShardPlan::sha256(const QString &path)
{
    QFile file(path);
    QCryptographicHash hash(QCryptographicHash::Sha256);
    return file.open(QIODevice::ReadOnly) && hash.addData(&file) ? hash.result().toHex()
                                                                 : QByteArray();
}
