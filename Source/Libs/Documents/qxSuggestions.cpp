#include "qxSuggestions.h"

#include <algorithm>
#include <cstdlib>
#include <map>
#include <numeric>
#include <vector>

namespace {

constexpr int Few = 3;
/// Shorter texts are part of too many names.
constexpr int LongEnough = 3;

QString folded(const QString &text)
{
    QString plain;
    for (const QChar each : text.normalized(QString::NormalizationForm_D).toUpper()) {
        if (!each.isMark())
            plain += each;
    }
    return plain;
}

/// How many characters must be put in, taken out, replaced or swapped with their neighbour to make
/// one text of the other.
int editsBetween(const QString &one, const QString &other)
{
    std::vector<int> beforeLast;
    std::vector<int> last(std::size_t(other.size()) + 1);
    std::iota(last.begin(), last.end(), 0);
    for (int i = 0; i < one.size(); ++i) {
        std::vector<int> row(last.size(), i + 1);
        for (int j = 0; j < other.size(); ++j) {
            const std::size_t at = std::size_t(j) + 1;
            row[at] =
                std::min({last[at - 1] + (one[i] != other[j]), last[at] + 1, row[at - 1] + 1});
            if (i > 0 && j > 0 && one[i] == other[j - 1] && one[i - 1] == other[j])
                row[at] = std::min(row[at], beforeLast[at - 2] + 1);
        }
        beforeLast.swap(last);
        last.swap(row);
    }
    return last.back();
}

/// How many edits still let two texts of these lengths look alike.
int limitFor(int one, int other)
{
    return std::max(1, std::max(one, other) / 3);
}

/// The edits between two texts, -1 when they are not alike.
int editsOf(const QString &wanted, const QString &name)
{
    const int limit = limitFor(wanted.size(), name.size());
    if (std::abs(wanted.size() - name.size()) > limit)
        return -1;
    const int edits = editsBetween(wanted, name);
    return edits <= limit && edits < wanted.size() ? edits : -1;
}

/// 0 for the same text, more the less they are alike, -1 when they are not. Names of several words
/// may be called by one of them.
int distance(const QString &wanted, const QString &name)
{
    int best = editsOf(wanted, name);
    const auto take = [&best](int edits) {
        if (edits >= 0)
            best = best < 0 ? edits : std::min(best, edits);
    };
    if (wanted.size() >= LongEnough && name.contains(wanted))
        take(1);
    for (const QString &word : name.split(QLatin1Char(' '))) {
        if (wanted.size() >= LongEnough && word.size() < name.size() && editsOf(wanted, word) >= 0)
            take(editsOf(wanted, word) + 1);
    }
    return best;
}

} // namespace

QStringList qxSuggestions::of(const QString &wanted, const QStringList &names)
{
    const QString key = folded(wanted);
    std::multimap<int, QString> near;
    for (const QString &name : names) {
        const int far = distance(key, folded(name));
        if (far >= 0)
            near.emplace(far, name);
    }
    QStringList best;
    for (auto each = near.begin(); each != near.end() && best.size() < Few; ++each) {
        if (each->first <= near.begin()->first + 1)
            best += each->second;
    }
    return best;
}

QString qxSuggestions::question(const QString &wanted, const QStringList &names)
{
    return question(of(wanted, names));
}

QString qxSuggestions::question(const QStringList &names)
{
    if (names.isEmpty())
        return QString();
    QStringList quoted = names;
    for (QString &name : quoted)
        name = QLatin1Char('"') + name + QLatin1Char('"');
    const QString last = quoted.takeLast();
    const QString all = quoted.isEmpty()
        ? last
        : QStringLiteral("%1 or %2").arg(quoted.join(QLatin1String(", ")), last);
    return QStringLiteral("; did you mean %1?").arg(all);
}
