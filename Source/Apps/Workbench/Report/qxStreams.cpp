#include "qxStreams.h"

#include "Files/qxOutputFile.h"
#include "qxLog.h"
#include "qxOutput.h"
#include "qxText.h"

#include <QFile>

#include <cstdio>

namespace {

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
    if (isStandard(name)) {
        qxOutput::bytes(bytes);
        return true;
    }
    const QString flaw = writeFile(name, bytes);
    return flaw.isEmpty() || fail(name, flaw);
}

QString qxStreams::writeFile(const QString &name, const QByteArray &bytes)
{
    qxOutputFile file(name);
    const bool isWritten = file.prepare(bytes) && file.commit();
    for (const QString &warning : file.warnings())
        qxLog::warning("%s: %s", qxText::toUtf8(name).c_str(), qxText::toUtf8(warning).c_str());
    return isWritten ? QString() : file.errorString();
}
