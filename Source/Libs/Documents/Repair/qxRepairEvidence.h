#pragma once

#include <QStringList>

#include <algorithm>

/// What speaks for a candidate, bit by bit.
class qxRepairEvidence {
public:
    /// Something that is known of what is looked for, and how much the candidate is like it.
    void add(double weight, double share, const char *reason);
    /// How a name is spelt, by qxNearNames::likeness; little is nothing.
    void addSpelling(double weight, double likeness, const char *reason = "near spelling");
    /// Something that speaks for the candidate where it is so, and against none.
    void addBonus(double weight, double share, const char *reason);
    /// What speaks against it altogether.
    void doubt(double factor) { m_factor *= factor; }

    /// From 0 to 1. `prior` stands for what is not known: with little evidence it keeps it low.
    double score(double prior) const { return m_factor * m_got / std::max(0.01, m_all + prior); }
    /// In words, most important first as they were added.
    QString reason() const { return m_reasons.join(QLatin1String(", ")); }

private:
    double m_got = 0;
    double m_all = 0;
    double m_factor = 1;
    QStringList m_reasons;
};
