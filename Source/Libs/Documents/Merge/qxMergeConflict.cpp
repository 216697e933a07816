#include "Merge/qxMergeConflict.h"

#include <QJsonValue>

namespace {

const int longestText = 200; ///< characters of a text for people

QString inQuotes(const QString &name)
{
    return QLatin1Char('"') + name + QLatin1Char('"');
}

QString shortText(const QString &text)
{
    if (text.isNull())
        return QStringLiteral("(not there)");
    if (text.isEmpty())
        return QStringLiteral("(empty)");
    QString line = text;
    line.replace(QLatin1Char('\n'), QLatin1String("\\n"));
    return line.size() > longestText ? line.left(longestText) + QStringLiteral(" ...") : line;
}

QJsonValue valueOf(const QString &text)
{
    return text.isNull() ? QJsonValue() : QJsonValue(text);
}

QString wordsOf(const qxMergeConflict &conflict)
{
    switch (conflict.thing) {
    case qxMergeConflict::Group:
        return QStringLiteral("group");
    case qxMergeConflict::Set:
        return QStringLiteral("set");
    default:
        return QStringLiteral("%1 variant").arg(conflict.kind->word);
    }
}

const char *sortOf(qxMergeConflict::Sort sort)
{
    switch (sort) {
    case qxMergeConflict::Changed:
        return "changed";
    case qxMergeConflict::RemovedByOurs:
        return "removedByOurs";
    case qxMergeConflict::RemovedByTheirs:
        return "removedByTheirs";
    default:
        return "sameName";
    }
}

/// What became of it.
QString outcomeOf(const qxMergeConflict &conflict, qxMergePreference preference)
{
    const bool isOurs = preference == qxMergePreference::Ours;
    if (conflict.sort == qxMergeConflict::SameName)
        return QStringLiteral("the second one is called %1 now")
            .arg(inQuotes(conflict.other.isEmpty() ? conflict.second : conflict.other));
    if (preference != qxMergePreference::Both)
        return isOurs ? QStringLiteral("ours is taken") : QStringLiteral("theirs is taken");
    if (conflict.sort != qxMergeConflict::Changed)
        return QStringLiteral("it is kept");
    const bool isState = !conflict.other.isEmpty();
    return QStringLiteral("%1 has ours, %2 has theirs")
        .arg(inQuotes(isState ? conflict.entry : conflict.name),
             inQuotes(isState ? conflict.other : conflict.second));
}

} // namespace

qxMergeConflict qxMergeConflict::removed(int onlySide)
{
    qxMergeConflict conflict;
    conflict.sort = onlySide == MergeOurs ? RemovedByTheirs : RemovedByOurs;
    return conflict;
}

QString qxMergeConflict::text(qxMergePreference preference) const
{
    QString what = wordsOf(*this) + QLatin1Char(' ') + inQuotes(name);
    if (!field.isEmpty())
        what += QStringLiteral(", ") + field;
    if (!entry.isEmpty())
        what += QLatin1Char(' ') + inQuotes(entry);
    QString lines;
    switch (sort) {
    case RemovedByOurs:
        lines = what + QStringLiteral(": ours removed it, theirs changed it or uses it anew\n");
        break;
    case RemovedByTheirs:
        lines = what + QStringLiteral(": theirs removed it, ours changed it or uses it anew\n");
        break;
    case SameName:
        lines = what + QStringLiteral(": ours and theirs gave this name to different things\n");
        break;
    default:
        lines = what
            + QStringLiteral("\n  base:   %1\n  ours:   %2\n  theirs: %3\n")
                  .arg(shortText(texts[MergeBase]), shortText(texts[MergeOurs]),
                       shortText(texts[MergeTheirs]));
    }
    return lines + QStringLiteral("  -> ") + outcomeOf(*this, preference) + QLatin1Char('\n');
}

QJsonObject qxMergeConflict::json() const
{
    const char *const things[] = {"group", "set", "variant"};
    QJsonObject object{{QStringLiteral("thing"), QLatin1String(things[thing])},
                       {QStringLiteral("conflict"), QLatin1String(sortOf(sort))},
                       {QStringLiteral("name"), name}};
    if (kind)
        object[QStringLiteral("kind")] = kind->word;
    const QPair<const char *, QString> parts[] = {
        {"field", field}, {"entry", entry}, {"second", second}, {"other", other}};
    for (const auto &[key, text] : parts) {
        if (!text.isEmpty())
            object[QLatin1String(key)] = text;
    }
    if (sort == Changed) {
        object[QStringLiteral("base")] = valueOf(texts[MergeBase]);
        object[QStringLiteral("ours")] = valueOf(texts[MergeOurs]);
        object[QStringLiteral("theirs")] = valueOf(texts[MergeTheirs]);
    }
    return object;
}
