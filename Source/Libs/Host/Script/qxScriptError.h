#pragma once

#include <string>

/// What becomes of the Python error that a script ended with.
class qxScriptError {
public:
    /// Takes the current Python error and writes it to the log, with the traceback and the lines of
    /// `text` that it goes through. False; true when it was an exit() that reports success.
    static bool report(const std::string &text, const std::string &fileName);
    /// Whether Ctrl-C has ended a script that was not inside another one.
    static bool wereInterrupted();
};
