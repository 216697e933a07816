#pragma once

/// Notifies a library when the host's Python interpreter starts and ends, so that the library can
/// define its scripting modules. Objects may be static: constructed while a library is loaded,
/// destroyed while it is unloaded.
class qxPythonInit {
public:
    /// `destroy` is false when the interpreter has started, true when it is about to end.
    typedef void (*Callback)(bool destroy);

    /// Registers the callback; the host calls its callbacks in the order of registration. If the
    /// interpreter already runs, the callback is called with false at once.
    explicit qxPythonInit(Callback callback);
    qxPythonInit(const qxPythonInit &) = delete;
    /// Unregisters the callback without calling it.
    ~qxPythonInit();

private:
    int m_id;
};
