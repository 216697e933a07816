#include "Internal/Options/qxHotkey.h"

#include <QKeySequence>

void qxHotkey::map(const QString &text, int &key, Qt::KeyboardModifiers &modifiers)
{
    const QKeySequence sequence(text, QKeySequence::NativeText);
    const int combination = sequence.isEmpty() ? 0 : sequence[0];
    const bool isKnown = combination != Qt::Key_unknown; // What Qt makes of a text without a key.
    key = isKnown ? combination & 0x01FFFFFF : 0;
    modifiers = Qt::KeyboardModifiers(isKnown ? combination & int(0xFE000000) : 0);
}

QString qxHotkey::convertOld(const QString &text)
{
    const QChar joint = QLatin1Char('+');
    return text.trimmed().replace(QLatin1Char('-'), joint).replace(QLatin1Char(' '), joint);
}
