#include "Program.h"

#include "qxTestPaths.h"

#include <QSet>
#include <QtEndian>

#include <ostream>

ProgramRun ProgramFixture::workbench(const QStringList &arguments, const QByteArray &input)
{
    SCOPED_TRACE(arguments.join(QLatin1Char(' ')).toStdString());
    TestProgram program;
    program.start(QStringLiteral(QX_BUILD_BIN "/workbench"), arguments);
    program.write(input);
    program.closeWriteChannel();
    return ended(program);
}

ProgramRun ProgramFixture::ended(QProcess &program)
{
    const bool isEnded =
        program.waitForFinished(60000) && program.exitStatus() == QProcess::NormalExit;
    EXPECT_TRUE(isEnded) << program.errorString().toStdString();
    program.kill();
    program.waitForFinished();
    return {isEnded ? program.exitCode() : -1, program.readAllStandardOutput(),
            program.readAllStandardError()};
}

ProgramRun ProgramFixture::exits(int code, const QStringList &arguments, const QByteArray &input)
{
    const ProgramRun run = workbench(arguments, input);
    EXPECT_EQ(run.code, code) << arguments.join(QLatin1Char(' ')).toStdString() << "\n"
                              << run.err.toStdString();
    return run;
}

void ProgramFixture::refused(int code, const QStringList &arguments, const QByteArray &reason)
{
    SCOPED_TRACE(arguments.join(QLatin1Char(' ')).toStdString());
    const ProgramRun run = exits(code, arguments);
    EXPECT_EQ(run.out, "");
    EXPECT_TRUE(run.err.contains("workbench: ")) << run.err.toStdString();
    EXPECT_TRUE(run.err.contains(reason)) << run.err.toStdString();
}

QByteArray ProgramFixture::interrupted(const QStringList &arguments, const QByteArray &text)
{
    QProcess program;
    program.start(QStringLiteral(QX_BUILD_BIN "/workbench"), arguments);
    program.setReadChannel(QProcess::StandardError);
    while (!program.peek(100000).contains(text) && program.waitForReadyRead(30000)) {}
    kill(pid_t(program.processId()), SIGINT);
    const ProgramRun run = ended(program);
    EXPECT_EQ(run.code, 130);
    return run.err;
}

QString ProgramFixture::deskAndDoor() const
{
    return write("door.gltf", R"({
        "asset": {"version": "2.0"}, "scene": 0, "scenes": [{"nodes": [0, 3]}],
        "nodes": [{"name": "Desk", "children": [1, 2], "extras": {"qxSwitch": 0}},
                  {"name": "Oak"}, {"name": "Glass"},
                  {"name": "Door", "extras": {"qxPoseNames": "Shut;Open", "qxPose": 0,
                   "qxPoses": [0, 0, 0, 0, 0, 0, 1, 1, 1, 1, 0, 0, 2, 0, 0, 0, 1, 1, 1, 1]}}]})");
}

QJsonDocument parsed(const QByteArray &text)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    EXPECT_EQ(error.error, QJsonParseError::NoError) << text.toStdString();
    return document;
}

QJsonValue sceneJson(const QString &path)
{
    const QByteArray bytes = bytesOf(path);
    if (!bytes.startsWith("glTF"))
        return parsed(bytes).object();
    return parsed(bytes.mid(20, int(qFromLittleEndian<quint32>(bytes.constData() + 12)))).object();
}

QStringList differences(const QJsonValue &one, const QJsonValue &other, const QString &pointer)
{
    QStringList found;
    if (one.isObject() || other.isObject()) {
        const QStringList keys = one.toObject().keys() + other.toObject().keys();
        for (const QString &key : QSet<QString>(keys.begin(), keys.end()))
            found += differences(one[key], other[key], pointer + QLatin1Char('/') + key);
    } else if (one.isArray() && other.isArray()) {
        const int count = qMax(one.toArray().size(), other.toArray().size());
        for (int i = 0; i < count; ++i)
            found += differences(one[i], other[i], QStringLiteral("%1/%2").arg(pointer).arg(i));
    } else if (one != other) {
        found += pointer;
    }
    found.sort();
    return found;
}

QByteArray documentOf(const QString &path)
{
    return sceneJson(path)["scenes"][0]["extras"]["qxVariants"].toString().toUtf8();
}

void PrintTo(const QJsonDocument &json, std::ostream *out)
{
    *out << json.toJson().toStdString();
}
