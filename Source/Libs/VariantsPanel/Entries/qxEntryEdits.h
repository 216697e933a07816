#pragma once

#include "qxNodePtr.h"
#include "qxSetEntry.h"

class qxSetEdits;

/// The user's edits of what a set holds, each of them one undo step. An unknown set is passed over.
namespace qxEntryEdits {

typedef std::vector<qxSetEntry> Entries;

/// Gives the entries of the set that state.
void setState(qxSetEdits &edits, const QString &set, const Entries &entries, const QString &state);
/// Gives entries of variants the states that the scene shows; those of which it shows nothing stay.
void takeShown(qxSetEdits &edits, const QString &set, const Entries &entries);
void remove(qxSetEdits &edits, const QString &set, const Entries &entries);
/// Adds the entries, or gives those that are there their states. A variant without a state gets the
/// one that the scene shows.
void add(qxSetEdits &edits, const QString &set, const Entries &entries);

/// Adds the variants that drive the nodes, or their materials, with the states that the scene
/// shows. Where there is none, one is made, in the same step. Says, in the language of the window,
/// what was made and what could not be added; empty when there is nothing to say.
QString addNodes(qxSetEdits &edits, const QString &set, const std::vector<qxNodePtr> &nodes);

} // namespace qxEntryEdits
