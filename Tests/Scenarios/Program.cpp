#include "Program.h"

#include <QFile>
#include <QProcess>
#include <QSet>
#include <QtEndian>

#include <ostream>

ProgramRun ProgramFixture::workbench(const QStringList &arguments, const QByteArray &input)
{
    SCOPED_TRACE(arguments.join(QLatin1Char(' ')).toStdString());
    QProcess process;
    process.start(QStringLiteral(QX_BUILD_BIN "/workbench"), arguments);
    process.write(input);
    process.closeWriteChannel();
    const bool ended = process.waitForFinished(60000);
    EXPECT_TRUE(ended && process.exitStatus() == QProcess::NormalExit)
        << process.errorString().toStdString();
    if (!ended)
        process.kill();
    process.waitForFinished();
    const bool crashed = !ended || process.exitStatus() != QProcess::NormalExit;
    return {crashed ? -1 : process.exitCode(), process.readAllStandardOutput(),
            process.readAllStandardError()};
}

ProgramRun ProgramFixture::done(const QStringList &arguments, const QByteArray &input)
{
    const ProgramRun run = workbench(arguments, input);
    EXPECT_EQ(run.code, 0) << arguments.join(QLatin1Char(' ')).toStdString() << "\n"
                           << run.err.toStdString();
    return run;
}

void ProgramFixture::refused(int code, const QStringList &arguments, const QByteArray &reason)
{
    SCOPED_TRACE(arguments.join(QLatin1Char(' ')).toStdString());
    const ProgramRun run = workbench(arguments);
    EXPECT_EQ(run.code, code);
    EXPECT_EQ(run.out, "");
    EXPECT_TRUE(run.err.contains("workbench: ")) << run.err.toStdString();
    EXPECT_TRUE(run.err.contains(reason)) << run.err.toStdString();
}

QString ProgramFixture::write(const QString &name, const QByteArray &bytes) const
{
    QFile out(path(name));
    EXPECT_TRUE(out.open(QIODevice::WriteOnly));
    EXPECT_EQ(out.write(bytes), bytes.size());
    return path(name);
}

QString ProgramFixture::desk(const QByteArray &document) const
{
    QJsonObject json = sceneJson(QStringLiteral(QX_TEST_DATA "/Scenes/desk.gltf")).toObject();
    QJsonArray scenes = json["scenes"].toArray();
    QJsonObject scene = scenes[0].toObject();
    scene["extras"] = QJsonObject{{"qxVariants", QString::fromUtf8(document)}};
    scenes[0] = scene;
    json["scenes"] = scenes;
    return write("desk.gltf", QJsonDocument(json).toJson());
}

QString ProgramFixture::desk() const
{
    return desk(bytesOf(QStringLiteral(QX_TEST_DATA "/Scenes/desk.xml")));
}

QJsonDocument ProgramRun::json() const
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(out, &error);
    EXPECT_EQ(error.error, QJsonParseError::NoError) << out.toStdString();
    return document;
}

QByteArray bytesOf(const QString &path)
{
    QFile in(path);
    EXPECT_TRUE(in.open(QIODevice::ReadOnly)) << path.toStdString();
    return in.readAll();
}

QJsonValue sceneJson(const QString &path)
{
    QByteArray bytes = bytesOf(path);
    if (bytes.startsWith("glTF"))
        bytes = bytes.mid(20, int(qFromLittleEndian<quint32>(bytes.constData() + 12)));
    const QJsonDocument document = QJsonDocument::fromJson(bytes);
    EXPECT_TRUE(document.isObject()) << path.toStdString();
    return document.object();
}

QStringList differences(const QJsonValue &one, const QJsonValue &other, const QString &pointer)
{
    QStringList found;
    if (one.isObject() && other.isObject()) {
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

void PrintTo(const QString &text, std::ostream *out)
{
    *out << '"' << text.toStdString() << '"';
}

void PrintTo(const QByteArray &text, std::ostream *out)
{
    *out << text.toStdString();
}
