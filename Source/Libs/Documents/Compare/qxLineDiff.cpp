#include "Compare/qxLineDiff.h"

#include "Compare/qxLongestRun.h"

#include <QHash>

#include <algorithm>
#include <utility>

namespace {

constexpr int Context = 3; ///< lines around a difference
constexpr int Deepest = 16; ///< lines between lines between lines: each level goes over all once

/// The differences of two lists of lines: "patience diff", due to Bram Cohen.
class LineComparison {
public:
    LineComparison(const QStringList &before, const QStringList &after)
        : m_before(before), m_after(after)
    {
        for (const QString &line : before)
            m_old.push_back(numberOf(line));
        for (const QString &line : after)
            m_new.push_back(numberOf(line));
        m_uses.resize(std::size_t(m_numbers.size()));
        compare({0, before.size()}, {0, after.size()}, Deepest);
    }

    QVector<qxLine> lines;

private:
    /// Lines from the first one to before the last one.
    struct Range {
        int first, last;
    };
    /// Where a line is used in the ranges at hand.
    struct Use {
        int timesOld = 0, timesNew = 0;
        int old = 0;
    };
    typedef std::pair<int, int> Anchor; ///< the places of one line in both texts

    int numberOf(const QString &line)
    {
        const auto known = m_numbers.constFind(line);
        return known != m_numbers.constEnd() ? *known : *m_numbers.insert(line, m_numbers.size());
    }

    void keep(int first, int last)
    {
        for (int i = first; i < last; ++i)
            lines.push_back({qxLine::Kept, m_before[i]});
    }

    std::vector<Anchor> anchors(Range old, Range now);
    void compare(Range old, Range now, int depth);
    void compareBetween(const std::vector<Anchor> &anchors, Range old, Range now, int depth);

    const QStringList &m_before;
    const QStringList &m_after;
    QHash<QString, int> m_numbers; ///< of lines
    std::vector<int> m_old, m_new; ///< the texts as numbers of lines
    std::vector<Use> m_uses; ///< by numbers of lines; all unused between two searches
};

/// Lines that both have once, as many as are in one order.
std::vector<LineComparison::Anchor> LineComparison::anchors(Range old, Range now)
{
    const auto use = [&](const std::vector<int> &text, int place) -> Use & {
        return m_uses[std::size_t(text[std::size_t(place)])];
    };
    for (int i = old.first; i < old.last; ++i) {
        ++use(m_old, i).timesOld;
        use(m_old, i).old = i;
    }
    for (int i = now.first; i < now.last; ++i)
        ++use(m_new, i).timesNew;
    std::vector<Anchor> found;
    std::vector<int> places;
    for (int i = now.first; i < now.last; ++i) {
        const Use &each = use(m_new, i);
        if (each.timesOld != 1 || each.timesNew != 1)
            continue;
        found.push_back({each.old, i});
        places.push_back(each.old);
    }
    for (int i = old.first; i < old.last; ++i)
        use(m_old, i) = Use();
    for (int i = now.first; i < now.last; ++i)
        use(m_new, i) = Use();
    const std::vector<bool> stays = qxLongestRun::of(places);
    std::vector<Anchor> kept;
    for (std::size_t i = 0; i < found.size(); ++i) {
        if (stays[i])
            kept.push_back(found[i]);
    }
    return kept;
}

void LineComparison::compare(Range old, Range now, int depth)
{
    const auto isSame = [&](int one, int other) {
        return m_old[std::size_t(one)] == m_new[std::size_t(other)];
    };
    const int first = old.first, last = old.last;
    while (old.first < old.last && now.first < now.last && isSame(old.first, now.first)) {
        ++old.first;
        ++now.first;
    }
    keep(first, old.first);
    while (old.first < old.last && now.first < now.last && isSame(old.last - 1, now.last - 1)) {
        --old.last;
        --now.last;
    }
    compareBetween(depth > 0 ? anchors(old, now) : std::vector<Anchor>(), old, now, depth);
    keep(old.last, last);
}

void LineComparison::compareBetween(const std::vector<Anchor> &anchors, Range old, Range now,
                                    int depth)
{
    for (const Anchor &each : anchors) {
        compare({old.first, each.first}, {now.first, each.second}, depth - 1);
        keep(each.first, each.first + 1);
        old.first = each.first + 1;
        now.first = each.second + 1;
    }
    if (!anchors.empty())
        return compare(old, now, depth - 1);
    for (int i = old.first; i < old.last; ++i)
        lines.push_back({qxLine::Removed, m_before[i]});
    for (int i = now.first; i < now.last; ++i)
        lines.push_back({qxLine::Added, m_after[i]});
}

/// The lines; an empty text has none, and the end of the last one makes no further one.
QStringList linesOf(const QString &text)
{
    QStringList lines = text.split(QLatin1Char('\n'));
    if (lines.last().isEmpty())
        lines.removeLast();
    return lines;
}

QString partOf(int first, int count)
{
    // Of no lines the one before is told.
    return QStringLiteral("%1,%2").arg(count > 0 ? first + 1 : first).arg(count);
}

/// Lines that differ with those around them.
struct Hunk {
    int first, last; ///< from the first one to before the last one
    int old, now; ///< the places of the first one in both texts; then those behind the last one
};

void add(QStringList &result, const QVector<qxLine> &lines, Hunk &hunk)
{
    const Hunk begin = hunk;
    QStringList written;
    for (int i = hunk.first; i < hunk.last; ++i) {
        hunk.old += lines[i].sort != qxLine::Added ? 1 : 0;
        hunk.now += lines[i].sort != qxLine::Removed ? 1 : 0;
        written += QString(QLatin1Char(" -+"[lines[i].sort])) + lines[i].text;
    }
    result +=
        QStringLiteral("@@ -%1 +%2 @@")
            .arg(partOf(begin.old, hunk.old - begin.old), partOf(begin.now, hunk.now - begin.now));
    result += written;
}

} // namespace

QVector<qxLine> qxLineDiff::of(const QString &before, const QString &after)
{
    return LineComparison(linesOf(before), linesOf(after)).lines;
}

QStringList qxLineDiff::unified(const QString &before, const QString &after)
{
    const QVector<qxLine> lines = of(before, after);
    const auto isKept = [&](int place) { return lines[place].sort == qxLine::Kept; };
    QStringList result;
    Hunk hunk{0, 0, 0, 0};
    for (int place = 0; place < lines.size(); ++place) {
        if (isKept(place))
            continue;
        const int done = hunk.last;
        hunk.first = std::max(done, place - Context);
        for (int kept = 0; place < lines.size() && kept <= 2 * Context; ++place) {
            kept = isKept(place) ? kept + 1 : 0;
            hunk.last = isKept(place) ? hunk.last : place + 1;
        }
        hunk.last = std::min(hunk.last + Context, lines.size());
        hunk.old += hunk.first - done; // lines in between are in both texts
        hunk.now += hunk.first - done;
        add(result, lines, hunk);
        place = hunk.last - 1;
    }
    if (!before.isEmpty() && !after.isEmpty() && before != after
        && before.endsWith(QLatin1Char('\n')) != after.endsWith(QLatin1Char('\n')))
        result += after.endsWith(QLatin1Char('\n'))
            ? QStringLiteral("\\ the last line has a line break now")
            : QStringLiteral("\\ the last line has no line break any more");
    return result;
}
