#pragma once

class QCommandLineParser;
struct qxCommand;

/// What the program says about itself, all of it taken from the table of commands.
namespace qxHelp {

/// The commands in one list.
void printOverview();
/// One command with its arguments and options.
void print(const qxCommand &command);

} // namespace qxHelp
