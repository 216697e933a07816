#pragma once

#include <string>

/// The output of scripts: goes to the target of qxScriptRunner::setOutput, or into a text.
class qxScriptOutput {
public:
    /// Replaces Python's sys.stdout and sys.stderr; Python's warnings go to the log.
    static void install();
    static void flush();

    /// While it exists, sys.stdout writes only into its text.
    class Capture {
    public:
        Capture();
        Capture(const Capture &) = delete;
        ~Capture();
        const std::string &text() const { return m_text; }

    private:
        friend class qxScriptOutput;
        std::string m_text;
        Capture *m_outer;
    };

    /// Writes what a script printed.
    static void write(const std::string &text, bool toErrors);
};
