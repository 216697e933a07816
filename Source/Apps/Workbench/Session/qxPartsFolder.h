#pragma once

#include <QByteArray>
#include <QSize>
#include <QString>

struct qxShardPlan;

/// A folder in which shards leave what they have made, for all of them and for whoever gathers it:
///
///     plan.json            what each shard does
///     products/ab/NAME     what they have made, by what it depends on
///     costs/PROCESS.json   what it took (qxShardCosts)
///
/// Each file is written completely or not at all, so any number of processes may work in it at
/// once, on machines that share it. Failures are explained on standard error.
class qxPartsFolder {
public:
    /// Products are pictures of that size; without one they are reports, in JSON.
    explicit qxPartsFolder(const QString &path = QString(), const QSize &size = QSize())
        : m_path(path), m_size(size)
    {
    }

    QString path() const { return m_path; }
    /// Where that product lies, or would lie.
    QString productPath(const QByteArray &product) const;
    /// Whether the product is there, from its beginning to its end; damaged ones do not count.
    bool holds(const QByteArray &product) const;
    bool write(const QByteArray &product, const QByteArray &bytes) const;
    /// Empty, after saying why, when it is missing or damaged.
    QByteArray read(const QByteArray &product) const;

    bool hasPlan() const;
    bool readPlan(qxShardPlan &plan) const;
    /// Replaces the plan that there may be.
    bool writePlan(const qxShardPlan &plan) const;
    /// Adds the plan, or else reads the one that another process has added meanwhile.
    bool addPlan(qxShardPlan &plan) const;

private:
    QString planPath() const;

    QString m_path;
    QSize m_size;
};
