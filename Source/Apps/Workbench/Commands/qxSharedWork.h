#pragma once

#include "Commands/qxShardOptions.h"
#include "Session/qxPartsFolder.h"
#include "Session/qxShardPlan.h"

#include <QElapsedTimer>
#include <QSet>

class QJsonObject;
struct qxCommand;

/// A command's part in work that several processes share: what is alike for all kinds of products.
class qxSharedWork {
public:
    qxSharedWork(const qxCommand &command, const QCommandLineParser &parser);
    qxSharedWork(const qxSharedWork &) = delete;

    ///@{
    /// Success, or the exit code after explaining on standard error what is wrong.

    /// Reads the options, of which `outputs` say where the result goes.
    int read(const QStringList &outputs);
    /// Looks, before the scene is opened, for a plan, whether it is one for this work, and, when
    /// the result is to be gathered, whether something is missing.
    int begin(const qxProductForm &form = {});
    ///@}

    const qxShardOptions &options() const { return m_options; }
    const qxPartsFolder &folder() const { return m_folder; }
    const qxShardPlan &plan() const { return m_plan; }
    /// Whether this process has to plan.
    bool needsPlan() const { return m_options.makesParts() && m_plan.shards == 0; }

    /// Shares these items out, of which names, products and seconds are known, and writes the plan;
    /// a shard takes the plan that another one has written meanwhile. Returns the exit code.
    int share(const QVector<qxShardPlan::Item> &items);
    /// Prints what a plan has come to, and what a shard has done.
    int tellPlan() const;
    int tellShard(int made, int kept) const;

    /// Ends the time that counts as loading.
    void endLoading() { m_loadSeconds = seconds(); }
    double loadSeconds() const { return m_loadSeconds; }
    /// This program with its version.
    static QString program();
    /// The arguments that products depend on.
    const QStringList &command() const { return m_plan.command; }
    /// The items of this shard, one for each product.
    QVector<qxShardPlan::Item> itemsOfShard() const;

private:
    double seconds() const { return double(m_sinceStart.elapsed()) / 1000; }
    QStringList commandHere() const;
    void lookAtFiles();
    int checkPlan(const QStringList &command) const;
    bool isUnchanged(const qxShardPlan::File &file) const;
    int checkProducts() const;
    int print(const QString &line, const QJsonObject &object) const;

    const qxCommand &m_command;
    const QCommandLineParser &m_parser;
    QString m_file; ///< of the scene
    QStringList m_outputs;
    qxShardOptions m_options;
    qxPartsFolder m_folder;
    qxShardPlan m_plan;
    QSet<QByteArray> m_there; ///< the products that were there for the plan
    QElapsedTimer m_sinceStart;
    double m_loadSeconds = 0;
};
