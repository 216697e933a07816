#include "qxFinding.h"

#include <algorithm>
#include <tuple>

bool qxFindingPlace::operator==(const qxFindingPlace &other) const
{
    return sort == other.sort && set == other.set && kind == other.kind && name == other.name
        && state == other.state;
}

void qxFindingList::add(const qxFinding &finding)
{
    const int code = int(finding.code);
    m_counts[code] += 1 + finding.more;
    if (m_elsewhere.value(code) + m_keptCounts.value(code) >= Limit)
        return;
    ++m_keptCounts[code];
    m_kept += finding;
    m_kept.last().more = 0;
}

qxFindings qxFindingList::inOrder() const
{
    qxFindings findings = m_kept;
    std::stable_sort(findings.begin(), findings.end(),
                     [](const qxFinding &one, const qxFinding &other) {
                         return std::tie(one.line, one.column) < std::tie(other.line, other.column);
                     });
    return withRest(std::move(findings));
}

qxFindings qxFindingList::withRest(qxFindings findings) const
{
    Counts counts = m_counts;
    for (auto each = findings.rbegin(); each != findings.rend(); ++each) {
        const int code = int(each->code);
        each->more = std::max(counts.take(code) - m_keptCounts.value(code), 0);
    }
    return findings;
}
