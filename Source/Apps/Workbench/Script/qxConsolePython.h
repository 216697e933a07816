#pragma once

#include <QStringList>

/// What a prompt needs of the interpreter.
namespace qxConsolePython {

/// What running a statement did.
struct Answer {
    bool isIncomplete; ///< the statement goes on: nothing ran
    QString printed; ///< with errors and their tracebacks
};

Answer run(const QString &statement);
/// The names that begin with `text`, which may be a path of attributes.
QStringList completions(const QString &text);

} // namespace qxConsolePython
