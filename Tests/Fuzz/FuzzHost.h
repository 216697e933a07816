#pragma once

#include <QByteArray>
#include <QStringList>

class qxHost;
class qxSceneFile;

/// What a target runs on: one host for all inputs of the process. Scripts are left out, because
/// inputs are anybody's, and standard output is silent.
namespace FuzzHost {

/// Starts the host with the first call.
qxHost &start();
/// Empties scene and registry.
void clear();

/// Where a file of that name lies in the folder for files of this process, which goes with it.
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
/// Shows the scene that documents are tried on, with all that they can refer to.
void showWorkshop();

/// Ends the process with a finding when `holds` is false.
void require(bool holds, const char *what);

/// All variants, each with the state that it is in.
QStringList states();
/// Selects a state of the first variants of each kind, and the first sets: an input need not be
/// slow to be bad.
void selectStates(unsigned choice);
void selectSets();

/// A number made of the input, for choices that it leaves open.
unsigned choiceOf(const QByteArray &input);

} // namespace FuzzHost
