#include "qxFileNames.h"

#include <QStringList>

namespace {

/// Leaves room for a number and a suffix in the 255 bytes that file systems give.
constexpr int LongestName = 200;

bool isSafe(QChar character)
{
    return character.isLetterOrNumber() || character.isMark() || character.isSurrogate()
        || QStringLiteral(" -_+,()&").contains(character);
}

/// Names that some systems keep for devices.
bool isReserved(const QString &name)
{
    static const QStringList devices{QStringLiteral("con"), QStringLiteral("prn"),
                                     QStringLiteral("aux"), QStringLiteral("nul")};
    const QString folded = name.toLower();
    const bool isPort = folded.size() == 4 && folded[3].isDigit()
        && (folded.startsWith(QLatin1String("com")) || folded.startsWith(QLatin1String("lpt")));
    return isPort || devices.contains(folded);
}

QString safeName(const QString &name)
{
    QString safe;
    for (const QChar character : name)
        safe += isSafe(character) ? character : QLatin1Char('-');
    safe = safe.simplified();
    // A lone half of a character, or one cut in two, would be no UTF-8.
    safe = QString::fromUcs4(safe.toUcs4().constData(), safe.toUcs4().size());
    while (safe.toUtf8().size() > LongestName)
        safe.chop(safe.at(safe.size() - 1).isLowSurrogate() ? 2 : 1);
    safe = safe.trimmed();
    if (safe.isEmpty())
        return QStringLiteral("set");
    return isReserved(safe) ? safe + QLatin1Char('_') : safe;
}

} // namespace

QString qxFileNames::next(const QString &name)
{
    const QString safe = safeName(name);
    QString candidate = safe;
    for (int number = 2; m_taken.contains(candidate.toCaseFolded()); ++number)
        candidate = QStringLiteral("%1 %2").arg(safe).arg(number);
    m_taken.insert(candidate.toCaseFolded());
    return candidate + m_suffix;
}
