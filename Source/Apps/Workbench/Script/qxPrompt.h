#pragma once

#include <QStringList>

/// Lets a person say statements to the host's interpreter; qxPrompt.py does it in Python.
namespace qxPrompt {

/// In front of a terminal, until the end of the input or exit(): with line editing, a history and
/// completion of names by the tab key. Answers what exit() was given: false for anything but
/// success.
bool run();

/// What running a statement did.
struct Answer {
    bool isIncomplete; ///< the statement goes on: nothing ran
    QString printed; ///< with errors and their tracebacks
};
Answer run(const QString &statement);

/// The names that begin with `text`, which may be a path of attributes.
QStringList completions(const QString &text);

} // namespace qxPrompt
