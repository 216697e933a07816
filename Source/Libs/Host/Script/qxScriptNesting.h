#pragma once

struct _object; // PyObject

/// A running script. A script can cause others, for instance by selecting a set that has one. This
/// class limits the nesting, and ends all scripts if it is too deep or the user interrupts them.
///
/// To end them, each script gets an exception when its current call returns. Until the outermost
/// one has ended, no other script of a user starts. So a script that causes itself twice costs no
/// more than one that does so once.
class qxScriptNesting {
public:
    /// `leaf` is for texts of the application: they cause no others, run even while scripts are
    /// being ended, and are not ended themselves.
    explicit qxScriptNesting(bool leaf);
    qxScriptNesting(const qxScriptNesting &) = delete;
    ~qxScriptNesting();

    /// False if this script must not run; too deep nesting is logged.
    bool mayRun() const { return m_mayRun; }

    /// Whether a script runs at all.
    static bool isRunning();
    /// Whether a script runs inside another one.
    static bool isNested();
    /// Sets the Python error for an interrupt by the user in the innermost script. From the second
    /// time on it is raised at every step until all scripts have ended, even if they catch it.
    static void raiseInterrupt();
    /// Ends all scripts after the user interrupted the innermost.
    static void interrupt();
    /// Whether `type` is the exception that ends scripts which went too deep.
    static bool isStop(_object *type);

private:
    bool m_mayRun;
    bool m_outerLeaf;
};
