#pragma once

#include <QStringList>

class QCommandLineParser;
struct qxCommand;

/// The kind of an argument or of an option's value, by its name in the help.
struct qxValueKind {
    enum Place {
        Word,
        File,
        Folder,
        FileOrFolder ///< which of them is the command's to say
    };

    const char *name; ///< such as "FILE"
    const char *help; ///< of an argument; null where there is none of that kind
    Place place;
    const char *suffixes; ///< of its files, with "|" between
};

namespace qxValueKinds {

/// What help calls like this, brackets and dots aside; a word without any help when it is unknown.
qxValueKind of(const QString &name);

/// What an argument of the command is: FILE may be a document where one may be saved.
qxValueKind ofArgument(const qxCommand &command, const QString &name);

/// Checks the outputs that the options name, before any work is done. Returns Success, or the exit
/// code after explaining on standard error why one cannot be written.
int checkOutputs(const qxCommand &command, const QCommandLineParser &parser);
/// The same for one file, which is called `name` on the command line, and for one folder.
int checkFile(const QString &name);
int checkFolder(const QString &name);

} // namespace qxValueKinds
