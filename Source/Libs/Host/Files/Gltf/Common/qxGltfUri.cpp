#include "Files/Gltf/Common/qxGltfUri.h"

#include "Files/Gltf/Common/qxGltfDocument.h"
#include "Files/Gltf/Common/qxGltfFiles.h"
#include "Files/qxMemoryBudget.h"
#include "qxText.h"

#include <QDir>
#include <QUrl>

namespace {

QByteArray bufferBytes(const qxGltfDocument &document, int index, const qxJson &buffer,
                       qxMemoryBudget &budget)
{
    const qxJson &uri = qxGltfMember(buffer, "uri");
    if (uri.is_string())
        return qxGltfReadUri(document, uri.get_ref<const std::string &>(), budget);
    if (index > 0)
        return QByteArray();
    budget.take(document.bin.size(), 1); // cut to its length it is a copy
    return document.bin;
}

/// As many bytes as the buffer announces.
QByteArray wholeBuffer(const qxGltfDocument &document, int index, const qxJson &buffer,
                       qxMemoryBudget &budget)
{
    const qint64 length = buffer.at("byteLength").get<qint64>();
    QByteArray bytes = bufferBytes(document, index, buffer, budget);
    if (!bytes.isNull() && bytes.size() < length)
        throw qxGltfError(qxFileText::tr("it is too short: %1 bytes announced, %2 there")
                              .arg(QString::number(length), QString::number(bytes.size())));
    bytes.truncate(int(length));
    return bytes;
}

/// Whether it only holds what is there in a compressed form, too.
bool isFallback(const qxJson &buffer)
{
    const qxJson &extensions = qxGltfMember(buffer, "extensions");
    return qxGltfMember(qxGltfMember(extensions, "EXT_meshopt_compression"), "fallback") == true;
}

} // namespace

bool qxGltfIsDataUri(const std::string &uri)
{
    return uri.compare(0, 5, "data:") == 0;
}

QByteArray qxGltfDataOf(const std::string &uri, qxMemoryBudget &budget)
{
    const std::size_t comma = uri.find(',');
    const std::string mark = ";base64";
    if (comma == std::string::npos || comma < mark.size()
        || uri.compare(comma - mark.size(), mark.size(), mark) != 0)
        throw qxGltfError(qxFileText::tr("its data URI is not in base64"));
    const std::size_t begin = comma + 1;
    const QByteArray text = QByteArray::fromRawData(uri.data() + begin, int(uri.size() - begin));
    budget.take(text.size() / 4 + 1, 3);
    const auto decoded = QByteArray::fromBase64Encoding(
        text, QByteArray::Base64Encoding | QByteArray::AbortOnBase64DecodingErrors);
    if (!decoded)
        throw qxGltfError(qxFileText::tr("the base64 of its data URI is damaged"));
    return *decoded;
}

std::string qxGltfDataUriOf(const QByteArray &bytes)
{
    return ("data:application/octet-stream;base64," + bytes.toBase64()).toStdString();
}

QString qxGltfRelativePath(const std::string &uri)
{
    const QString path = QUrl::fromPercentEncoding(QByteArray::fromStdString(uri));
    const QString clean = QDir::cleanPath(path);
    const bool otherPlace = QDir::isAbsolutePath(path) || path.contains(':') || path.contains('\\')
        || path.contains(QChar(0));
    if (path.isEmpty() || otherPlace || clean == ".." || clean.startsWith("../"))
        return QString();
    return clean;
}

std::string qxGltfUriOf(const QString &path)
{
    return QUrl::toPercentEncoding(path, "/").toStdString();
}

QByteArray qxGltfReadUri(const qxGltfDocument &document, const std::string &uri,
                         qxMemoryBudget &budget)
{
    if (qxGltfIsDataUri(uri))
        return qxGltfDataOf(uri, budget);
    const QString shown = qxText::fromUtf8(uri);
    const QString path = qxGltfRelativePath(uri);
    if (path.isEmpty())
        throw qxGltfError(
            qxFileText::tr("\"%1\" leads out of the folder of the scene file").arg(shown));
    try {
        return qxGltfReadBeside(document.folder(), path, budget);
    } catch (const qxGltfError &error) {
        throw qxGltfError(qxFileText::tr("\"%1\": %2").arg(shown, error.reason()));
    }
}

std::vector<QByteArray> qxGltfReadBuffers(const qxGltfDocument &document, qxMemoryBudget &budget,
                                          QStringList &warnings)
{
    std::vector<QByteArray> buffers;
    for (const qxJson &buffer : qxGltfSection(document.json, "buffers")) {
        const int index = int(buffers.size());
        const QString called = qxGltfLabel("buffer", index, buffer);
        try {
            buffers.push_back(wholeBuffer(document, index, buffer, budget));
        } catch (const qxGltfError &error) {
            if (!isFallback(buffer))
                throw qxGltfError(called + ": " + error.reason());
            buffers.push_back(QByteArray());
            warnings << called + ": " + error.reason();
        }
    }
    return buffers;
}
