#include "Compare/qxPairing.h"

#include "Compare/qxLongestRun.h"

#include <cstddef>

std::vector<qxPairedEntry> qxPairedEntries(const qxPairing &pairing)
{
    std::vector<int> kept; // by their earlier places, in the order of the later list
    for (const int before : pairing.before) {
        if (before >= 0)
            kept.push_back(before);
    }
    const std::vector<bool> stays = qxLongestRun::of(kept);
    std::vector<qxPairedEntry> entries;
    const auto addGone = [&](int from) {
        for (std::size_t i = std::size_t(from); i < pairing.after.size() && pairing.after[i] < 0;
             ++i)
            entries.push_back({int(i), -1, false});
    };
    addGone(0);
    std::size_t next = 0;
    for (std::size_t i = 0; i < pairing.before.size(); ++i) {
        const int before = pairing.before[i];
        entries.push_back({before, int(i), before >= 0 && !stays[next]});
        if (before < 0)
            continue;
        ++next;
        addGone(before + 1);
    }
    return entries;
}
