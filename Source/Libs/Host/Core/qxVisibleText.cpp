#include "Core/qxVisibleText.h"

#include <QVector>

#include <algorithm>

namespace {

bool steers(uint code)
{
    return QChar::category(code) == QChar::Other_Control || code == 0x061C
        || (code >= 0x200E && code <= 0x200F) || (code >= 0x2028 && code <= 0x202E)
        || (code >= 0x2066 && code <= 0x2069);
}

bool isLayout(uint code)
{
    return code == '\n' || code == '\t';
}

QString escape(uint code)
{
    switch (code) {
    case '\n':
        return QStringLiteral("\\n");
    case '\r':
        return QStringLiteral("\\r");
    case '\t':
        return QStringLiteral("\\t");
    default:
        const int digits = code > 0xFFFF ? 8 : code > 0xFF ? 4 : 2;
        const char *const sign = code > 0xFFFF ? "U" : code > 0xFF ? "u" : "x";
        return QStringLiteral("\\%1%2")
            .arg(QLatin1String(sign))
            .arg(code, digits, 16, QLatin1Char('0'));
    }
}

template <class Predicate>
QString escaped(const QString &text, const Predicate &isEscaped)
{
    const QVector<uint> codes = text.toUcs4();
    if (std::none_of(codes.begin(), codes.end(), isEscaped))
        return text;
    QString result;
    for (const uint each : codes)
        result += isEscaped(each) ? escape(each) : QString::fromUcs4(&each, 1);
    return result;
}

} // namespace

QString qxVisibleText::line(const QString &text)
{
    return escaped(text, steers);
}

QString qxVisibleText::lines(const QString &text)
{
    return escaped(text, [](uint code) { return !isLayout(code) && steers(code); });
}

QString qxVisibleText::json(const QString &text)
{
    QString result;
    for (const QChar each : text) {
        const bool isPlain = each.unicode() < 0x7F || !steers(each.unicode());
        result += isPlain ? QString(each)
                          : "\\u" + QString::number(each.unicode(), 16).rightJustified(4, '0');
    }
    return result;
}

QString qxVisibleText::code(const QString &text)
{
    return escaped(text, [](uint code) { return !isLayout(code) && !QChar::isPrint(code); });
}
