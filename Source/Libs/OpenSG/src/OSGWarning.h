#pragma once

#include <iostream>

namespace osg {

/// Tells the user of the library about a misuse that has no other effect.
inline void warn(const char *text)
{
    std::cerr << "OpenSG: " << text << '\n';
}

} // namespace osg
