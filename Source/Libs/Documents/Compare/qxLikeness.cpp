#include "Compare/qxLikeness.h"

#include <QHash>

#include <algorithm>
#include <iterator>
#include <numeric>
#include <string_view>
#include <tuple>

namespace {

constexpr int Keys = 32; ///< of each sort, by which a thing is found
constexpr int Crowd = 8; ///< a key that more things have than these finds none
constexpr int Candidates = 4; ///< with which a thing is compared

typedef std::vector<quint64> Hashes;

quint64 mixed(quint64 hash, quint64 more)
{
    return (hash ^ more) * 0x9e3779b97f4a7c15u + (hash >> 29);
}

quint64 hashOf(const QString &text)
{
    typedef std::u16string_view View;
    const auto *const units = reinterpret_cast<const char16_t *>(text.utf16());
    return std::hash<View>()(View(units, std::size_t(text.size())));
}

/// What a thing is found by: features, runs of them as they stand, and all together. Single
/// features of many things are the same; how they follow each other is not. Of each sort the
/// smallest hashes are taken, so that things which are alike have the same ones.
Hashes keysOf(const Hashes &features)
{
    Hashes keys;
    for (const std::size_t length : {std::size_t(1), std::size_t(4), std::size_t(16)}) {
        Hashes runs;
        for (std::size_t first = 0; first + length <= features.size(); ++first) {
            quint64 key = length;
            for (std::size_t i = first; i < first + length; ++i)
                key = mixed(key, features[i]);
            runs.push_back(key);
        }
        std::sort(runs.begin(), runs.end());
        runs.erase(std::unique(runs.begin(), runs.end()), runs.end());
        runs.resize(std::min(runs.size(), std::size_t(Keys)));
        keys.insert(keys.end(), runs.begin(), runs.end());
    }
    if (!features.empty())
        keys.push_back(std::accumulate(features.begin(), features.end(), quint64(), mixed));
    return keys;
}

Hashes sorted(Hashes hashes)
{
    std::sort(hashes.begin(), hashes.end());
    return hashes;
}

/// From 0 to 1. Both are sorted.
double likenessOf(const Hashes &one, const Hashes &other)
{
    const std::size_t all = one.size() + other.size();
    if (all == 0)
        return 1;
    if (4 * std::min(one.size(), other.size()) <= all)
        return 0; // Not even if the smaller one is in the larger, which need not be gone through.
    Hashes common;
    std::set_intersection(one.begin(), one.end(), other.begin(), other.end(),
                          std::back_inserter(common));
    return 2.0 * double(common.size()) / double(all);
}

/// Finds things by their keys and by their place.
class Finder {
public:
    explicit Finder(const std::vector<qxLikenessThing> &things)
    {
        for (const qxLikenessThing &each : things) {
            const int number = m_count++;
            m_places.insert({each.neighbour, each.turn}, number);
            for (const quint64 key : keysOf(each.features.hashes()))
                m_keys.push_back({key, number});
        }
        std::sort(m_keys.begin(), m_keys.end());
    }

    int atPlaceOf(const qxLikenessThing &thing) const
    {
        return m_places.value({thing.neighbour, thing.turn}, -1);
    }

    /// Those that have most keys of the thing, and the one at its place.
    std::vector<int> candidates(const qxLikenessThing &thing) const
    {
        QHash<int, int> hits;
        for (const quint64 key : keysOf(thing.features.hashes())) {
            const auto first = std::lower_bound(m_keys.begin(), m_keys.end(), Entry{key, 0});
            const auto last = std::lower_bound(first, m_keys.end(), Entry{key, m_count});
            for (auto it = first; last - first <= Crowd && it != last; ++it)
                ++hits[it->second];
        }
        std::vector<int> found(hits.keyBegin(), hits.keyEnd());
        std::sort(found.begin(), found.end(), [&](int one, int other) {
            return std::make_pair(-hits[one], one) < std::make_pair(-hits[other], other);
        });
        found.resize(std::min(found.size(), std::size_t(Candidates)));
        const int near = atPlaceOf(thing);
        if (near >= 0 && std::find(found.begin(), found.end(), near) == found.end())
            found.push_back(near);
        return found;
    }

private:
    typedef std::pair<quint64, int> Entry;

    int m_count = 0;
    std::vector<Entry> m_keys; ///< sorted
    QHash<QPair<int, int>, int> m_places;
};

struct Candidate {
    double likeness;
    bool isAtPlace;
    int before, after; ///< numbers among the things

    bool operator<(const Candidate &other) const
    {
        return std::make_tuple(-likeness, !isAtPlace, before, after)
            < std::make_tuple(-other.likeness, !other.isAtPlace, other.before, other.after);
    }
};

/// All that are alike, best first.
std::vector<Candidate> candidatesOf(const std::vector<qxLikenessThing> &before,
                                    const std::vector<qxLikenessThing> &after)
{
    const Finder finder(after);
    std::vector<Hashes> features;
    for (const qxLikenessThing &each : after)
        features.push_back(sorted(each.features.hashes()));
    std::vector<Candidate> candidates;
    for (std::size_t number = 0; number < before.size(); ++number) {
        const Hashes own = sorted(before[number].features.hashes());
        const int near = finder.atPlaceOf(before[number]);
        for (const int other : finder.candidates(before[number])) {
            const double likeness = likenessOf(own, features[std::size_t(other)]);
            if (likeness > 0.5)
                candidates.push_back({likeness, other == near, int(number), other});
        }
    }
    std::sort(candidates.begin(), candidates.end());
    return candidates;
}

} // namespace

void qxFeatures::add(int tag, const QString &text, const QString &more)
{
    m_hashes.push_back(mixed(mixed(mixed(1, quint64(tag)), hashOf(text)), hashOf(more)));
}

void qxFeatures::add(int tag, int number, const QString &more)
{
    m_hashes.push_back(mixed(mixed(mixed(2, quint64(tag)), quint64(number)), hashOf(more)));
}

std::vector<qxLikenessPair> qxLikeness::pairs(const std::vector<qxLikenessThing> &before,
                                              const std::vector<qxLikenessThing> &after)
{
    if (before.empty() || after.empty())
        return {};
    std::vector<bool> isGone(before.size()), isTaken(after.size());
    std::vector<qxLikenessPair> pairs;
    for (const Candidate &each : candidatesOf(before, after)) {
        const auto one = std::size_t(each.before), other = std::size_t(each.after);
        if (isGone[one] || isTaken[other])
            continue;
        isGone[one] = isTaken[other] = true;
        pairs.push_back({before[one].place, after[other].place});
    }
    std::sort(pairs.begin(), pairs.end(), [](const qxLikenessPair &one, const qxLikenessPair &two) {
        return one.before < two.before;
    });
    return pairs;
}
