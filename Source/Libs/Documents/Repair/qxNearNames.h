#pragma once

#include <QHash>
#include <QStringList>

#include <vector>

/// Finds names that are spelt nearly like another, by the pairs of characters that they share (the
/// coefficient of Dice). The time for a look-up does not grow with the number of names that share
/// nothing particular with the wanted one.
class qxNearNames {
public:
    /// Adds a name, which is found by its place.
    void add(const QString &name, int place);
    /// The places of the nearest names, some at most; case does not count.
    std::vector<int> near(const QString &name) const;
    /// How much a name is like the one before: 1 for the same, 0 for nothing in common. What it has
    /// in addition counts less than what it lacks.
    static double likeness(const QString &was, const QString &is);

private:
    QHash<quint64, std::vector<int>> m_places; ///< by three characters
};
