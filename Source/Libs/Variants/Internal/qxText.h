#pragma once

#include <QString>

#include <string>

/// Texts at the boundary: QString inside the module, UTF-8 at the host and in scripts.
namespace qxText {

inline std::string toUtf8(const QString &text)
{
    const QByteArray bytes = text.toUtf8();
    return std::string(bytes.constData(), std::size_t(bytes.size()));
}

inline QString fromUtf8(const std::string &text)
{
    return QString::fromUtf8(text.data(), int(text.size()));
}

} // namespace qxText
