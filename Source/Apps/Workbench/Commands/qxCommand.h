#pragma once

#include <QCommandLineOption>
#include <QStringList>

class QCommandLineParser;
class qxSession;

/// Exit codes of the program.
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
    int failed = WorkFailed; ///< the exit code when its results cannot be written
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
extern const qxCommand exportScene;
extern const qxCommand publish;
extern const qxCommand gather;
extern const qxCommand explain;
extern const qxCommand diff;
extern const qxCommand merge;
extern const qxCommand gitSetup;
extern const qxCommand rename;
extern const qxCommand repair;
extern const qxCommand table;

extern const qxCommand check;
extern const qxCommand capture;
extern const qxCommand help;
extern const qxCommand completion;
extern const qxCommand manual;

/// The arguments one by one, and the options with --help.
QStringList argumentsOf(const qxCommand &command);
QList<QCommandLineOption> optionsOf(const qxCommand &command);
/// The options that several commands share.
QCommandLineOption jsonOption();
QCommandLineOption recordOption(); ///< see qxSceneRecord
/// Includes the option --force.
QCommandLineOption saveOption();
QCommandLineOption traceOption();
/// For commands that select sets; they take effect before the command runs.
QCommandLineOption scriptsOption();
QCommandLineOption noScriptsOption();

/// Whether --save may write: not over a file that others have changed since it was opened, unless
/// with --force. Prints a refusal to standard error.
bool maySave(const qxSession &session, const QCommandLineParser &parser);
/// False, after saying why, when --record was given without --json, or with --dry-run.
bool checkRecord(const QCommandLineParser &parser);
/// Saves if --save was given and may write; returns the exit code.
int saveIfAsked(qxSession &session, const QCommandLineParser &parser);
/// The exit code of a command that succeeded itself, but whose scripts of sets may have failed or
/// been interrupted.
int codeAfterScripts();
/// The exit code of work that ended before it was complete. Prints to standard error why, and what
/// is done: that it was interrupted or this failure, which is empty when it was told otherwise.
int endedEarly(const QString &done, const QString &failure = QString());
/// Prints to standard error why the command fails, and returns the code.
int fail(const QString &reason, qxExitCode code = WorkFailed);

} // namespace qxCommands
