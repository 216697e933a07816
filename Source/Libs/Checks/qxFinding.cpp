#include "qxFinding.h"

#include <algorithm>
#include <tuple>

namespace {

const int kept = 1000;

} // namespace

bool qxFindingPlace::operator==(const qxFindingPlace &other) const
{
    return sort == other.sort && set == other.set && kind == other.kind && name == other.name
        && state == other.state;
}

void qxFindingList::add(const qxFinding &finding)
{
    if (++m_counts[int(finding.code)] <= kept)
        m_kept += finding;
}

qxFindings qxFindingList::inOrder() const
{
    qxFindings findings = m_kept;
    std::stable_sort(findings.begin(), findings.end(),
                     [](const qxFinding &one, const qxFinding &other) {
                         return std::tie(one.line, one.column) < std::tie(other.line, other.column);
                     });
    QHash<int, int> counts = m_counts;
    for (auto each = findings.rbegin(); each != findings.rend(); ++each)
        each->more = std::max(counts.take(int(each->code)) - kept, 0);
    return findings;
}
