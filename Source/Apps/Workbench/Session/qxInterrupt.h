#pragma once

#include <csignal>

/// While it lives, Ctrl-C (or a request to terminate) lets long work end in an orderly way. A
/// second Ctrl-C ends the program at once. A program that was started to ignore Ctrl-C, as in the
/// background, goes on ignoring it.
class qxInterrupt {
public:
    qxInterrupt();
    qxInterrupt(const qxInterrupt &) = delete;
    ~qxInterrupt();

    /// Whether the work is to end; also after a Ctrl-C that ended a script.
    static bool isAsked();

private:
    struct sigaction m_before[2];
};
