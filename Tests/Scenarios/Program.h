#pragma once

#include "TestFiles.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

#include <sys/prctl.h>

#include <csignal>

/// The program; it does not outlive the test.
class TestProgram : public QProcess {
protected:
    void setupChildProcess() override { prctl(PR_SET_PDEATHSIG, SIGKILL); }
};

/// The JSON of this text; fails the test when it is anything else.
QJsonDocument parsed(const QByteArray &text);

/// The result of a run of the program.
struct ProgramRun {
    int code = -1; ///< of the exit; -1, and a failed test, when the program crashed or hung
    QByteArray out;
    QByteArray err;

    /// Standard output as JSON.
    QJsonDocument json() const { return parsed(out); }
    const QJsonArray array() const { return json().array(); }
    const QJsonObject object() const { return json().object(); }
};

/// A test that runs the program as a person in front of a shell would, in a folder of its own.
class ProgramFixture : public testing::Test, protected TestFolder {
protected:
    /// Runs it with these arguments and waits for its end; it reads `input`.
    static ProgramRun workbench(const QStringList &arguments,
                                const QByteArray &input = QByteArray());
    /// Runs it and fails the test unless the exit code is this one.
    static ProgramRun exits(int code, const QStringList &arguments,
                            const QByteArray &input = QByteArray());
    static ProgramRun done(const QStringList &arguments, const QByteArray &input = QByteArray())
    {
        return exits(0, arguments, input);
    }
    static ProgramRun failed(const QStringList &arguments) { return exits(1, arguments); }
    /// Runs it and fails the test unless it ends with `code`, prints nothing, and standard error
    /// contains `reason`.
    static void refused(int code, const QStringList &arguments, const QByteArray &reason);
    /// Runs the program, presses Ctrl-C when its progress shows `text`, and returns what it said.
    static QByteArray interrupted(const QStringList &arguments, const QByteArray &text);
    /// Waits for the end of a started program.
    static ProgramRun ended(QProcess &program);

    QString desk(const QByteArray &document = QByteArray()) const
    {
        return write("desk.gltf", sceneWith("desk", document));
    }
    /// A desk of oak or glass and a door that is shut or open, without variants.
    QString deskAndDoor() const;
    /// The desk with one set, "Only", of these elements, and with what follows it.
    QString deskWithSet(const QByteArray &elements, const QByteArray &more = QByteArray()) const
    {
        return desk("<Variants><VariantSet name='Only'>" + elements + "</VariantSet>" + more
                    + "</Variants>");
    }
};

/// The JSON of a .gltf or of a .glb.
QJsonValue sceneJson(const QString &path);
/// JSON pointers to every value that one has and the other has not, or has differently.
QStringList differences(const QJsonValue &one, const QJsonValue &other,
                        const QString &pointer = QString());
/// The variants document of a scene file.
QByteArray documentOf(const QString &path);
/// How failed expectations show JSON.
void PrintTo(const QJsonDocument &json, std::ostream *out);
