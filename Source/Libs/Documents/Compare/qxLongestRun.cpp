#include "Compare/qxLongestRun.h"

#include <algorithm>

// M. L. Fredman, "On computing the length of longest increasing subsequences", 1975.
std::vector<bool> qxLongestRun::of(const std::vector<int> &numbers)
{
    std::vector<int> ends; // where the best sequence of each length ends
    std::vector<int> previous(numbers.size(), -1);
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        const auto place =
            std::lower_bound(ends.begin(), ends.end(), numbers[i], [&](int end, int number) {
                return numbers[std::size_t(end)] < number;
            });
        if (place != ends.begin())
            previous[i] = *(place - 1);
        if (place == ends.end())
            ends.push_back(int(i));
        else
            *place = int(i);
    }
    std::vector<bool> stays(numbers.size());
    for (int i = ends.empty() ? -1 : ends.back(); i >= 0; i = previous[std::size_t(i)])
        stays[std::size_t(i)] = true;
    return stays;
}
