#pragma once

#include <string>

/// The one Python interpreter of the process, and the global names that scripts share.
class qxInterpreter {
public:
    /// Starts it when it does not run yet. False when it cannot start, which goes to the log once.
    static bool start();

    /// Gives the global names what every script finds: Python's own and the host's bindings.
    static void fillNames();
    static void clearNames();

    /// Runs statements. Their errors go to the log; whether there were none.
    static bool run(const std::string &text, const std::string &fileName);
    /// What printing the expression's value gives, see qxScript::executeNUSR.
    static std::string print(const std::string &expression);
};
