#include "qxNearest.h"

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

/// How many characters must be put in, taken out or replaced to make one text of the other.
int editsBetween(const QString &one, const QString &other)
{
    std::vector<int> row(std::size_t(other.size()) + 1);
    std::iota(row.begin(), row.end(), 0);
    for (int i = 0; i < one.size(); ++i) {
        int diagonal = row[0]++;
        for (int j = 0; j < other.size(); ++j) {
            int &here = row[std::size_t(j) + 1];
            const int replaced = diagonal + (one[i] != other[j]);
            diagonal = here;
            here = std::min({replaced, here + 1, row[std::size_t(j)] + 1});
        }
    }
    return row.back();
}

/// How many edits still let two texts of these lengths look alike.
int limitFor(int one, int other)
{
    return std::max(1, (std::max(one, other) + 1) / 3);
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

QStringList qxNearest::namesTo(const QString &wanted, const QStringList &names)
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

QString qxNearest::question(const QString &wanted, const QStringList &names)
{
    QStringList quoted = namesTo(wanted, names);
    if (quoted.isEmpty())
        return QString();
    for (QString &name : quoted)
        name = QLatin1Char('"') + name + QLatin1Char('"');
    const QString last = quoted.takeLast();
    const QString all = quoted.isEmpty()
        ? last
        : QStringLiteral("%1 or %2").arg(quoted.join(QLatin1String(", ")), last);
    return QStringLiteral("; did you mean %1?").arg(all);
}
