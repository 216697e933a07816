#pragma once

#include <QCommandLineOption>
#include <QStringList>

class QCommandLineParser;
class qxSession;

/// What a program answers to the shell.
enum qxExitCode {
    Success = 0,
    WorkFailed = 1, ///< the reason stands on standard error
    WrongUse = 2,
    Interrupted = 130 ///< by Ctrl-C; finished pictures are kept
};

/// One sub-command of the program.
struct qxCommand {
    const char *name;
    const char *arguments; ///< as the help shows them, such as "FILE SET..."
    const char *summary; ///< one line for the list of commands
    int minimum; ///< how many arguments there must be
    int maximum; ///< how many there may be, -1 for any number
    QList<QCommandLineOption> (*options)();
    /// Does the work. `parser` holds the options and the arguments behind the command's name.
    int (*run)(const QCommandLineParser &parser);
    const char *details = nullptr; ///< further lines for its own help, if any
};

namespace qxCommands {

extern const qxCommand info;
extern const qxCommand list;
extern const qxCommand state;
extern const qxCommand select;
extern const qxCommand set;
extern const qxCommand create;
extern const qxCommand document;
extern const qxCommand verify;
extern const qxCommand optimize;
extern const qxCommand lint;
extern const qxCommand runScript;
extern const qxCommand python;
extern const qxCommand trust;
extern const qxCommand render;
extern const qxCommand previews;
extern const qxCommand catalogue;
extern const qxCommand explain;
extern const qxCommand check;
extern const qxCommand capture;
extern const qxCommand help;
extern const qxCommand completion;

/// The arguments one by one, and the options with --help.
QStringList argumentsOf(const qxCommand &command);
QList<QCommandLineOption> optionsOf(const qxCommand &command);
/// The options that several commands share.
QCommandLineOption jsonOption();
/// Whoever has this one has --force, too.
QCommandLineOption saveOption();
QCommandLineOption traceOption();
/// For the commands that select sets; what they ask for is done before the command runs.
QCommandLineOption scriptsOption();
QCommandLineOption noScriptsOption();

/// Whether --save may be followed: not over a file that somebody has changed since it was opened,
/// unless with --force; standard error says so.
bool maySave(const qxSession &session, const QCommandLineParser &parser);
/// Saves when --save was given and may be followed; what the command then ends with.
int saveIfAsked(qxSession &session, const QCommandLineParser &parser);
/// What a command ends with whose own work is done, but for scripts of sets: they may have failed
/// or been interrupted.
int codeAfterScripts();
/// Says on standard error why the work failed, and answers that code.
int fail(const QString &reason);

} // namespace qxCommands
