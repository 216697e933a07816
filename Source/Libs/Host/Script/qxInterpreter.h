#pragma once

#include <string>

/// The one Python interpreter of the process, and the global names that scripts share.
class qxInterpreter {
public:
    /// Starts it if it does not run yet. False if it cannot start, which is logged once.
    static bool start();

    /// Gives the global names what every script finds: Python's own and the host's bindings.
    static void fillNames();
    static void clearNames();

    /// Runs statements and returns whether they succeeded. Errors go to the log.
    static bool run(const std::string &text, const std::string &fileName);
    /// The value of the expression as printed, see qxScript::executeNUSR.
    static std::string print(const std::string &expression);
};
