#pragma once

#include <QCommandLineOption>

class QCommandLineParser;

/// The options of all commands that make pictures.
namespace qxPictureOptions {

QList<QCommandLineOption> all();

enum Transparency { Opaque, MayBeTransparent };
/// Whether all of them have valid values; prints an error otherwise.
bool areKnown(const QCommandLineParser &parser, Transparency transparency = Opaque);
/// Light, background and threads of all pictures from now on become what known options say. False,
/// with an error, if a file cannot be read.
bool apply(const QCommandLineParser &parser);

} // namespace qxPictureOptions
