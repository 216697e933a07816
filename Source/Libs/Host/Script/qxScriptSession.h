#pragma once

/// The time in which the interpreter serves one host: from its first script to the host's end.
///
/// The interpreter itself, once started, stays until the process ends; a new session finds it with
/// empty global names. Starting is put off to the first script because it takes its time.
class qxScriptSession {
public:
    /// Begins a session unless one runs: starts the interpreter when need be, gives the global
    /// names the host's bindings and calls the callbacks of qxPythonInit. False when the
    /// interpreter cannot start, which goes to the log.
    static bool begin();
    /// Calls the callbacks and empties the global names; does nothing without a session.
    static void end();
    /// Whether the callbacks are being told of the begin: what they run is set-up, no script.
    static bool isBeginning();
};
