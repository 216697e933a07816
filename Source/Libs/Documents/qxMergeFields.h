#pragma once

#include "qxDocument.h"
#include "qxMergeConflict.h"

#include <QVector>

#include <algorithm>
#include <functional>

/// A field of things that they have once.
template <class Thing>
struct qxMergeField {
    QString field; ///< as qxFieldDifference has it
    QString entry; ///< likewise
    /// Compares the field of two things.
    std::function<bool(const Thing &one, const Thing &other)> isSame;
    /// What is told of it.
    std::function<QString(const Thing &thing)> text;
    /// Copies it.
    std::function<void(Thing &to, const Thing &from)> assign;
};

/// Both versions of something, which differ in nothing but conflicts.
template <class Thing>
struct qxMergeFork {
    /// Whether theirs has to be kept as well.
    bool isForked() const { return !conflicts.isEmpty(); }
    /// The version that is taken; that of ours without a preference.
    const Thing &preferred(qxMergePreference preference) const
    {
        return preference == qxMergePreference::Theirs ? theirs : ours;
    }

    Thing ours; ///< with the version of ours of what is a conflict
    Thing theirs; ///< with that of theirs
    QVector<qxMergeConflict> conflicts; ///< without the thing that they are about
};

/// Merges groups, sets and variants of three documents that call all else alike.
namespace qxMergeFields {

/// The three versions of something; base is null when both sides added it, and then everything in
/// which they differ is a conflict.
template <class Thing>
using Versions = qxMergeTriple<const Thing *>;

/// All of a group but its name.
const std::vector<qxMergeField<qxDocumentGroup>> &ofGroup();
/// What a set has once, but for its name and its group.
const std::vector<qxMergeField<qxDocumentSet>> &ofSet();
/// What a variant has once, but for its name.
const std::vector<qxMergeField<qxDocumentVariant>> &ofVariant();

/// Whether these fields are the same.
template <class Thing>
bool areSame(const Thing &one, const Thing &other, const std::vector<qxMergeField<Thing>> &fields)
{
    return std::all_of(fields.begin(), fields.end(),
                       [&](const auto &each) { return each.isSame(one, other); });
}

///@{
/// Whether the sets hold the same in the same order, or in any. The group counts, the name does
/// not.
bool areSame(const qxDocumentSet &one, const qxDocumentSet &other);
bool areAlike(qxDocumentSet one, qxDocumentSet other);
///@}

/// Merges the field into a fork that begins with the versions of ours.
template <class Thing>
void merge(const qxMergeField<Thing> &field, const Versions<Thing> &versions,
           qxMergeFork<Thing> &fork)
{
    const Thing *const base = versions[MergeBase];
    const Thing &ours = *versions[MergeOurs];
    const Thing &theirs = *versions[MergeTheirs];
    if (field.isSame(ours, theirs) || (base && field.isSame(theirs, *base)))
        return;
    field.assign(fork.theirs, theirs);
    if (base && field.isSame(ours, *base)) {
        field.assign(fork.ours, theirs);
        return;
    }
    qxMergeConflict conflict;
    conflict.field = field.field;
    conflict.entry = field.entry;
    conflict.texts = {{base ? field.text(*base) : QString(), field.text(ours), field.text(theirs)}};
    fork.conflicts.push_back(conflict);
}

/// Merges these fields; all else is that of ours.
template <class Thing>
qxMergeFork<Thing> merged(const Versions<Thing> &versions,
                          const std::vector<qxMergeField<Thing>> &fields)
{
    qxMergeFork<Thing> fork{*versions[MergeOurs], *versions[MergeOurs], {}};
    for (const qxMergeField<Thing> &field : fields)
        merge(field, versions, fork);
    return fork;
}

/// Merges everything but name and group.
qxMergeFork<qxDocumentSet> merged(const Versions<qxDocumentSet> &versions);

} // namespace qxMergeFields
