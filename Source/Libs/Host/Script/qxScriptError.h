#pragma once

#include <string>

/// Reports the Python error that ended a script.
class qxScriptError {
public:
    /// Clears the current Python error and logs it with the traceback and its lines of `text`.
    /// Returns whether it was an exit() with success.
    static bool report(const std::string &text, const std::string &fileName);
    /// Whether Ctrl-C has ended a script that was not inside another one.
    static bool wereInterrupted();
};
