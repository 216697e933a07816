#pragma once

/// Ctrl-C while a script runs: while one of these exists, it raises KeyboardInterrupt in the
/// script; a second one does so until the script ends, even if it catches that. Before and after,
/// the program's own way to take the signal is in force; one that ignores it ignores it all along.
class qxScriptInterrupt {
public:
    qxScriptInterrupt();
    qxScriptInterrupt(const qxScriptInterrupt &) = delete;
    ~qxScriptInterrupt();

    /// Makes Python's way to take the signal known; once, when the interpreter has started.
    static void install();
};
