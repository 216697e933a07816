#pragma once

#include <cstdio>
#include <functional>
#include <set>
#include <string>

/// A script text that was given to qxScript.
struct qxScriptText {
    /// Whose script it is.
    enum Origin {
        User, ///< written by a user, through qxScript::run
        Application ///< composed by the application, through qxScript::executeNUS
    };
    std::string text; ///< UTF-8
    Origin origin; ///< through which function it came
    bool synchronise; ///< to be sent to connected sessions as well; false for those of a user
    bool isBlocked; ///< not run, because it is not allowed to
};

/// Runs scripts of a program, and notifies it of all others.
class qxScriptRunner {
public:
    /// Hears of a script before it runs, or that it does not.
    typedef std::function<void(const qxScriptText &script)> Listener;

    /// Runs `text`, UTF-8, as a script of the program: always allowed, and not reported to
    /// listeners. Errors name `fileName`. Returns whether it ran to its end, or to an exit() with
    /// success.
    static bool run(const std::string &text, const std::string &fileName);

    /// Whether any script so far failed, including nested and interrupted ones.
    static bool haveFailed();
    /// Whether Ctrl-C has ended a script that was not inside another one.
    static bool wereInterrupted();

    /// Which scripts of users run: none, all but the distrusted ones, all.
    enum Allowed { Nothing, Trusted, Everything };
    /// Which of the texts that qxScript::run is given are run from now on; the others are blocked.
    /// Trusted at start. Returns what was set before.
    static Allowed setAllowed(Allowed allowed);
    /// What was set last.
    static Allowed allowed();
    /// Sets the texts, UTF-8, that are not trusted; all others are.
    static void setDistrusted(const std::set<std::string> &texts);

    /// The target for what scripts print: standard output at start. Errors of scripts go to the
    /// log.
    static void setOutput(std::FILE *output);
    /// The same, line by line without line breaks, including what scripts write to sys.stderr.
    static void setOutput(const std::function<void(const std::string &line)> &output);

    /// `listener` receives every text given to qxScript::run and executeNUS before it runs, until
    /// removeListener gets the returned id.
    static int addListener(const Listener &listener);
    /// Unregisters a listener; an unknown id is ignored.
    static void removeListener(int id);
};
