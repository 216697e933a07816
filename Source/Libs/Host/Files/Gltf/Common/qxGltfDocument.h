#pragma once

#include "Files/Gltf/Common/qxGltfJson.h"
#include "Files/qxFileContent.h"
#include "Files/qxFileStamp.h"

#include <QByteArray>

class qxMemoryBudget;

/// A scene file as it lies on the disk: its JSON and, in a .glb, the binary chunks.
struct qxGltfDocument {
    QString path; ///< as it was given to read; empty for a scene that has no file yet
    qxFileStamp stamp; ///< of the file
    qxJson json; ///< always an object
    QByteArray text; ///< the JSON as it was written in the file
    bool binary = false; ///< whether the file was a .glb
    QByteArray bin; ///< the content of the .glb's BIN chunk, with its padding
    QByteArray moreChunks; ///< what follows the BIN chunk, headers included

    /// Reads a .gltf or a .glb, whatever its name says. Throws qxGltfError.
    static qxGltfDocument read(const QString &path, qxMemoryBudget &budget);
    /// The same of the content of that file.
    static qxGltfDocument of(const QString &path, const QByteArray &bytes, qxMemoryBudget &budget);
    /// The document of a scene that did not come from a file.
    static qxGltfDocument empty();

    /// The folder that URIs of the file are relative to.
    QString folder() const;
    /// `edited` as text in the style of this file; without changes, the text of the file.
    QByteArray textOf(const qxJson &edited) const;
};

/// A .glb with these chunks; a null `bin` leaves the BIN chunk out.
/// Throws qxGltfError when it is too large.
qxFileContent qxGltfPackBinary(const qxFileContent &text, const QByteArray &bin,
                               const QByteArray &moreChunks);
