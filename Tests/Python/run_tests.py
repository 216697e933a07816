"""Runs the test cases that the interpreter's global names hold, and reports each to the host."""

import sys
import unittest


class Report(unittest.TestResult):
    """Hands on the outcome of each test; a failure is its traceback."""

    def addSuccess(self, test):
        stage.report(test.id(), "")

    def addError(self, test, error):
        stage.report(test.id(), self._exc_info_to_string(error, test))

    addFailure = addError

    def addSkip(self, test, reason):
        stage.report(test.id() + " skipped: " + reason, "")


unittest.defaultTestLoader.loadTestsFromModule(sys.modules["__main__"]).run(Report())
