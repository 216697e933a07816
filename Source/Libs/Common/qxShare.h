#pragma once

#include <cstddef>
#include <numeric>
#include <vector>

/// One of several shares of a work that consists of parts in a row. A share are parts that follow
/// one another; all shares, one after the other, are all parts.
struct qxShare {
    /// Parts from the first to before the end, by their numbers from 0.
    struct Parts {
        /// Whether the part is one of them.
        bool contain(std::size_t part) const { return begin <= part && part < end; }

        std::size_t begin; ///< the first
        std::size_t end; ///< behind the last
    };

    /// Those of this share, so that all shares have about as much work. `weights` are the work of
    /// each part, more than 0. Where there are more shares than parts, some have none.
    Parts of(const std::vector<int> &weights) const
    {
        const long long whole = std::accumulate(weights.begin(), weights.end(), 0LL);
        std::size_t at = 0;
        long long before = 0;
        const auto reach = [&](long long shares) {
            while (at < weights.size() && before * count < whole * shares)
                before += weights[at++];
            return at;
        };
        const std::size_t begin = reach(index);
        return {begin, reach(index + 1LL)};
    }

    int index = 0; ///< from 0
    int count = 1; ///< how many shares there are
};
