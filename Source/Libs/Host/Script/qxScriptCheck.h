#pragma once

#include <string>

/// Checks scripts without running them.
class qxScriptCheck {
public:
    /// Why the text, UTF-8, does not compile, such as "line 3: invalid syntax"; empty if it does.
    /// Starts the interpreter if need be, but neither a session nor a script.
    static std::string flawOf(const std::string &text);
};
