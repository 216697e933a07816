#pragma once

#include <vector>

/// Which entries of two lists are the same ones, by their places.
struct qxPairing {
    std::vector<int> after; ///< for each of the earlier list its place in the later; -1: gone
    std::vector<int> before; ///< for each of the later list its place in the earlier; -1: new
};

/// An entry of one of two lists, or of both.
struct qxPairedEntry {
    int before; ///< place in the earlier list; -1 for none
    int after; ///< place in the later list; -1 for none
    bool isMoved; ///< whether it left its place between the others that are in both
};

/// The entries of both lists in the order of the later one; those that are gone follow what they
/// followed in the earlier one. As few as possible are moved.
std::vector<qxPairedEntry> qxPairedEntries(const qxPairing &pairing);
