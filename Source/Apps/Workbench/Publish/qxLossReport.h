#pragma once

#include <QJsonObject>
#include <QList>
#include <QString>

/// What became of one entry of a set, or of something of the scene, in a published page or an
/// exported file.
struct qxLoss {
    enum Outcome {
        Carried, ///< it is there and shows the same
        Approximated, ///< something like it is there; `text` says how
        Dropped ///< `text` says why
    };
    QString set; ///< empty for what belongs to the scene as a whole
    QString kind; ///< such as "node", "material", "script", "clipping", "extension"
    QString name; ///< of the variant or whatever it is; may be empty
    QString state; ///< of a variant; empty for anything else
    Outcome outcome = Carried;
    QString text; ///< empty for what is carried
};

/// Tells entry by entry what is carried and what is lost, so that nobody is surprised.
class qxLossReport {
public:
    void add(const qxLoss &loss) { m_losses += loss; }
    const QList<qxLoss> &losses() const { return m_losses; }
    /// How many of them came out so.
    int count(qxLoss::Outcome outcome) const;

    /// Prints for people: the numbers, then what is not carried, by set. Equal lines of several
    /// sets are one.
    void print() const;
    /// All of them.
    QJsonObject toJson() const;

private:
    QList<qxLoss> m_losses;
};
