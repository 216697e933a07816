#pragma once

#include "qxMergeConflict.h"

#include <QPair>
#include <QSet>
#include <QString>

#include <functional>
#include <vector>

/// A thing as the three documents have it.
struct qxMergeThing {
    /// Whether that document has it.
    bool isIn(int side) const { return at[std::size_t(side)] >= 0; }
    /// The side that alone still has what base has; MergeBase for none.
    int onlySide() const;

    qxMergeTriple<int> at{{-1, -1, -1}}; ///< its place in each; -1 for none
    QString name; ///< in the merged document
};

/// The groups, sets, variants or states of one variant of three documents: which of them are the
/// same, and what they are called.
class qxMergeThings {
public:
    /// What is called alike only within one sort, such as the variants of a kind.
    typedef QPair<int, QString> Name;
    /// Hears of two things that both sides gave one name, or of one that got two.
    typedef std::function<void(int thing, int other)> Clash;

    /// `partners` has for each side the places of what base has, -1 for what is gone. What both
    /// sides added under one name is one thing.
    qxMergeThings(qxMergeTriple<std::vector<Name>> names,
                  const qxMergeTriple<std::vector<int>> &partners);

    /// Gives each thing the name that it has on the side that changed it. Where sides gave it two
    /// names, `clash` hears of it (twice the same thing) and the preferred one is taken. Of two
    /// that got one name the second of the clash gets another one.
    void settleNames(qxMergePreference preference, const Clash &clash);
    /// A name like that for the version of that side; never given twice.
    QString otherName(const Name &name, qxMergeSide side = MergeTheirs);
    /// That name if nothing has it, or else one like it; never given twice.
    QString freeName(const Name &name);
    /// What is said of a clash, without the thing that it is about.
    qxMergeConflict conflictOf(int thing, int other) const;

    /// What that side calls the thing.
    const Name &nameIn(int side, const qxMergeThing &thing) const
    {
        return m_names[std::size_t(side)][std::size_t(thing.at[std::size_t(side)])];
    }

    std::vector<qxMergeThing> things; ///< those of base, then those added
    qxMergeTriple<std::vector<int>> numbers; ///< of what stands at each place, among the things

private:
    QString chosenName(int number, qxMergePreference preference, const Clash &clash) const;

    qxMergeTriple<std::vector<Name>> m_names;
    QSet<Name> m_taken;
};
