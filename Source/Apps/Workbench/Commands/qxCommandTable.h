#pragma once

#include "qxCommand.h"

/// All commands in their order.
namespace qxCommands {

/// Finds the command that `arguments` (with the program's name in front) ask for and runs it.
int dispatch(const QStringList &arguments);

/// The table of commands: help and shell completion follow from it.
const QList<const qxCommand *> &all();
/// Null for an unknown name.
const qxCommand *find(const QString &name);

/// Says that there is no such command, with those most like it, and answers the exit code.
int unknown(const QString &name);

} // namespace qxCommands
