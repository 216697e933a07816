#pragma once

#include "Commands/qxSharedWork.h"
#include "qxShare.h"

#include <QJsonObject>

#include <functional>

/// A report of which each shard makes a share: made here, shared, or taken from what shards have
/// made.
class qxSharedReport {
public:
    /// Makes a share of the report; empty, after saying why, when that failed.
    typedef std::function<QJsonObject(const qxShare &share)> Make;
    typedef std::function<void(const QJsonObject &part)> Take;

    qxSharedReport(const qxCommand &command, const QCommandLineParser &parser)
        : m_work(command, parser)
    {
    }

    ///@{
    /// See qxSharedWork.
    int read(const QStringList &outputs) { return m_work.read(outputs); }
    int begin() { return m_work.begin(); }
    ///@}
    /// Whether makeParts is to be called, and no result be made.
    bool makesParts() const { return m_work.options().makesParts(); }
    /// Whether the parts need not be made, nor the scene be opened.
    bool isGathered() const { return m_work.options().task == qxShardOptions::Gather; }

    /// Plans, or makes the share of a shard. Returns the exit code.
    int makeParts(const Make &make);
    /// Has all shares taken in order: those of the shards, or one that is the whole report. False
    /// when one failed, or turned out to be damaged.
    bool takeAll(const Make &make, const Take &take) const;

private:
    QVector<qxShardPlan::Item> items(const Make &make) const;
    int makeShard(const Make &make);

    qxSharedWork m_work;
};
