#pragma once

#include <QStringList>

struct qxCommand;

/// The program's help, made from the table of commands.
namespace qxHelp {

/// The commands in one list.
void printOverview();
/// One command with its arguments and options.
void print(const qxCommand &command);

/// What may follow the program's name, one way a line.
QStringList uses();
QString exitCodes();

} // namespace qxHelp
