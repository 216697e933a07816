#pragma once

#include <QStringList>

/// A prompt of the host's interpreter, written in Python (qxPrompt.py).
namespace qxPrompt {

/// In a terminal, until the end of the input or exit(): with line editing, a history and completion
/// of names by the tab key. Returns false if exit() was called with a failure.
bool run();

/// The result of running a statement.
struct Answer {
    bool isIncomplete; ///< the statement is incomplete: nothing ran
    QString printed; ///< with errors and their tracebacks
};
Answer run(const QString &statement);

/// The names that begin with `text`, which may be a path of attributes.
QStringList completions(const QString &text);

} // namespace qxPrompt
