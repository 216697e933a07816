#include "qxDiffWords.h"

#include <QBuffer>
#include <QHash>
#include <QImageReader>
#include <QStringList>

namespace {

constexpr int ListedNames = 10;

QString quoted(const QString &name)
{
    return QStringLiteral("\"%1\"").arg(name);
}

/// Fields that have a name for people of their own.
QString labelOf(const qxFieldDifference &field)
{
    static const struct {
        const char *field, *label;
    } labels[] = {{"defaultViewpoint", "default viewpoint"},
                  {"default", "default state"},
                  {"sequential", "animations in turn"},
                  {"include", "captured"},
                  {"snapshot", "snapshot of"},
                  {"key", "hotkey of state"}};
    QString label = field.field;
    for (const auto &each : labels) {
        if (field.field == QLatin1String(each.field))
            label = QLatin1String(each.label);
    }
    return field.name.isEmpty() ? label : label + QLatin1Char(' ') + field.name;
}

QString sizesOf(const QString &base64)
{
    const qxDiffWords::Picture picture = qxDiffWords::picture(base64);
    if (base64.isEmpty())
        return QString();
    const QString bytes = QStringLiteral("%L1 bytes").arg(picture.bytes);
    return picture.size.isEmpty() ? bytes + QStringLiteral(", no picture")
                                  : QStringLiteral("%1 x %2 pixels, %3")
                                        .arg(picture.size.width())
                                        .arg(picture.size.height())
                                        .arg(bytes);
}

QString movedGroup(const qxFieldDifference &field)
{
    if (field.before.isEmpty())
        return QStringLiteral("moved into group ") + quoted(field.after);
    if (field.after.isEmpty())
        return QStringLiteral("moved out of group ") + quoted(field.before);
    return QStringLiteral("moved from group %1 to group %2")
        .arg(quoted(field.before), quoted(field.after));
}

QString movedPlace(const qxFieldDifference &field)
{
    const QString what = field.name.isEmpty() ? QString() : labelOf(field) + QLatin1Char(' ');
    return what
        + (field.after.isEmpty() ? QStringLiteral("moved to the front")
                                 : QStringLiteral("moved behind ") + quoted(field.after));
}

/// The text of what came or went, or both.
QString textsOf(const qxFieldDifference &field, const QString &before, const QString &after)
{
    if (field.sort == qxDifferenceSort::Changed)
        return QStringLiteral(": %1 -> %2").arg(before, after);
    const QString text = field.sort == qxDifferenceSort::Added ? after : before;
    return text.isEmpty() ? QString() : QStringLiteral(": ") + text;
}

} // namespace

QString qxDiffWords::word(qxDifferenceSort sort)
{
    switch (sort) {
    case qxDifferenceSort::Added:
        return QStringLiteral("added");
    case qxDifferenceSort::Removed:
        return QStringLiteral("removed");
    case qxDifferenceSort::Moved:
        return QStringLiteral("moved");
    case qxDifferenceSort::Renamed:
        return QStringLiteral("renamed");
    case qxDifferenceSort::Changed:
        break;
    }
    return QStringLiteral("changed");
}

QChar qxDiffWords::sign(qxDifferenceSort sort)
{
    return QLatin1Char(sort == qxDifferenceSort::Added         ? '+'
                           : sort == qxDifferenceSort::Removed ? '-'
                                                               : '~');
}

QString qxDiffWords::word(qxThingDifference::Thing thing)
{
    return thing == qxThingDifference::Group ? QStringLiteral("group")
        : thing == qxThingDifference::Set    ? QStringLiteral("set")
                                             : QStringLiteral("variant");
}

QString qxDiffWords::summary(const qxFileComparison &comparison)
{
    if (!comparison.isDifferent())
        return QStringLiteral("no differences");
    int counts[3][5] = {};
    for (const qxThingDifference &each : comparison.variants.things)
        ++counts[each.thing][int(each.sort())];
    QStringList parts;
    for (const auto thing :
         {qxThingDifference::Group, qxThingDifference::Set, qxThingDifference::Variant}) {
        QStringList numbers;
        for (const auto sort :
             {qxDifferenceSort::Added, qxDifferenceSort::Removed, qxDifferenceSort::Renamed,
              qxDifferenceSort::Moved, qxDifferenceSort::Changed}) {
            if (const int count = counts[thing][int(sort)])
                numbers += QStringLiteral("%1 %2").arg(count).arg(word(sort));
        }
        if (!numbers.isEmpty())
            parts += word(thing) + QStringLiteral("s: ") + numbers.join(QStringLiteral(", "));
    }
    if (!comparison.scene.isEmpty())
        parts += QStringLiteral("the rest of the scene differs");
    return parts.join(QStringLiteral("; "));
}

QString qxDiffWords::title(const qxFileComparison &comparison, const qxThingDifference &thing)
{
    const bool isGone = thing.after < 0;
    const qxDocument &document = isGone ? comparison.before : comparison.after;
    const auto place = std::size_t(isGone ? thing.before : thing.after);
    if (thing.thing == qxThingDifference::Group)
        return document.groups[place].name;
    if (thing.thing == qxThingDifference::Set)
        return document.sets[place].name;
    return document.variants[place].kind->word + QLatin1Char(' ') + document.variants[place].name;
}

const qxDocumentSet &qxDiffWords::set(const qxFileComparison &comparison,
                                      const qxThingDifference &thing)
{
    return thing.after < 0 ? comparison.before.sets[std::size_t(thing.before)]
                           : comparison.after.sets[std::size_t(thing.after)];
}

QString qxDiffWords::heading(const qxFileComparison &comparison, const qxThingDifference &thing)
{
    if (thing.thing == qxThingDifference::Group)
        return QStringLiteral("Groups");
    if (thing.thing == qxThingDifference::Variant)
        return QStringLiteral("Variants");
    const qxDocument &document = thing.after < 0 ? comparison.before : comparison.after;
    const int group = set(comparison, thing).group;
    return group < 0
        ? QStringLiteral("Sets in no group")
        : QStringLiteral("Sets of group ") + quoted(document.groups[std::size_t(group)].name);
}

QString qxDiffWords::line(const qxFieldDifference &field)
{
    if (field.field == QLatin1String("name"))
        return QStringLiteral("renamed, it was ") + quoted(field.before);
    if (field.field == QLatin1String("group"))
        return movedGroup(field);
    if (field.sort == qxDifferenceSort::Moved)
        return movedPlace(field);
    if (field.sort == qxDifferenceSort::Renamed)
        return labelOf(field) + QStringLiteral(" was ") + quoted(field.before);
    if (field.field == QLatin1String("script"))
        return labelOf(field);
    if (field.field == QLatin1String("preview"))
        return labelOf(field) + textsOf(field, sizesOf(field.before), sizesOf(field.after));
    return labelOf(field) + textsOf(field, field.before, field.after);
}

QString qxDiffWords::line(const qxSceneDifference &difference)
{
    if (difference.what == QLatin1String("buffers"))
        return QStringLiteral("data in buffers");
    QStringList names;
    QHash<QString, int> counts;
    for (int i = 0; i < difference.names.size(); ++i) {
        const QString &name = difference.names[i];
        QString text = name.isEmpty() ? QStringLiteral("without a name") : quoted(name);
        if (difference.sort == qxDifferenceSort::Renamed)
            text += QStringLiteral(" (it was %1)").arg(quoted(difference.oldNames[i]));
        if (++counts[text] == 1)
            names += text;
    }
    const int left = names.size() - ListedNames;
    names = names.mid(0, ListedNames);
    for (QString &each : names) {
        if (const int count = counts[each]; count > 1)
            each += QStringLiteral(" (%1 times)").arg(count);
    }
    if (left > 0)
        names += QStringLiteral("and %1 more").arg(left);
    return difference.what + QLatin1Char(' ') + names.join(QStringLiteral(", "));
}

qxDiffWords::Picture qxDiffWords::picture(const QString &base64)
{
    QByteArray bytes = QByteArray::fromBase64(base64.toLatin1());
    QBuffer buffer(&bytes);
    return {bytes.size(), QImageReader(&buffer).size()};
}
