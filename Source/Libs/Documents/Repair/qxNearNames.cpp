#include "Repair/qxNearNames.h"

#include <algorithm>

namespace {
namespace nearNames {

/// Places that are looked at for one part of a name, and how many are answered.
constexpr std::size_t TooMany = 512;
constexpr std::size_t Some = 12;

/// The parts of so many characters, with the beginning and the end of the name as characters.
std::vector<quint64> partsOf(const QString &name, int size)
{
    const QString framed = QLatin1Char('\x01') + name.toCaseFolded() + QLatin1Char('\x01');
    std::vector<quint64> parts;
    for (int at = 0; at + size <= framed.size(); ++at) {
        quint64 part = 0;
        for (int i = 0; i < size; ++i)
            part = part << 16 | framed[at + i].unicode();
        parts.push_back(part);
    }
    std::sort(parts.begin(), parts.end());
    return parts;
}

} // namespace nearNames
} // namespace

void qxNearNames::add(const QString &name, int place)
{
    std::vector<quint64> parts = nearNames::partsOf(name, 3);
    parts.erase(std::unique(parts.begin(), parts.end()), parts.end());
    for (const quint64 part : parts) {
        std::vector<int> &places = m_places[part];
        if (places.size() <= nearNames::TooMany)
            places.push_back(place);
    }
}

/// Parts that very many names have say nothing.
std::vector<int> qxNearNames::near(const QString &name) const
{
    QHash<int, int> shared;
    for (const quint64 part : nearNames::partsOf(name, 3)) {
        const auto found = m_places.constFind(part);
        if (found == m_places.constEnd() || found->size() > nearNames::TooMany)
            continue;
        for (const int place : *found)
            ++shared[place];
    }
    std::vector<std::pair<int, int>> best;
    for (auto each = shared.begin(); each != shared.end(); ++each)
        best.push_back({-each.value(), each.key()});
    const auto end = best.begin() + std::ptrdiff_t(std::min(best.size(), nearNames::Some));
    std::partial_sort(best.begin(), end, best.end());
    std::vector<int> places;
    for (auto each = best.begin(); each != end; ++each)
        places.push_back(each->second);
    return places;
}

double qxNearNames::likeness(const QString &was, const QString &is)
{
    const std::vector<quint64> a = nearNames::partsOf(was, 2);
    const std::vector<quint64> b = nearNames::partsOf(is, 2);
    std::vector<quint64> both;
    std::set_intersection(a.begin(), a.end(), b.begin(), b.end(), std::back_inserter(both));
    if (a.empty() || b.empty())
        return 0;
    const double dice = 2.0 * double(both.size()) / double(a.size() + b.size());
    return (dice + double(both.size()) / double(a.size())) / 2;
}
