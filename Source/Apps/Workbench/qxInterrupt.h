#pragma once

/// Lets long work end in an orderly way when Ctrl-C is pressed (or the process is asked to end)
/// while an object of this class lives. A second Ctrl-C ends the program at once.
class qxInterrupt {
public:
    qxInterrupt();
    qxInterrupt(const qxInterrupt &) = delete;
    ~qxInterrupt();

    /// Whether the end of the work was asked for; also by a Ctrl-C that ended a script.
    static bool isAsked();
};
