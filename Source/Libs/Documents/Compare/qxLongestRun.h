#pragma once

#include <vector>

/// What of an order stays when as little as possible moves.
namespace qxLongestRun {

/// Which of these numbers, all different, form a longest rising sequence when the others are left
/// out. Of a list in another order they are those that stay; the others moved. Takes n log n.
std::vector<bool> of(const std::vector<int> &numbers);

} // namespace qxLongestRun
