#include "qxControlCharacters.h"

#include <QRegularExpression>

namespace {

/// The first of as many code points as there are control characters below the blank; no text has
/// them.
constexpr uint firstStandIn = 0xFDD0;

bool isForbidden(uint code)
{
    return (code < 0x20 && code != '\t' && code != '\n' && code != '\r')
        || (code >= 0xD800 && code < 0xE000) || code == 0xFFFE || code == 0xFFFF;
}

/// A reference: it means the same in every encoding.
QString standInFor(uint code)
{
    const uint shown = code < 0x20 ? firstStandIn + code : uint(QChar::ReplacementCharacter);
    return QStringLiteral("&#%1;").arg(shown);
}

uint codeOf(const QString &reference)
{
    const bool isHexadecimal = reference.startsWith(QLatin1Char('x'));
    return isHexadecimal ? reference.mid(1).toUInt(nullptr, 16) : reference.toUInt();
}

/// Comments and instructions; the ends of a CDATA section; a control character; a reference.
const char *const pattern = R"((<!--.*?-->|<\?.*?\?>)|(<!\[CDATA\[|\]\]>))"
                            R"(|([\x01-\x08\x0B\x0C\x0E-\x1F])|&#(x?[0-9A-Fa-f]{1,8});)";

} // namespace

QByteArray qxControlCharacters::replaced(const QByteArray &document, int &first)
{
    static const QRegularExpression places(QString::fromLatin1(pattern),
                                           QRegularExpression::DotMatchesEverythingOption);
    first = -1;
    const QString text = QString::fromLatin1(document); // one character for each byte
    QString result;
    int done = 0;
    bool isInSection = false;
    for (auto each = places.globalMatch(text); each.hasNext();) {
        const QRegularExpressionMatch found = each.next();
        if (found.capturedLength(2) > 0)
            isInSection = found.capturedView(2).startsWith(QLatin1Char('<'));
        const bool isReference = found.capturedLength(4) > 0;
        if ((!isReference && found.capturedLength(3) == 0) || (isReference && isInSection))
            continue;
        const uint code = isReference ? codeOf(found.captured(4)) : found.captured(3)[0].unicode();
        if (!isForbidden(code))
            continue;
        if (first < 0)
            first = found.capturedStart();
        result += text.midRef(done, found.capturedStart() - done);
        result +=
            isInSection ? QStringLiteral("]]>%1<![CDATA[").arg(standInFor(code)) : standInFor(code);
        done = found.capturedEnd();
    }
    return first < 0 ? document : (result + text.midRef(done)).toLatin1();
}

QString qxControlCharacters::restored(QString text)
{
    for (QChar &each : text) {
        if (each.unicode() >= firstStandIn && each.unicode() < firstStandIn + 0x20)
            each = QChar(each.unicode() - firstStandIn);
    }
    return text;
}
