#pragma once

#include <cstdlib>
#include <iostream>
#include <string>

namespace osg {

/// Tells the user of the library about a misuse that has no other effect.
inline void warn(const char *text)
{
    std::cerr << "OpenSG: " << text << '\n';
}

/// Ends the program where OpenSG 1.8 would go on with memory that is not there, or without end.
[[noreturn]] inline void fail(const std::string &text)
{
    std::cerr << "OpenSG: " << text << std::endl;
    std::abort();
}

} // namespace osg
