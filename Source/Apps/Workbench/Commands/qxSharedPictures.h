#pragma once

#include "Commands/qxSharedWork.h"
#include "Session/qxSetPreviews.h"

/// Pictures of sets: made here, shared, or taken from what shards have made.
class qxSharedPictures {
public:
    /// How the picture of the set that is selected is made.
    struct Product {
        QSize size;
        /// Says, in hex digits, all that the picture depends on. It brings the scene into the state
        /// that the picture shows.
        std::function<QByteArray()> fingerprint;
        qxSetPreviews::Make make;
        /// Whether the set, which is selected, needs a picture; always when it is empty.
        std::function<bool(const qxVariantSet &set)> isWanted = {};
        bool isStamped = false; ///< with the fingerprint (qxPreviewStamp)

        bool wants(const qxVariantSet &set) const { return !isWanted || isWanted(set); }
    };

    /// The previews of sets.
    static Product previews();

    qxSharedPictures(const qxCommand &command, const QCommandLineParser &parser)
        : m_work(command, parser)
    {
    }

    ///@{
    /// See qxSharedWork.
    int read(const QStringList &outputs) { return m_work.read(outputs); }
    int begin(const Product &product);
    ///@}
    qxShardOptions::Task task() const { return m_work.options().task; }
    /// Whether makeParts is to be called, and no result be made.
    bool makesParts() const { return m_work.options().makesParts(); }

    /// Plans, or makes what a shard makes, of these sets. Returns the exit code.
    int makeParts(const QStringList &names);
    /// Has the pictures of these sets taken, as qxSetPreviews::visit does. Below 0, with an error,
    /// when a part turned out to be damaged: then nothing may be written.
    int visit(const QStringList &names, const qxSetPreviews::Take &take);
    /// Where the pictures to be gathered lie, by the names of the sets; empty unless they are.
    QMap<QString, QString> files() const;
    /// As qxCommands::codeAfterScripts, also when the scripts have run in the shards.
    int codeAfterScripts() const;

private:
    int makePlan(const QStringList &names);
    QVector<qxShardPlan::Item> survey(const QStringList &names, QVector<double> &selecting,
                                      bool &isDone);
    void measure(QVector<qxShardPlan::Item> &items, const QVector<double> &selecting);
    void sample(const QVector<qxShardPlan::Item> &items, QVector<double> &seconds);
    int makeShard();
    int take(const QStringList &names, const qxSetPreviews::Take &take);

    qxSharedWork m_work;
    Product m_product;
};
