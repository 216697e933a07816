#include "qxStreams.h"

#include "qxLog.h"
#include "qxOutput.h"
#include "qxText.h"

#include <QFile>

#include <cstdio>

namespace {

qxOutputFile::Content whole(const QByteArray &bytes)
{
    return [bytes](const qxOutputFile::Sink &sink) {
        sink(bytes);
        return QString();
    };
}

bool fail(const QString &name, const QString &reason)
{
    qxOutput::error(QStringLiteral("%1: %2").arg(name, reason));
    return false;
}

} // namespace

bool qxStreams::isStandard(const QString &name)
{
    return name == QLatin1String("-");
}

bool qxStreams::read(const QString &name, QByteArray &bytes)
{
    QFile in(name);
    const bool isOpen =
        isStandard(name) ? in.open(stdin, QIODevice::ReadOnly) : in.open(QIODevice::ReadOnly);
    if (isOpen)
        bytes = in.readAll();
    return in.error() == QFileDevice::NoError || fail(name, in.errorString());
}

bool qxStreams::write(const QString &name, const QByteArray &bytes)
{
    return write(name, whole(bytes));
}

bool qxStreams::write(const QString &name, const qxOutputFile::Content &content)
{
    const auto print = [](const QByteArray &bytes) {
        qxOutput::bytes(bytes);
        return true;
    };
    const QString flaw = isStandard(name) ? content(print) : writeFile(name, content);
    return flaw.isEmpty() || fail(name, flaw);
}

QString qxStreams::writeFile(const QString &name, const QByteArray &bytes)
{
    return writeFile(name, whole(bytes));
}

QString qxStreams::writeFile(const QString &name, const qxOutputFile::Content &content)
{
    qxOutputFile file(name);
    const bool isWritten = file.prepare(content) && file.commit();
    for (const QString &warning : file.warnings())
        qxLog::warning("%s: %s", qxText::toUtf8(name).c_str(), qxText::toUtf8(warning).c_str());
    return isWritten ? QString() : file.errorString();
}
