#pragma once

#include "Files/Gltf/Common/qxGltfJson.h"

#include <QByteArray>

#include <vector>

class qxMemoryBudget;
struct qxGltfDocument;

/// Whether the URI holds the data itself.
bool qxGltfIsDataUri(const std::string &uri);
/// The data of a base64 data URI. Throws qxGltfError when they are in another form.
QByteArray qxGltfDataOf(const std::string &uri, qxMemoryBudget &budget);
/// A URI that holds these data itself.
std::string qxGltfDataUriOf(const QByteArray &bytes);

/// The path that a URI names relative to the file that holds it. Empty for what leads elsewhere:
/// absolute paths, other schemes, and paths that leave the folder through "..".
QString qxGltfRelativePath(const std::string &uri);
/// `path` as a URI: everything percent-encoded that needs it.
std::string qxGltfUriOf(const QString &path);

/// What `uri` stands for, read from the document's folder or from the URI itself.
/// Throws qxGltfError when there is nothing to read or when it may not be read.
QByteArray qxGltfReadUri(const qxGltfDocument &document, const std::string &uri,
                         qxMemoryBudget &budget);
/// The content of all buffers, cut to their stated length. A buffer without a URI that is not the
/// BIN chunk is null. Throws qxGltfError for one that is missing or too short.
std::vector<QByteArray> qxGltfReadBuffers(const qxGltfDocument &document, qxMemoryBudget &budget);
