#include "Merge/qxMergeOrder.h"

#include "Compare/qxLongestRun.h"

#include <algorithm>
#include <cstddef>

namespace {

typedef std::vector<int> Run;

/// For each thing whether that side moved or added it.
std::vector<bool> ownedBy(const Run &side, const std::vector<int> &basePlaces)
{
    std::vector<int> places;
    for (const int thing : side) {
        if (basePlaces[std::size_t(thing)] >= 0)
            places.push_back(basePlaces[std::size_t(thing)]);
    }
    const std::vector<bool> stays = qxLongestRun::of(places);
    std::vector<bool> owned(basePlaces.size());
    std::size_t next = 0;
    for (const int thing : side) {
        const bool isAdded = basePlaces[std::size_t(thing)] < 0;
        owned[std::size_t(thing)] = isAdded || !stays[next];
        next += !isAdded;
    }
    return owned;
}

/// Whether the run comes first where both are at one place.
bool isFirst(const Run &one, const Run &other, const qxMergeOrder::Before &before)
{
    const auto [mine, others] = std::mismatch(one.begin(), one.end(), other.begin(), other.end());
    if (mine == one.end() || others == other.end())
        return mine == one.end();
    return !before(*others, *mine);
}

/// Both runs in one, each thing once.
Run joined(Run first, Run second, const qxMergeOrder::Before &before)
{
    if (!isFirst(first, second, before))
        first.swap(second);
    if (first.empty() || first == second)
        return second;
    // What both have in one order holds them together, the rest of what both have stays in first.
    std::vector<std::pair<int, int>> sorted;
    for (std::size_t i = 0; i < second.size(); ++i)
        sorted.push_back({second[i], int(i)});
    std::sort(sorted.begin(), sorted.end());
    std::vector<int> common, places;
    for (const int thing : first) {
        const auto found =
            std::lower_bound(sorted.begin(), sorted.end(), std::make_pair(thing, -1));
        if (found != sorted.end() && found->first == thing) {
            common.push_back(thing);
            places.push_back(found->second);
        }
    }
    const std::vector<bool> stays = qxLongestRun::of(places);
    std::vector<bool> isDone(second.size());
    std::vector<int> ties; // places in second
    for (std::size_t i = 0; i < places.size(); ++i) {
        isDone[std::size_t(places[i])] = true;
        if (stays[i])
            ties.push_back(places[i]);
    }
    Run all;
    std::size_t next = 0, tie = 0;
    const auto addSecond = [&](std::size_t end) {
        for (; next < end; ++next) {
            if (!isDone[next])
                all.push_back(second[next]);
        }
    };
    for (const int thing : first) {
        if (tie < ties.size() && second[std::size_t(ties[tie])] == thing)
            addSecond(std::size_t(ties[tie++]));
        all.push_back(thing);
    }
    addSecond(second.size());
    return all;
}

/// What each side put behind each of the things that stay; the first is in front of all.
class Gaps {
public:
    Gaps(const qxMergeOrder::Lists &lists, std::size_t count)
        : m_basePlaces(count, -1), m_stays(count, -1)
    {
        for (std::size_t i = 0; i < lists[0].size(); ++i)
            m_basePlaces[std::size_t(lists[0][i])] = int(i);
        for (std::size_t side : {0, 1})
            m_owned[side] = ownedBy(lists[side + 1], m_basePlaces);
        for (const int thing : lists[0]) {
            const std::size_t place = std::size_t(thing);
            if (!m_owned[0][place] && !m_owned[1][place]) {
                m_stays[place] = int(m_backbone.size());
                m_backbone.push_back(thing);
            }
        }
        for (std::size_t side : {0, 1})
            place(lists[side + 1], side, count);
    }

    std::vector<int> joinedAll(const qxMergeOrder::Before &before) const
    {
        std::vector<int> all;
        for (std::size_t gap = 0; gap <= m_backbone.size(); ++gap) {
            if (gap > 0)
                all.push_back(m_backbone[gap - 1]);
            const Run run = joined(kept(0, gap), kept(1, gap), before);
            all.insert(all.end(), run.begin(), run.end());
        }
        return all;
    }

private:
    void place(const Run &list, std::size_t side, std::size_t count)
    {
        m_runs[side].resize(m_backbone.size() + 1);
        m_gaps[side].assign(count, -1);
        int gap = 0;
        for (const int thing : list) {
            const std::size_t number = std::size_t(thing);
            if (m_stays[number] >= 0)
                gap = m_stays[number] + 1;
            else if (m_owned[side][number]) {
                m_gaps[side][number] = gap;
                m_runs[side][std::size_t(gap)].push_back(thing);
            }
        }
    }

    /// The run without what the other side has put to an earlier place.
    Run kept(std::size_t side, std::size_t gap) const
    {
        Run run = m_runs[side][gap];
        const auto isEarlier = [&](int thing) {
            const int other = m_gaps[1 - side][std::size_t(thing)];
            return other >= 0 && other < int(gap);
        };
        run.erase(std::remove_if(run.begin(), run.end(), isEarlier), run.end());
        return run;
    }

    std::vector<int> m_basePlaces;
    std::vector<int> m_stays; ///< places in the backbone, -1 for what is not in it
    std::vector<int> m_backbone;
    std::array<std::vector<bool>, 2> m_owned;
    std::array<std::vector<Run>, 2> m_runs;
    std::array<std::vector<int>, 2> m_gaps; ///< of what a side owns
};

} // namespace

std::vector<int> qxMergeOrder::merged(const Lists &lists, int count, const Before &before)
{
    if (lists[1] == lists[0] && lists[2] == lists[0])
        return lists[0];
    return Gaps(lists, std::size_t(count)).joinedAll(before);
}
