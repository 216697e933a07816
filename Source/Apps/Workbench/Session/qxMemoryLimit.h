#pragma once

#include <QCommandLineOption>

class QCommandLineParser;

/// The option that every command with a scene has, and the window: what the decoded content of a
/// scene file may take of the memory.
namespace qxMemoryLimit {

QCommandLineOption option();
/// Sets the limit for the files that are opened from now on, if the option is given. False when its
/// value is no size.
bool take(const QCommandLineParser &parser);
/// Says what is wrong then.
QString flaw(const QCommandLineParser &parser);

} // namespace qxMemoryLimit
