#include "Session/qxPartsFolder.h"

#include "Report/qxOutput.h"
#include "Report/qxStreams.h"
#include "Session/qxShardPlan.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QSysInfo>
#include <QtEndian>

#include <cerrno>
#include <cstring>
#include <unistd.h>

namespace {

const QByteArray pngStart("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16);
const QByteArray pngEnd("\0\0\0\0IEND\xae\x42\x60\x82", 12);

bool fail(const QString &path, const QString &reason)
{
    qxOutput::error(QStringLiteral("%1: %2").arg(path, reason));
    return false;
}

quint32 numberAt(const QByteArray &bytes, int place)
{
    return qFromBigEndian<quint32>(bytes.constData() + place);
}

/// Whether a PNG of that size begins like this.
bool beginsPicture(const QByteArray &bytes, const QSize &size)
{
    return bytes.size() > pngStart.size() + 8 && bytes.startsWith(pngStart)
        && QSize(int(numberAt(bytes, pngStart.size())), int(numberAt(bytes, pngStart.size() + 4)))
        == size;
}

/// Whether the chunks lead from one to the next as far as the end.
bool isWholePicture(const QByteArray &bytes, const QSize &size)
{
    constexpr qint64 Frame = 12; // of a chunk: length, name and checksum
    if (!beginsPicture(bytes, size) || !bytes.endsWith(pngEnd))
        return false;
    qint64 place = 8;
    while (place + Frame < bytes.size())
        place += Frame + numberAt(bytes, int(place));
    return place + Frame == bytes.size();
}

bool isReport(const QByteArray &bytes)
{
    return QJsonDocument::fromJson(bytes).isObject();
}

} // namespace

QString qxPartsFolder::productPath(const QByteArray &product) const
{
    return QStringLiteral("%1/products/%2/%3.%4")
        .arg(m_path, QString::fromLatin1(product.left(2)), QString::fromLatin1(product),
             m_size.isEmpty() ? QStringLiteral("json") : QStringLiteral("png"));
}

bool qxPartsFolder::holds(const QByteArray &product) const
{
    QFile file(productPath(product));
    if (!file.open(QIODevice::ReadOnly))
        return false;
    if (m_size.isEmpty())
        return isReport(file.readAll());
    const bool isBegun = beginsPicture(file.read(pngStart.size() + 16), m_size);
    return isBegun && file.seek(file.size() - pngEnd.size()) && file.readAll() == pngEnd;
}

bool qxPartsFolder::write(const QByteArray &product, const QByteArray &bytes) const
{
    const QString path = productPath(product);
    const QString folder = QFileInfo(path).path();
    return QDir().mkpath(folder) ? qxStreams::write(path, bytes)
                                 : fail(folder, QStringLiteral("the folder cannot be made"));
}

QByteArray qxPartsFolder::read(const QByteArray &product) const
{
    const QString path = productPath(product);
    QByteArray bytes;
    if (!qxStreams::read(path, bytes))
        return QByteArray();
    if (m_size.isEmpty() ? isReport(bytes) : isWholePicture(bytes, m_size))
        return bytes;
    fail(path, QStringLiteral("it is damaged; remove it and have its shard make it again"));
    return QByteArray();
}

QString qxPartsFolder::planPath() const
{
    return QDir(m_path).filePath(QStringLiteral("plan.json"));
}

bool qxPartsFolder::hasPlan() const
{
    return QFile::exists(planPath());
}

bool qxPartsFolder::readPlan(qxShardPlan &plan) const
{
    QByteArray bytes;
    if (!qxStreams::read(planPath(), bytes))
        return false;
    plan = qxShardPlan();
    const QString flaw = plan.read(bytes);
    return flaw.isEmpty() || fail(planPath(), flaw);
}

bool qxPartsFolder::writePlan(const qxShardPlan &plan) const
{
    return qxStreams::write(planPath(), plan.toJson());
}

/// A link is made to the whole plan, which fails when another one stands there.
bool qxPartsFolder::addPlan(qxShardPlan &plan) const
{
    const QString draft = QStringLiteral("%1/.plan.json.%2-%3")
                              .arg(m_path, QSysInfo::machineHostName())
                              .arg(getpid());
    if (!qxStreams::write(draft, plan.toJson()))
        return false;
    const bool isAdded = link(QFile::encodeName(draft).constData(),
                              QFile::encodeName(planPath()).constData())
        == 0;
    const int reason = errno;
    QFile::remove(draft);
    if (isAdded)
        return true;
    return reason == EEXIST ? readPlan(plan)
                            : fail(planPath(), QString::fromLocal8Bit(std::strerror(reason)));
}
