#pragma once

#include <QString>

#include <string>

/// Texts at the boundary: QString inside the module, UTF-8 at the host and in scripts.
namespace qxText {

/// The text in UTF-8, NULs included. Every selection converts names, most of them plain ASCII:
/// those take one allocation at most.
inline std::string toUtf8(const QString &text)
{
    std::string utf8;
    utf8.reserve(std::size_t(text.size()));
    for (const QChar character : text) {
        if (character.unicode() > 0x7F)
            return text.toStdString();
        utf8.push_back(char(character.unicode()));
    }
    return utf8;
}

std::string toUtf8(const QByteArray &) = delete; // bytes would lose what follows a NUL

/// The text of these bytes; what is no UTF-8 becomes U+FFFD.
inline QString fromUtf8(const std::string &text)
{
    return QString::fromUtf8(text.data(), int(text.size()));
}

/// The text as it stands between two such quotes in a script: what would end it is escaped.
inline QString escaped(QString text, QChar quote)
{
    const QLatin1Char backslash('\\');
    text.replace(backslash, QLatin1String("\\\\"));
    text.replace(quote, backslash + QString(quote));
    text.replace(QLatin1Char('\n'), QLatin1String("\\n"));
    return text.replace(QLatin1Char('\r'), QLatin1String("\\r"));
}

} // namespace qxText
