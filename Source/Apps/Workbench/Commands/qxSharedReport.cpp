#include "qxSharedReport.h"

#include "Session/qxShardCosts.h"
#include "qxCommand.h"

#include <QCryptographicHash>
#include <QJsonDocument>

namespace {

constexpr int FewestSamples = 64; ///< a share that is a sample is no larger

/// Names that sort like their numbers.
QString nameOf(const qxShare &share)
{
    const int digits = int(QString::number(share.count).size());
    return QStringLiteral("share %1 of %2")
        .arg(share.index + 1, digits, 10, QLatin1Char('0'))
        .arg(share.count);
}

} // namespace

/// A share depends on the files as they are; there is no telling what an edit of them leaves alone.
QVector<qxShardPlan::Item> qxSharedReport::items(const Make &make) const
{
    const qxShardPlan &plan = m_work.plan();
    QCryptographicHash files(QCryptographicHash::Sha256);
    files.addData(qxSharedWork::program().toUtf8());
    files.addData(plan.command.join(QLatin1Char(' ')).toUtf8());
    files.addData(plan.scene.sha256);
    for (const qxShardPlan::File &file : plan.needs)
        files.addData(file.sha256);

    const qxShardCosts costs(m_work.folder().path(), m_work.command());
    const int count = m_work.options().count;
    QVector<qxShardPlan::Item> items;
    double sample = -1;
    for (qxShare share{0, count}; share.index < count; ++share.index) {
        QCryptographicHash product(QCryptographicHash::Sha256);
        product.addData(files.result());
        product.addData(nameOf(share).toUtf8());
        const QByteArray hex = product.result().toHex();
        double seconds = costs.seconds(hex, nameOf(share));
        if (seconds < 0 && sample < 0) {
            const int samples = std::max(count, FewestSamples);
            QElapsedTimer timer;
            timer.start();
            make({0, samples});
            sample = double(timer.nsecsElapsed()) / 1e9 * samples / count;
        }
        items.append({nameOf(share), hex, seconds < 0 ? sample : seconds});
    }
    return items;
}

int qxSharedReport::makeParts(const Make &make)
{
    m_work.endLoading();
    if (m_work.needsPlan()) {
        const int code = m_work.share(items(make));
        if (code != Success)
            return code;
    }
    return m_work.options().task == qxShardOptions::Plan ? m_work.tellPlan() : makeShard(make);
}

int qxSharedReport::makeShard(const Make &make)
{
    const QVector<qxShardPlan::Item> &all = m_work.plan().items;
    qxShardCostLog costs(m_work.folder().path(), m_work.command(), m_work.loadSeconds());
    int made = 0;
    int kept = 0;
    for (qxShare share{0, all.size()}; share.index < share.count; ++share.index) {
        const qxShardPlan::Item &item = all[share.index];
        if (item.shard != m_work.options().number)
            continue;
        if (m_work.folder().holds(item.product)) {
            ++kept;
            continue;
        }
        QElapsedTimer timer;
        timer.start();
        const QJsonObject part = make(share);
        if (part.isEmpty() || !m_work.folder().write(item.product, QJsonDocument(part).toJson()))
            return WorkFailed;
        costs.add(item.name, item.product, double(timer.nsecsElapsed()) / 1e9);
        ++made;
    }
    return m_work.tellShard(made, kept);
}

bool qxSharedReport::takeAll(const Make &make, const Take &take) const
{
    if (!isGathered()) {
        const QJsonObject whole = make(qxShare());
        take(whole);
        return !whole.isEmpty();
    }
    for (const qxShardPlan::Item &item : m_work.plan().items) {
        const QByteArray part = m_work.folder().read(item.product);
        if (part.isEmpty())
            return false;
        take(QJsonDocument::fromJson(part).object());
    }
    return true;
}
