#pragma once

#include <QByteArray>
#include <QElapsedTimer>
#include <QHash>
#include <QJsonArray>
#include <QString>
#include <QVector>

struct qxShardPlan;

/// What the items of a command have taken in earlier processes.
class qxShardCosts {
public:
    /// Reads what the processes of this command have left in a folder of parts; the latest ones
    /// count. What is no such file is passed over.
    qxShardCosts(const QString &folder, const QStringList &command);

    /// Until the first item, the longest; 0 when nothing is known.
    double loadSeconds() const { return m_loadSeconds; }
    /// Of memory, the most; 0 when nothing is known.
    qint64 peakBytes() const { return m_peakBytes; }
    /// Of the product, else of what was called like the item; below 0 when nothing is known.
    double seconds(const QByteArray &product, const QString &name) const;

    /// Gives items of which nothing is known, those below 0, what the nearest known ones take.
    static void fill(QVector<double> &seconds);

private:
    void take(const QByteArray &json, const QStringList &command);

    double m_loadSeconds = 0;
    qint64 m_peakBytes = 0;
    QHash<QByteArray, double> m_ofProducts;
    QHash<QString, double> m_ofNames;
};

/// Notes what the items of this process take, in a file of its own in the folder of parts: now and
/// then, so that a process that is killed leaves most, and at the end.
class qxShardCostLog {
public:
    qxShardCostLog(const QString &folder, const QStringList &command, double loadSeconds);
    qxShardCostLog(const qxShardCostLog &) = delete;
    /// Writes it.
    ~qxShardCostLog();

    void add(const QString &name, const QByteArray &product, double seconds);

    /// The most memory that this process has taken.
    static qint64 peakBytes();

private:
    void write();

    QString m_path;
    QStringList m_command;
    double m_loadSeconds;
    QJsonArray m_items;
    QElapsedTimer m_sinceWritten;
};
