#pragma once

#include <string>

/// What scripts print: goes to where qxScriptRunner::setOutput says, or into a text.
class qxScriptOutput {
public:
    /// Puts itself in place of Python's sys.stdout and sys.stderr; what Python warns of goes to the
    /// log.
    static void install();
    static void flush();

    /// While it exists, what is printed to sys.stdout goes into its text and nowhere else.
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
