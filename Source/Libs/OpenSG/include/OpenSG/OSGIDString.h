#pragma once

#include <OpenSG/OSGBaseTypes.h>

#include <string>

namespace osg {

/// A name: never null, compared by content.
class IDString {
public:
    explicit IDString(const Char8 *text = "") : m_text(text ? text : "") {}

    /// Never NULL.
    const Char8 *str() const { return m_text.c_str(); }
    UInt32 length() const { return UInt32(m_text.size()); }
    /// Compares the characters.
    bool operator==(const IDString &other) const { return m_text == other.m_text; }
    bool operator!=(const IDString &other) const { return m_text != other.m_text; }
    bool operator<(const IDString &other) const { return m_text < other.m_text; }

private:
    std::string m_text;
};

} // namespace osg
