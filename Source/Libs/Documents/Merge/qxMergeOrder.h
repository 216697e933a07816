#pragma once

#include <array>
#include <functional>
#include <vector>

/// Merges orders.
namespace qxMergeOrder {

/// Lists of things, by their numbers, of base, ours and theirs; each number at most once in each.
typedef std::array<std::vector<int>, 3> Lists;
/// Whether the first thing comes before the second one by its name.
typedef std::function<bool(int one, int other)> Before;

/// All things of the lists in one order, also those that a side has removed. What neither side
/// moved stays in the order of base. What a side moved or added follows what it follows there, as
/// far as that stays. Of several at one place those of the side whose first comes before that of
/// the other by name are first. What both sides moved to different places comes to the earlier one.
/// The same when the sides are exchanged. `count` is above all numbers. Takes n log n.
std::vector<int> merged(const Lists &lists, int count, const Before &before);

} // namespace qxMergeOrder
