#pragma once

#include <string>

/// Looks at scripts without running them.
class qxScriptCheck {
public:
    /// What keeps the text, UTF-8, from being compiled, such as "line 3: invalid syntax"; empty
    /// when nothing does. Starts the interpreter when need be, but neither a session nor a script.
    static std::string flawOf(const std::string &text);
};
