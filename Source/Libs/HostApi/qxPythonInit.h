#pragma once

/// Tells a library when the host's Python interpreter starts and ends, so that the library can
/// define what it offers to scripts. Made statically: it may be constructed while a library is
/// loaded and destroyed while one is unloaded.
class qxPythonInit {
public:
    /// `destroy` is false when the interpreter has started, true when it is about to end.
    typedef void (*Callback)(bool destroy);

    /// Registers the callback; the host calls its callbacks in the order of registration. When the
    /// interpreter runs already, the callback is called with false at once.
    explicit qxPythonInit(Callback callback);
    qxPythonInit(const qxPythonInit &) = delete;
    /// Takes the callback back, without calling it.
    ~qxPythonInit();

private:
    int m_id;
};
