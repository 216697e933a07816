#include "qxDiffReport.h"

#include "Compare/qxLineDiff.h"
#include "Core/qxVisibleText.h"
#include "qxDiffWords.h"
#include "qxOutput.h"

#include <QJsonArray>
#include <QJsonObject>

namespace {

typedef QVector<qxDiffReport::Line> Lines;

/// A line that stands apart.
void addHeading(Lines &lines, const QString &text)
{
    lines.push_back({0, QLatin1Char(' '), QString()});
    lines.push_back({0, QLatin1Char(' '), text});
}

void addScript(Lines &lines, const qxFieldDifference &field)
{
    for (const QString &line : qxLineDiff::unified(field.before, field.after)) {
        const QChar sign = line.at(0);
        const bool isPlace = sign == QLatin1Char('@') || sign == QLatin1Char('\\');
        lines.push_back({3, isPlace ? QLatin1Char('@') : sign, isPlace ? line : line.mid(1)});
    }
}

void addThing(Lines &lines, const qxFileComparison &comparison, const qxThingDifference &thing,
              bool brief)
{
    QString title = qxDiffWords::title(comparison, thing);
    if (brief && thing.sort() == qxDifferenceSort::Renamed)
        title += QStringLiteral(" (") + qxDiffWords::line(thing.fields.first()) + QLatin1Char(')');
    lines.push_back({1, qxDiffWords::sign(thing.sort()), title});
    for (int i = 0; i < thing.fields.size() && !brief; ++i) {
        const qxFieldDifference &field = thing.fields[i];
        lines.push_back({2, qxDiffWords::sign(field.sort), qxDiffWords::line(field)});
        if (field.field == QLatin1String("script"))
            addScript(lines, field);
    }
}

QString written(const qxDiffReport::Line &line)
{
    const QString text = qxVisibleText::line(line.text);
    if (line.depth == 0)
        return text;
    const QString indented(2 * line.depth, QLatin1Char(' '));
    return line.sign == QLatin1Char('@') ? indented + text
                                         : indented + line.sign + QLatin1Char(' ') + text;
}

qxOutput::Color colorOf(const qxDiffReport::Line &line)
{
    switch (line.sign.unicode()) {
    case '+':
        return qxOutput::Green;
    case '-':
        return qxOutput::Red;
    case '~':
        return qxOutput::Yellow;
    case '@':
        return qxOutput::Cyan;
    default:
        return qxOutput::Plain;
    }
}

QJsonValue valueOf(const qxFieldDifference &field, const QString &text)
{
    if (field.field != QLatin1String("preview"))
        return text;
    const qxDiffWords::Picture picture = qxDiffWords::picture(text);
    return QJsonObject{{QStringLiteral("bytes"), picture.bytes},
                       {QStringLiteral("width"), qMax(0, picture.size.width())},
                       {QStringLiteral("height"), qMax(0, picture.size.height())}};
}

QJsonObject objectOf(const qxFieldDifference &field)
{
    QJsonObject object{{QStringLiteral("field"), QString(field.field)},
                       {QStringLiteral("sort"), qxDiffWords::word(field.sort)}};
    if (!field.name.isEmpty())
        object[QStringLiteral("name")] = field.name;
    if (field.sort != qxDifferenceSort::Added)
        object[QStringLiteral("before")] = valueOf(field, field.before);
    if (field.sort != qxDifferenceSort::Removed)
        object[QStringLiteral("after")] = valueOf(field, field.after);
    if (field.field == QLatin1String("script"))
        object[QStringLiteral("lines")] =
            QJsonArray::fromStringList(qxLineDiff::unified(field.before, field.after));
    return object;
}

QJsonObject objectOf(const qxFileComparison &comparison, const qxThingDifference &thing)
{
    QJsonArray fields;
    for (const qxFieldDifference &each : thing.fields)
        fields += objectOf(each);
    const bool isGone = thing.after < 0;
    const qxDocument &document = isGone ? comparison.before : comparison.after;
    const auto place = std::size_t(isGone ? thing.before : thing.after);
    QJsonObject object{{QStringLiteral("sort"), qxDiffWords::word(thing.sort())},
                       {QStringLiteral("fields"), fields}};
    if (thing.thing == qxThingDifference::Group) {
        object[QStringLiteral("name")] = document.groups[place].name;
    } else if (thing.thing == qxThingDifference::Variant) {
        object[QStringLiteral("name")] = document.variants[place].name;
        object[QStringLiteral("kind")] = QString(document.variants[place].kind->word);
    } else {
        const qxDocumentSet &set = document.sets[place];
        object[QStringLiteral("name")] = set.name;
        object[QStringLiteral("group")] =
            set.group < 0 ? QString() : document.groups[std::size_t(set.group)].name;
    }
    return object;
}

} // namespace

QVector<qxDiffReport::Line> qxDiffReport::lines(const qxFileComparison &comparison, bool brief)
{
    if (!comparison.isDifferent())
        return {{0, QLatin1Char(' '), qxDiffWords::summary(comparison)}};
    Lines lines{{0, QLatin1Char('-'), QStringLiteral("--- ") + comparison.nameBefore},
                {0, QLatin1Char('+'), QStringLiteral("+++ ") + comparison.nameAfter}};
    QString heading;
    for (const qxThingDifference &each : comparison.variants.things) {
        const QString own = qxDiffWords::heading(comparison, each);
        if (own != heading)
            addHeading(lines, own);
        heading = own;
        addThing(lines, comparison, each, brief);
    }
    if (!comparison.scene.isEmpty())
        addHeading(lines, QStringLiteral("Rest of the scene"));
    for (const qxSceneDifference &each : comparison.scene)
        lines.push_back({1, qxDiffWords::sign(each.sort), qxDiffWords::line(each)});
    addHeading(lines, qxDiffWords::summary(comparison));
    return lines;
}

QString qxDiffReport::text(const qxFileComparison &comparison, bool brief)
{
    QString text;
    for (const Line &each : lines(comparison, brief))
        text += written(each) + QLatin1Char('\n');
    return text;
}

void qxDiffReport::print(const qxFileComparison &comparison, bool brief)
{
    if (!qxOutput::hasColors())
        return qxOutput::text(text(comparison, brief));
    for (const Line &each : lines(comparison, brief))
        qxOutput::line(written(each), colorOf(each));
}

QJsonObject qxDiffReport::json(const qxFileComparison &comparison)
{
    QJsonArray things[3], scene;
    for (const qxThingDifference &each : comparison.variants.things)
        things[each.thing] += objectOf(comparison, each);
    for (const qxSceneDifference &each : comparison.scene) {
        QJsonObject object{{QStringLiteral("what"), each.what},
                           {QStringLiteral("sort"), qxDiffWords::word(each.sort)},
                           {QStringLiteral("names"), QJsonArray::fromStringList(each.names)}};
        if (each.sort == qxDifferenceSort::Renamed)
            object[QStringLiteral("oldNames")] = QJsonArray::fromStringList(each.oldNames);
        scene += object;
    }
    return {{QStringLiteral("before"), comparison.nameBefore},
            {QStringLiteral("after"), comparison.nameAfter},
            {QStringLiteral("groups"), things[qxThingDifference::Group]},
            {QStringLiteral("sets"), things[qxThingDifference::Set]},
            {QStringLiteral("variants"), things[qxThingDifference::Variant]},
            {QStringLiteral("scene"), scene}};
}
