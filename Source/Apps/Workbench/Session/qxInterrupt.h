#pragma once

#include <csignal>

/// Lets long work end in an orderly way when Ctrl-C is pressed (or the process is asked to end)
/// while an object of this class lives. A second Ctrl-C ends the program at once. A program that
/// was started to ignore Ctrl-C, as in the background, goes on ignoring it.
class qxInterrupt {
public:
    qxInterrupt();
    qxInterrupt(const qxInterrupt &) = delete;
    ~qxInterrupt();

    /// Whether the end of the work was asked for; also by a Ctrl-C that ended a script.
    static bool isAsked();

private:
    struct sigaction m_before[2];
};
