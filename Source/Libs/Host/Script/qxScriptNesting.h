#pragma once

struct _object; // PyObject

/// A script while it runs. Scripts lead to scripts, as when one selects a set that has another;
/// this bounds how deep, and ends them all when it was too deep or the user interrupts them.
///
/// To end them, each script gets an exception as soon as what it called returns. Until the
/// outermost got its, no further script of a user begins. So a script that leads to itself twice
/// costs no more than one that does once.
class qxScriptNesting {
public:
    /// `leaf` is for texts of the application: they lead to no others, run also while scripts are
    /// being ended, and are not ended themselves.
    explicit qxScriptNesting(bool leaf);
    qxScriptNesting(const qxScriptNesting &) = delete;
    ~qxScriptNesting();

    /// False when this script must not run. That it is too deep goes to the log.
    bool mayRun() const { return m_mayRun; }

    /// Whether a script runs inside another one.
    static bool isNested();
    /// Sets the Python error by which the user interrupts the innermost script. From the second
    /// time on it comes back at every step until all scripts have ended: none can catch it for
    /// good.
    static void raiseInterrupt();
    /// Ends all scripts after the user interrupted the innermost.
    static void interrupt();
    /// Whether `type` is the exception that ends scripts which went too deep.
    static bool isStop(_object *type);

private:
    bool m_mayRun;
    bool m_outerLeaf;
};
