#pragma once

#include <QByteArray>
#include <QStringList>

class qxHost;
class qxSceneFile;

/// One host for all inputs of a target's process. Scripts are blocked, because inputs are
/// untrusted, and nothing goes to standard output.
namespace FuzzHost {

/// Starts the host with the first call.
qxHost &start();
/// Empties scene and registry.
void clear();

/// The path of a file in this process's temporary folder.
QString path(const QString &name);
/// Writes the bytes into that file and returns its path.
QString write(const QString &name, const QByteArray &bytes);
QByteArray read(const QString &path);

/// Shows that scene file; false when it is refused.
bool show(qxSceneFile &file, const QString &path);
/// The same with its variants document. False when either is refused.
bool open(qxSceneFile &file, const QString &path);
/// Reads a document into the registry, unless it is no text. False when it is refused.
bool readDocument(const QByteArray &document);
/// How many warnings the log has shown so far.
int warnings();
/// Loads the scene for testing documents, with everything that they can refer to.
void showWorkshop();

/// Ends the process with a finding when `holds` is false.
void require(bool holds, const char *what);

/// All variants, each with the state that it is in.
QStringList states();
/// Selects a state of the first variants of each kind, and the first sets: more would only make
/// inputs slow.
void selectStates(unsigned choice);
void selectSets();

/// A number derived from the input, for choices that it does not make.
unsigned choiceOf(const QByteArray &input);

} // namespace FuzzHost
