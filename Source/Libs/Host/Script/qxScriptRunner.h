#pragma once

#include <cstdio>
#include <functional>
#include <set>
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
    bool isBlocked; ///< not run, because it is not allowed to
};

/// Runs scripts for a program, and hears which others are run.
class qxScriptRunner {
public:
    typedef std::function<void(const qxScriptText &script)> Listener;

    /// Runs `text`, UTF-8, as a program's own script: whatever is allowed, and unheard by
    /// listeners. Errors name `fileName`. Returns whether it ran to its end, or to an exit()
    /// that reports success.
    static bool run(const std::string &text, const std::string &fileName);

    /// Whether any script so far failed, those inside of others and the interrupted ones included.
    static bool haveFailed();
    /// Whether Ctrl-C has ended a script that was not inside another one.
    static bool wereInterrupted();

    enum Allowed { Nothing, Trusted, Everything };
    /// Which of the texts that qxScript::run is given are run from now on; the others are blocked.
    /// Trusted at start. Returns what was set before.
    static Allowed setAllowed(Allowed allowed);
    static Allowed allowed();
    /// The texts, UTF-8, that are not trusted, in the place of those named before. All others are.
    static void setDistrusted(const std::set<std::string> &texts);

    /// Where goes what scripts print: standard output at start. Errors of scripts go to the log.
    static void setOutput(std::FILE *output);
    /// The same, line by line and without line breaks, with what scripts write to sys.stderr.
    static void setOutput(const std::function<void(const std::string &line)> &output);

    /// Hears every text given to qxScript::run and executeNUS, before it runs, until
    /// removeListener is called with the id.
    static int addListener(const Listener &listener);
    static void removeListener(int id);
};
