#pragma once

#include <QByteArray>
#include <QSize>
#include <QString>

struct qxShardPlan;

/// What products are: pictures of that size, or, without one, reports in JSON.
struct qxProductForm {
    QSize size;
    bool isStamped = false; ///< whether each picture has its name in it (qxPreviewStamp)
};

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
    qxPartsFolder() = default;
    explicit qxPartsFolder(const QString &path, const qxProductForm &form = {})
        : m_path(path), m_form(form)
    {
    }

    QString path() const { return m_path; }
    /// Where that product lies, or would lie.
    QString productPath(const QByteArray &product) const;
    /// Whether the product is there, by its beginning and its end; damaged ones do not count.
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
    bool begins(const QByteArray &product, const QByteArray &bytes) const;
    bool isWhole(const QByteArray &product, const QByteArray &bytes) const;

    QString m_path;
    qxProductForm m_form;
};
