#pragma once

/// Handles Ctrl-C while a script runs: it raises KeyboardInterrupt in the script; a second Ctrl-C
/// does so until the script ends, even if the script catches it. Before and after, the program's
/// own handler is installed. A program that ignores Ctrl-C goes on ignoring it.
class qxScriptInterrupt {
public:
    qxScriptInterrupt();
    qxScriptInterrupt(const qxScriptInterrupt &) = delete;
    ~qxScriptInterrupt();

    /// Installs the handler for Python. Call it once, when the interpreter has started.
    static void install();
};
