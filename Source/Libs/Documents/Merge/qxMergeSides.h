#pragma once

#include <array>

/// The three documents of a merge.
enum qxMergeSide { MergeBase, MergeOurs, MergeTheirs };
/// Something of each of them.
template <class T>
using qxMergeTriple = std::array<T, 3>;

/// Whose version is taken where both cannot be had.
enum class qxMergePreference { Both, Ours, Theirs };

/// Whether that keeps what one side removed and this one changed.
inline bool qxMergeKeeps(qxMergePreference preference, int side)
{
    return preference == qxMergePreference::Both
        || (preference == qxMergePreference::Ours) == (side == MergeOurs);
}
