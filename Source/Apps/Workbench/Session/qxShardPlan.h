#pragma once

#include <QByteArray>
#include <QStringList>
#include <QVector>

#include <functional>

/// What shards have to do: items of work, each of which makes one product.
struct qxShardPlan {
    static constexpr int mostShards = 10000;

    struct Item {
        QString name; ///< such as that of a set
        QByteArray product; ///< its name: hex digits that say what it depends on
        double seconds = 0; ///< what making it will take
        int shard = 0; ///< that makes it, from 1
    };
    /// A file that the products depend on.
    struct File {
        QString path; ///< absolute, or from the folder of the scene on
        QByteArray sha256; ///< hex; of what it held
    };

    QString program; ///< with its version
    QStringList command; ///< with the arguments that the products depend on
    File scene;
    QVector<File> needs; ///< other files
    int shards = 0;
    double loadSeconds = 0; ///< until a process begins its first item
    qint64 peakBytes = 0; ///< of memory
    bool scriptsFailed = false; ///< while the sets were selected
    QVector<Item> items;

    /// Gives each product to a shard: first what is missing, and then what is there, each time the
    /// longest ones first, to the shard with the least to do. Items of one product are together.
    void share(const std::function<bool(const QByteArray &product)> &isThere);
    /// What the missing products of each shard take, without loading.
    QVector<double>
    secondsOfShards(const std::function<bool(const QByteArray &product)> &isThere) const;

    QByteArray toJson() const;
    /// Why these bytes are no plan, or one of another version of the format; empty when they are.
    QString read(const QByteArray &json);
    /// The SHA-256 of a file in hex digits, empty when it cannot be read.
    static QByteArray sha256(const QString &path);
};
