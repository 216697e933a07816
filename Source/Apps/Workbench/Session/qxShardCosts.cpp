#include "Session/qxShardCosts.h"

#include "Report/qxStreams.h"
#include "qxLog.h"
#include "qxText.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSysInfo>

#include <sys/resource.h>

#include <algorithm>
#include <unistd.h>

namespace {

constexpr int WriteMilliseconds = 30000;

const QString commandKey = QStringLiteral("command");
const QString loadKey = QStringLiteral("loadSeconds");
const QString peakKey = QStringLiteral("peakBytes");
const QString itemsKey = QStringLiteral("items");
const QString itemNameKey = QStringLiteral("name");
const QString productKey = QStringLiteral("product");
const QString secondsKey = QStringLiteral("seconds");

QString folderIn(const QString &parts)
{
    return QDir(parts).filePath(QStringLiteral("costs"));
}

} // namespace

qxShardCosts::qxShardCosts(const QString &folder, const QStringList &command)
{
    const QDir costs(folderIn(folder));
    const QFileInfoList files =
        costs.entryInfoList({QStringLiteral("*.json")}, QDir::Files, QDir::Time | QDir::Reversed);
    for (const QFileInfo &info : files) {
        QFile file(info.filePath());
        if (file.open(QIODevice::ReadOnly))
            take(file.readAll(), command);
    }
}

void qxShardCosts::take(const QByteArray &json, const QStringList &command)
{
    const QJsonObject costs = QJsonDocument::fromJson(json).object();
    if (costs[commandKey].toArray() != QJsonArray::fromStringList(command))
        return;
    m_loadSeconds = std::max(m_loadSeconds, costs[loadKey].toDouble());
    m_peakBytes = std::max(m_peakBytes, qint64(costs[peakKey].toDouble()));
    for (const QJsonValue &item : costs[itemsKey].toArray()) {
        const double seconds = item[secondsKey].toDouble(-1);
        if (seconds < 0)
            continue;
        m_ofProducts[item[productKey].toString().toLatin1()] = seconds;
        m_ofNames[item[itemNameKey].toString()] = seconds;
    }
}

double qxShardCosts::seconds(const QByteArray &product, const QString &name) const
{
    return m_ofProducts.value(product, m_ofNames.value(name, -1));
}

/// Goes over the gaps between known items: the first half is like what is before, the rest like
/// what is behind.
void qxShardCosts::fill(QVector<double> &seconds)
{
    int known = -1;
    for (int place = 0; place <= seconds.size(); ++place) {
        if (place < seconds.size() && seconds[place] < 0)
            continue;
        for (int gap = known + 1; gap < place; ++gap) {
            const bool isLikeBefore =
                known >= 0 && (place == seconds.size() || gap - known <= place - gap);
            seconds[gap] = isLikeBefore  ? seconds[known]
                : place < seconds.size() ? seconds[place]
                                         : 0;
        }
        known = place;
    }
}

qxShardCostLog::qxShardCostLog(const QString &folder, const QStringList &command,
                               double loadSeconds)
    : m_path(QDir(folderIn(folder))
                 .filePath(QStringLiteral("%1-%2-%3.json")
                               .arg(QSysInfo::machineHostName())
                               .arg(getpid())
                               .arg(QDateTime::currentMSecsSinceEpoch()))),
      m_command(command), m_loadSeconds(loadSeconds)
{
    m_sinceWritten.start();
}

qxShardCostLog::~qxShardCostLog()
{
    if (!m_items.isEmpty())
        write();
}

void qxShardCostLog::add(const QString &name, const QByteArray &product, double seconds)
{
    m_items += QJsonObject{
        {itemNameKey, name}, {productKey, QString::fromLatin1(product)}, {secondsKey, seconds}};
    if (m_sinceWritten.elapsed() < WriteMilliseconds)
        return;
    write();
    m_sinceWritten.restart();
}

/// The work goes on without it.
void qxShardCostLog::write()
{
    const QJsonObject costs{{commandKey, QJsonArray::fromStringList(m_command)},
                            {loadKey, m_loadSeconds},
                            {peakKey, double(peakBytes())},
                            {itemsKey, m_items}};
    QDir().mkpath(QFileInfo(m_path).path());
    const QString flaw = qxStreams::writeFile(m_path, QJsonDocument(costs).toJson());
    if (!flaw.isEmpty())
        qxLog::warning("%s: %s", qxText::toUtf8(m_path).c_str(), qxText::toUtf8(flaw).c_str());
}

qint64 qxShardCostLog::peakBytes()
{
    rusage usage = {};
    getrusage(RUSAGE_SELF, &usage);
    return qint64(usage.ru_maxrss) * 1024;
}
