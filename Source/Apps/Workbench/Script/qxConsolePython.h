#pragma once

#include <QStringList>

/// Functions of the interpreter for a prompt.
namespace qxConsolePython {

/// The result of running a statement.
struct Answer {
    bool isIncomplete; ///< the statement is incomplete: nothing ran
    QString printed; ///< with errors and their tracebacks
};

Answer run(const QString &statement);
/// The names that begin with `text`, which may be a path of attributes.
QStringList completions(const QString &text);

} // namespace qxConsolePython
