"""Prompts that hand the statements of a person to the interpreter, in Python 2.7 and 3."""

import code
import json
import sys


class Prompt(code.InteractiveConsole):
    """Knows the names that scripts see."""

    def __init__(self, source):
        code.InteractiveConsole.__init__(self, sys.modules["__main__"].__dict__, source)

    def completer(self):
        import rlcompleter  # changes the line editing of a terminal
        return rlcompleter.Completer(self.locals)


class Terminal(Prompt):
    """Reads statements from standard input.

    Reading and running are two steps, so that each statement is a run of its own: one that goes
    astray and is broken off does not end the prompt.
    """

    def __init__(self):
        Prompt.__init__(self, "<prompt>")
        self.statement = None
        self.ended = False
        try:
            import readline
        except ImportError:
            return
        readline.set_completer(self.completer().complete)
        readline.parse_and_bind("tab: complete")

    def next(self):
        """Reads a whole statement; False at the end of the input."""
        import signal
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
            return input(prompt) if sys.version_info[0] > 2 else raw_input(prompt).decode("utf-8", "replace")
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


class Text(object):
    """What is printed, as one text."""

    def __init__(self):
        self.parts = []

    def write(self, text):
        self.parts.append(text if isinstance(text, type(u"")) else text.decode("utf-8", "replace"))

    def flush(self):
        pass


class Console(Prompt):
    """Gets statements from a program and answers in JSON."""

    def __init__(self):
        Prompt.__init__(self, "<console>")
        self.streams = None

    def answer(self, statement):
        text = Text()
        self.streams = sys.stdout, sys.stderr
        sys.stdout = sys.stderr = text
        try:
            more = self.runsource(statement, self.filename, "single")
        except SystemExit:
            more = False
        finally:
            self.put_back()
        return json.dumps({"more": bool(more), "text": u"".join(text.parts)})

    def put_back(self):
        sys.stdout, sys.stderr = self.streams

    def names(self, text):
        completer, found = self.completer(), []
        while len(found) < 200:
            name = completer.complete(text, len(found))
            if name is None:
                break
            found.append(name)
        return json.dumps(found)
