#pragma once

#include "qxCommand.h"

class qxSession;

/// Common code of the commands that only print the contents of a scene file.
namespace qxShowCommand {

/// Prints something about an opened scene.
typedef void (*Print)(const qxSession &session);

QList<QCommandLineOption> options();
/// Opens the scene that the arguments name and prints it: with the option --json for programs, else
/// for people.
int run(const QCommandLineParser &parser, Print json, Print table);

} // namespace qxShowCommand
