#pragma once

#include <functional>
#include <string>

/// What is known of a script text that qxScript was asked to run.
struct qxScriptText {
    enum Origin {
        User, ///< written by a user, through qxScript::run
        Application ///< composed by the application, through qxScript::executeNUS
    };
    std::string text; ///< UTF-8
    Origin origin;
    bool synchronise; ///< to be sent to connected sessions as well; false for those of a user
};

/// Hears which scripts are run.
class qxScriptRunner {
public:
    typedef std::function<void(const qxScriptText &script)> Listener;

    /// Hears every script, in the order they are run, until removeListener is called with the id.
    static int addListener(const Listener &listener);
    static void removeListener(int id);
};
