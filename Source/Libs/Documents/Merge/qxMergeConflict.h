#pragma once

#include "qxVariantKind.h"

#include "Merge/qxMergeSides.h"

#include <QJsonObject>
#include <QString>

/// What two sides of a merge did to one thing that cannot both be had.
struct qxMergeConflict {
    /// What it is about.
    enum Thing { Group, Set, Variant };
    /// What the sides did.
    enum Sort {
        Changed, ///< both changed the field, or added the thing, differently
        RemovedByOurs, ///< ours removed what theirs changed, or uses anew
        RemovedByTheirs, ///< theirs removed what ours changed, or uses anew
        SameName ///< the sides gave one name to two different things
    };

    /// That the other side has removed what is only in this one and base.
    static qxMergeConflict removed(int onlySide);

    /// Some lines for people. What became of it depends on what was preferred.
    QString text(qxMergePreference preference) const;
    /// The same for programs.
    QJsonObject json() const;

    Thing thing = Group; ///< what it is about
    Sort sort = Changed; ///< what the sides did
    const qxVariantKind *kind = nullptr; ///< of a variant
    QString name; ///< of the thing in the merged document, be it that it is not in there
    QString second; ///< the thing of the merged document with the version of theirs; empty for none
    QString field; ///< as qxFieldDifference has it; empty when it is about the whole thing
    QString entry; ///< which one of the field; empty for what a thing has once
    QString other; ///< the state with the version of theirs; empty for none
    qxMergeTriple<QString> texts; ///< of base, ours and theirs; null for what is not there
};
