#pragma once

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <gtest/gtest.h>

/// What a run of the program left behind.
struct ProgramRun {
    int code = -1; ///< of the exit; -1, and a failed test, when the program crashed or hung
    QByteArray out;
    QByteArray err;

    /// Standard output as JSON; fails the test when it is anything else.
    QJsonDocument json() const;
    const QJsonArray array() const { return json().array(); }
    const QJsonObject object() const { return json().object(); }
};

/// A test that runs the program as a person in front of a shell would, in a folder of its own.
class ProgramFixture : public testing::Test {
protected:
    /// Runs it with these arguments and waits for its end; it reads `input`.
    static ProgramRun workbench(const QStringList &arguments,
                                const QByteArray &input = QByteArray());
    /// Runs it and fails the test unless the exit code is 0.
    static ProgramRun done(const QStringList &arguments, const QByteArray &input = QByteArray());
    /// Runs it and fails the test unless it ends with `code`, prints nothing, and gives `reason`
    /// in its words on standard error.
    static void refused(int code, const QStringList &arguments, const QByteArray &reason);

    QString path(const QString &name) const { return folder.filePath(name); }
    /// Writes a file into the test's folder and returns its path.
    QString write(const QString &name, const QByteArray &bytes) const;
    /// A small scene, Tests/Data/Scenes/desk.gltf, with this variants document.
    QString desk(const QByteArray &document) const;
    QString desk() const;

    QTemporaryDir folder;
};

QByteArray bytesOf(const QString &path);
/// The JSON of a .gltf or of a .glb.
QJsonValue sceneJson(const QString &path);
/// JSON pointers to everything that one has and the other has not, or has differently.
QStringList differences(const QJsonValue &one, const QJsonValue &other,
                        const QString &pointer = QString());
/// How failed expectations show texts.
void PrintTo(const QString &text, std::ostream *out);
void PrintTo(const QByteArray &text, std::ostream *out);

/// The variants document of a scene file.
QByteArray documentOf(const QString &path);
