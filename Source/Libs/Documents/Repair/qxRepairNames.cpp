#include "Repair/qxRepairNames.h"

#include <QRegularExpression>
#include <QSet>

#include <algorithm>

namespace {

QSet<QString> setOf(const QStringList &names)
{
    return QSet<QString>(names.begin(), names.end());
}

} // namespace

QStringList qxRepairNames::stepsOf(const QString &path)
{
    return path.split(QLatin1Char('/'));
}

double qxRepairNames::overlap(const QStringList &one, const QStringList &other)
{
    const QSet<QString> a = setOf(one);
    const QSet<QString> b = setOf(other);
    const int both = (a & b).size();
    const int all = a.size() + b.size() - both;
    return all == 0 ? 1 : double(both) / all;
}

double qxRepairNames::part(const QStringList &names, const QStringList &others)
{
    const QSet<QString> wanted = setOf(names);
    return wanted.isEmpty() ? 1 : double((wanted & setOf(others)).size()) / wanted.size();
}

QStringList qxRepairNames::optionsOf(const qxDocumentVariant &variant)
{
    QStringList names;
    for (const qxDocumentOption &each : variant.options) {
        if (!each.name.startsWith(QLatin1Char('!')))
            names += each.name;
    }
    return names;
}

int qxRepairNames::placeOf(const qxDocumentVariant &variant, const QString &option)
{
    return optionsOf(variant).indexOf(option);
}

bool qxRepairNames::areOfSeries(const QString &was, const QString &is)
{
    static const QRegularExpression numbers(QStringLiteral("[0-9]+"));
    static const QRegularExpression ending(QStringLiteral("[^\\p{L}]+$"));
    const auto styleOf = [](QString name) { return name.replace(numbers, QStringLiteral("#")); };
    const auto stemOf = [](QString name) { return name.remove(ending); };
    // Loading calls the parts of "A" like that: "A 2", "A 3".
    const QString part = QStringLiteral(" #");
    const bool isPart = styleOf(is) == styleOf(was) + part || styleOf(was) == styleOf(is) + part;
    return was != is && (isPart || styleOf(was) == styleOf(is) || stemOf(was) == is);
}

void qxRepairNames::sort(std::vector<qxRepairCandidate> &candidates, const QString &broken)
{
    constexpr std::size_t Shown = 5;
    constexpr double Worthless = 0.05;
    std::sort(candidates.begin(), candidates.end(),
              [](const qxRepairCandidate &one, const qxRepairCandidate &other) {
                  return one.score != other.score ? one.score > other.score : one.name < other.name;
              });
    QSet<QString> known{broken};
    std::vector<qxRepairCandidate> best;
    for (qxRepairCandidate &each : candidates) {
        if (each.score < Worthless || each.reason.isEmpty() || known.contains(each.name))
            continue;
        known.insert(each.name);
        best.push_back(std::move(each));
        if (best.size() == Shown)
            break;
    }
    candidates = std::move(best);
}
