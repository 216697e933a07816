#include "Publish/qxLossReport.h"

#include "Report/qxOutput.h"

int qxLossReport::count(qxLoss::Outcome outcome) const
{
    int count = 0;
    for (const qxLoss &loss : m_losses)
        count += loss.outcome == outcome;
    return count;
}

void qxLossReport::print() const
{
    qxOutput::line(QStringLiteral("%1 carried").arg(count(qxLoss::Carried)));
}

QJsonObject qxLossReport::toJson() const
{
    return {};
}
