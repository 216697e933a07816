#pragma once

#include <QCommandLineOption>
#include <QStringList>

class QCommandLineParser;

/// How a command shares its work with other processes, as options ask for it. Docs/Shards.md
/// tells more.
struct qxShardOptions {
    enum Task {
        Whole, ///< all of it is done here
        Plan,
        Shard,
        Gather ///< the result is made of what the shards have made
    };

    static QList<QCommandLineOption> all();
    /// The option --json of commands whose results are no JSON.
    static QCommandLineOption json();

    /// Success, or the exit code after explaining on standard error what is wrong. `outputs` are
    /// the options that shards have no use for.
    int read(const QCommandLineParser &parser, const QStringList &outputs);
    /// Whether parts are made instead of the result.
    bool makesParts() const { return task == Plan || task == Shard; }

    Task task = Whole;
    QString folder; ///< of the parts
    int number = 0; ///< of the shard, from 1
    int count = 0; ///< of all shards
};
