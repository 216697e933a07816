#include "Repair/qxRepairEvidence.h"

void qxRepairEvidence::add(double weight, double share, const char *reason)
{
    m_all += weight;
    m_got += weight * share;
    if (share > 0.5 && *reason)
        m_reasons += QLatin1String(reason);
}

void qxRepairEvidence::addBonus(double weight, double share, const char *reason)
{
    if (share > 0)
        add(weight * share, 1, reason);
}

void qxRepairEvidence::addSpelling(double weight, double likeness, const char *reason)
{
    m_all += weight;
    if (likeness <= 0.3)
        return;
    m_got += weight * likeness;
    m_reasons += QLatin1String(reason);
}
