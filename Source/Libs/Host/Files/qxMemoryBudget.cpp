#include "Files/qxMemoryBudget.h"

#include "Files/Gltf/Common/qxGltfJson.h"

#include <QRegularExpression>

namespace {

const qint64 _megabyte = qint64(1) << 20;
const qint64 _gigabyte = qint64(1) << 30;

// What variants documents become, estimated from above: sets of one attribute take the most.
const qint64 _bytesPerElement = 1200;
const qint64 _bytesPerAttribute = 600;
const qint64 _bytesPerByte = 10;

// The same of those that become nothing but a qxDocument.
const qint64 _dataPerSet = 600;
const qint64 _dataPerElement = 400;
const qint64 _dataPerByte = 8;

qint64 elementsOf(const QByteArray &xml)
{
    return xml.count('<') - xml.count("</");
}

qint64 &current()
{
    static qint64 bytes = 2 * _gigabyte;
    return bytes;
}

} // namespace

void qxMemoryBudget::setLimit(qint64 bytes)
{
    current() = bytes;
}

qint64 qxMemoryBudget::limit()
{
    return current();
}

QString qxMemoryBudget::text(double bytes)
{
    const bool isLarge = bytes >= double(_gigabyte);
    const double amount = bytes / double(isLarge ? _gigabyte : _megabyte);
    return QStringLiteral("%1 %2").arg(QString::number(amount, 'g', 4),
                                       QLatin1String(isLarge ? "GB" : "MB"));
}

qint64 qxMemoryBudget::fromText(const QString &text)
{
    static const QRegularExpression form(QStringLiteral("^(\\d{1,6}) ?([MG])B?$"),
                                         QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = form.match(text);
    const bool isLarge = match.captured(2).toUpper() == QLatin1String("G");
    return match.captured(1).toLongLong() * (isLarge ? _gigabyte : _megabyte);
}

void qxMemoryBudget::take(qint64 count, qint64 size)
{
    // A file may state any count: there is no product before it is known to fit.
    if (size > 0 && count > m_left / size) {
        const double bytes = double(count) * double(size);
        throw qxGltfError(
            qxFileText::tr("%1 of memory are needed, %2 of %3 are left (--memory-limit)")
                .arg(text(bytes), text(double(m_left)), text(double(limit()))));
    }
    m_left -= count * size;
}

void qxMemoryBudget::take(const QString &owner, qint64 count, qint64 size)
{
    try {
        take(count, size);
    } catch (const qxGltfError &error) {
        throw qxGltfError(owner + QStringLiteral(": ") + error.reason());
    }
}

void qxMemoryBudget::takeDocument(const QByteArray &xml)
{
    take(qxFileText::tr("the variants document"),
         elementsOf(xml) * _bytesPerElement + xml.count('=') * _bytesPerAttribute
             + xml.size() * _bytesPerByte,
         1);
}

void qxMemoryBudget::takeDocumentData(const QByteArray &xml)
{
    take(qxFileText::tr("the variants document"),
         xml.count("<VariantSet") * _dataPerSet + elementsOf(xml) * _dataPerElement
             + xml.size() * _dataPerByte,
         1);
}
