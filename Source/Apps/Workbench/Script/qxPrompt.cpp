#include "qxPrompt.h"

#include "Script/qxScriptRunner.h"

#include <boost/python.hpp>

#include <csignal>

namespace python = boost::python;

namespace {

/// Reading and running are two steps, so that each statement is a run of its own: one that goes
/// astray and is broken off does not end the prompt.
const char source[] = R"(
import code
import signal
import sys

try:
    import readline
    import rlcompleter
except ImportError:
    readline = None

ask = input if sys.version_info[0] > 2 else lambda prompt: raw_input(prompt).decode("utf-8", "replace")


class Prompt(code.InteractiveConsole):
    def __init__(self, names):
        code.InteractiveConsole.__init__(self, names, "<prompt>")
        self.statement = None
        self.ended = False
        if readline:
            readline.set_completer(rlcompleter.Completer(names).complete)
            readline.parse_and_bind("tab: complete")

    def next(self):
        """Reads a whole statement; False at the end of the input."""
        signal.signal(signal.SIGINT, signal.getsignal(signal.SIGINT))
        self.statement = None
        while not self.statement:
            try:
                self.push(self.line("... " if self.buffer else ">>> "))
            except KeyboardInterrupt:
                self.write("\nKeyboardInterrupt\n")
                self.resetbuffer()
            except EOFError:
                self.write("\n")
                return False
        return True

    def line(self, prompt):
        scripts_output = sys.stdout
        sys.stdout = sys.__stdout__  # input() edits lines for the terminal's own only
        try:
            return ask(prompt)
        finally:
            sys.stdout = scripts_output

    def runcode(self, statement):
        self.statement = statement

    def execute(self):
        try:
            code.InteractiveConsole.runcode(self, self.statement)
        except SystemExit:
            self.ended = True
            raise


prompt = Prompt(sys.modules["__main__"].__dict__)
)";

/// Out of the way of the names that the person sees.
const char module[] = "qxPrompt";

/// While it exists, the prompt may take Ctrl-C for itself.
class KeptInterrupt {
public:
    KeptInterrupt() { sigaction(SIGINT, nullptr, &m_programs); }
    KeptInterrupt(const KeptInterrupt &) = delete;
    ~KeptInterrupt() { sigaction(SIGINT, &m_programs, nullptr); }

private:
    struct sigaction m_programs;
};

python::object makePrompt()
{
    const python::object made = python::import("types").attr("ModuleType")(module);
    python::object names = made.attr("__dict__");
    // Python 2.7 does not see to that itself.
    names["__builtins__"] =
        python::object(python::handle<>(python::borrowed(PyEval_GetBuiltins())));
    python::exec(source, names);
    python::import("sys").attr("modules")[module] = made;
    return made.attr("prompt");
}

} // namespace

bool qxPrompt::run()
{
    // Starts the interpreter, if nothing has yet.
    if (!qxScriptRunner::run(std::string(), "prompt"))
        return false;
    const KeptInterrupt interrupt;
    try {
        const python::object prompt = makePrompt();
        const std::string execute = "__import__('" + std::string(module) + "').prompt.execute()";
        bool succeeded = true;
        while (!prompt.attr("ended") && prompt.attr("next")())
            succeeded = qxScriptRunner::run(execute, "<prompt>");
        return succeeded || !prompt.attr("ended");
    } catch (const python::error_already_set &) {
        PyErr_Print();
        return false;
    }
}
