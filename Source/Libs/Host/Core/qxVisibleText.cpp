#include "Core/qxVisibleText.h"

#include <algorithm>

namespace {

bool steers(QChar each)
{
    const ushort code = each.unicode();
    return each.category() == QChar::Other_Control || (code >= 0x2028 && code <= 0x202E)
        || (code >= 0x2066 && code <= 0x2069);
}

QString escape(QChar each)
{
    switch (each.unicode()) {
    case '\n':
        return QStringLiteral("\\n");
    case '\r':
        return QStringLiteral("\\r");
    case '\t':
        return QStringLiteral("\\t");
    default:
        const QString form =
            each.unicode() > 0xFF ? QStringLiteral("\\u%1") : QStringLiteral("\\x%1");
        return form.arg(each.unicode(), 2, 16, QLatin1Char('0'));
    }
}

template <class Predicate>
QString escaped(const QString &text, const Predicate &isEscaped)
{
    if (std::none_of(text.begin(), text.end(), isEscaped))
        return text;
    QString result;
    for (const QChar each : text)
        result += isEscaped(each) ? escape(each) : QString(each);
    return result;
}

} // namespace

QString qxVisibleText::line(const QString &text)
{
    return escaped(text, steers);
}

QString qxVisibleText::lines(const QString &text)
{
    return escaped(text, [](QChar each) {
        return each != QLatin1Char('\n') && each != QLatin1Char('\t') && steers(each);
    });
}
