#pragma once

/// The host's bindings for scripts: what the Python module qxHost holds.
class qxScriptBindings {
public:
    /// Makes the module; once, when the interpreter has started. Python errors are thrown.
    static void define();

private:
    static void defineValues();
    static void defineHandles();
    static void defineClipping();
};
