#include "qxLossReport.h"

#include "Report/qxOutput.h"

#include <QHash>
#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>

namespace {

const char *const _outcomes[] = {"carried", "approximated", "dropped"};
const int _mostSets = 4; ///< that a line names

QString wordOf(const qxLoss &loss)
{
    return QLatin1String(_outcomes[loss.outcome]);
}

QString titleOf(const qxLoss &loss)
{
    QString thing = loss.kind;
    if (!loss.name.isEmpty())
        thing += QLatin1Char(' ') + loss.name;
    if (!loss.state.isEmpty())
        thing += QStringLiteral(" = %1").arg(loss.state);
    return thing;
}

QString listed(const QStringList &sets)
{
    if (sets.size() <= _mostSets)
        return sets.join(QStringLiteral(", "));
    return QStringLiteral("%1 and %2 more sets")
        .arg(sets.mid(0, _mostSets - 1).join(QStringLiteral(", ")))
        .arg(sets.size() - _mostSets + 1);
}

/// The things with one outcome for one reason, in the order in which they were met, each with the
/// sets that have it.
struct ReportBlock {
    QString title;
    QStringList things;
    QHash<QString, QStringList> sets;
};

QList<ReportBlock> blocksOf(const QList<qxLoss> &losses, qxLoss::Outcome outcome)
{
    QList<ReportBlock> blocks;
    QHash<QString, int> places;
    for (const qxLoss &loss : losses) {
        if (loss.outcome != outcome)
            continue;
        const int place = places.value(loss.text, blocks.size());
        if (place == blocks.size()) {
            places[loss.text] = place;
            blocks += ReportBlock{QStringLiteral("%1: %2").arg(wordOf(loss), loss.text), {}, {}};
        }
        ReportBlock &block = blocks[place];
        const QString thing = titleOf(loss);
        if (!block.sets.contains(thing))
            block.things += thing;
        QStringList &sets = block.sets[thing];
        if (!loss.set.isEmpty())
            sets += loss.set;
    }
    return blocks;
}

} // namespace

int qxLossReport::count(qxLoss::Outcome outcome) const
{
    return int(std::count_if(m_losses.begin(), m_losses.end(),
                             [outcome](const qxLoss &loss) { return loss.outcome == outcome; }));
}

void qxLossReport::print() const
{
    qxOutput::line(QStringLiteral("%1 carried, %2 approximated, %3 dropped")
                       .arg(count(qxLoss::Carried))
                       .arg(count(qxLoss::Approximated))
                       .arg(count(qxLoss::Dropped)));
    if (count(qxLoss::Carried) == m_losses.size())
        qxOutput::line(QStringLiteral("nothing is lost"));
    for (const qxLoss::Outcome outcome : {qxLoss::Approximated, qxLoss::Dropped}) {
        for (const ReportBlock &block : blocksOf(m_losses, outcome)) {
            qxOutput::line(QString());
            qxOutput::line(block.title);
            QList<QStringList> rows;
            for (const QString &thing : block.things)
                rows += QStringList{QLatin1String("  ") + thing, listed(block.sets[thing])};
            qxOutput::table(rows);
        }
    }
}

QJsonObject qxLossReport::toJson() const
{
    QJsonArray all;
    for (const qxLoss &loss : m_losses)
        all += QJsonObject{
            {QStringLiteral("set"), loss.set},         {QStringLiteral("kind"), loss.kind},
            {QStringLiteral("name"), loss.name},       {QStringLiteral("state"), loss.state},
            {QStringLiteral("outcome"), wordOf(loss)}, {QStringLiteral("text"), loss.text}};
    return {{QStringLiteral("carried"), count(qxLoss::Carried)},
            {QStringLiteral("approximated"), count(qxLoss::Approximated)},
            {QStringLiteral("dropped"), count(qxLoss::Dropped)},
            {QStringLiteral("losses"), all}};
}
