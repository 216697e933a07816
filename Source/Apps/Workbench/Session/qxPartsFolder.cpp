#include "Session/qxPartsFolder.h"

#include "Report/qxOutput.h"
#include "Report/qxStreams.h"
#include "Session/qxPreviewStamp.h"
#include "Session/qxShardPlan.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSysInfo>

#include <cerrno>
#include <cstring>
#include <unistd.h>

namespace {

constexpr int Beginning = 256; ///< of a picture: with size and stamp
constexpr int pngSignature = 8;
const QByteArray pngStart("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16);
const QByteArray pngEnd("\0\0\0\0IEND\xae\x42\x60\x82", 12);

bool fail(const QString &path, const QString &reason)
{
    qxOutput::error(QStringLiteral("%1: %2").arg(path, reason));
    return false;
}

quint32 numberAt(const QByteArray &bytes, int place)
{
    return bytes.mid(place, 4).toHex().toUInt(nullptr, 16);
}

bool isReport(const QByteArray &bytes)
{
    return !QJsonDocument::fromJson(bytes).object().isEmpty();
}

} // namespace

QString qxPartsFolder::productPath(const QByteArray &product) const
{
    return QStringLiteral("%1/products/%2/%3.%4")
        .arg(m_path, QString::fromLatin1(product.left(2)), QString::fromLatin1(product),
             m_form.size.isEmpty() ? QStringLiteral("json") : QStringLiteral("png"));
}

/// Whether it is the beginning of a picture of that size and name.
bool qxPartsFolder::begins(const QByteArray &product, const QByteArray &bytes) const
{
    if (bytes.size() < pngStart.size() + 8 || !bytes.startsWith(pngStart))
        return false;
    const QSize size(int(numberAt(bytes, pngStart.size())),
                     int(numberAt(bytes, pngStart.size() + 4)));
    return size == m_form.size
        && (!m_form.isStamped || qxPreviewStamp::of(bytes.left(Beginning)) == product);
}

/// Whether its chunks, too, lead from one to the next as far as the end.
bool qxPartsFolder::isWhole(const QByteArray &product, const QByteArray &bytes) const
{
    constexpr qint64 Frame = 12; // of a chunk: length, name and checksum
    if (!begins(product, bytes) || !bytes.endsWith(pngEnd))
        return false;
    qint64 place = pngSignature;
    while (place + Frame < bytes.size())
        place += Frame + numberAt(bytes, int(place));
    return place + Frame == bytes.size();
}

bool qxPartsFolder::holds(const QByteArray &product) const
{
    QFile file(productPath(product));
    if (!file.open(QIODevice::ReadOnly))
        return false;
    if (m_form.size.isEmpty())
        return isReport(file.readAll());
    return begins(product, file.read(Beginning)) && file.seek(file.size() - pngEnd.size())
        && file.readAll() == pngEnd;
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
    if (m_form.size.isEmpty() ? isReport(bytes) : isWhole(product, bytes))
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
    const bool isAdded =
        link(QFile::encodeName(draft).constData(), QFile::encodeName(planPath()).constData()) == 0;
    const int reason = errno;
    QFile::remove(draft);
    if (isAdded)
        return true;
    return reason == EEXIST ? readPlan(plan)
                            : fail(planPath(), QString::fromLocal8Bit(std::strerror(reason)));
}
