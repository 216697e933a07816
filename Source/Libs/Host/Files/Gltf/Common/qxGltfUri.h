#pragma once

#include "Files/Gltf/Common/qxGltfJson.h"

#include <QStringList>

#include <vector>

class qxMemoryBudget;
struct qxGltfDocument;

/// Whether the URI contains the data.
bool qxGltfIsDataUri(const std::string &uri);
/// The data of a base64 data URI. Throws qxGltfError when they are in another form.
QByteArray qxGltfDataOf(const std::string &uri, qxMemoryBudget &budget);
/// A URI that contains these data.
std::string qxGltfDataUriOf(const QByteArray &bytes);

/// The path that a URI names relative to the file that holds it. Empty for what leads elsewhere:
/// absolute paths, other schemes, and paths that leave the folder through "..".
QString qxGltfRelativePath(const std::string &uri);
/// `path` as a URI: everything percent-encoded that needs it.
std::string qxGltfUriOf(const QString &path);

/// The data of `uri`, from the document's folder or from the URI itself. Throws qxGltfError if they
/// are missing or must not be read.
QByteArray qxGltfReadUri(const qxGltfDocument &document, const std::string &uri,
                         qxMemoryBudget &budget);
/// The content of all buffers, cut to their stated length. A buffer without a URI that is not the
/// BIN chunk is null. Throws qxGltfError for one that is missing or too short; one that only holds
/// decompressed data is null then, with a warning.
std::vector<QByteArray> qxGltfReadBuffers(const qxGltfDocument &document, qxMemoryBudget &budget,
                                          QStringList &warnings);
