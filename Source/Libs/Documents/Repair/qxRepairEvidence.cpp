#include "Repair/qxRepairEvidence.h"

void qxRepairEvidence::add(double weight, double share, const char *reason)
{
    m_all += weight;
    m_got += weight * share;
    if (share > 0.5)
        m_reasons += QLatin1String(reason);
}

void qxRepairEvidence::addBonus(double weight, double share, const char *reason)
{
    if (share > 0)
        add(weight * share, 1, reason);
}
