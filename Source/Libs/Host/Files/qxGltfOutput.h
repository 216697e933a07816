#pragma once

#include "Files/qxGltfDocument.h"

#include <QStringList>

#include <map>
#include <memory>
#include <vector>

/// Writes a scene file and the files that it needs beside it. Nothing on the disk changes before
/// all of them are written completely, and the scene file itself comes last; a file of other
/// content is never replaced by one that the scene needs.
class qxGltfOutput {
public:
    /// `path` decides by its suffix whether a .gltf or a .glb is written.
    qxGltfOutput(const qxGltfDocument &document, const QString &path);

    /// Writes `json`, the edited JSON of the document, whose buffers have the given content.
    /// Throws qxGltfError.
    void write(qxJson json, const std::vector<QByteArray> &buffers);
    /// What could not be taken along.
    const QStringList &warnings() const { return m_warnings; }

private:
    void packFirstBuffer(qxJson &json, const std::vector<QByteArray> &buffers);
    void unpackFirstBuffer(qxJson &json);
    void copyBuffers(qxJson &json, const std::vector<QByteArray> &buffers);
    void copyPictures(qxJson &json);
    void copy(qxJson &entry, const QByteArray &bytes);
    QString place(const QString &wanted, const QByteArray &bytes);
    bool staysInFolder() const;
    void commit() const;
    [[noreturn]] void fail(const QString &path, const QString &reason) const;

    const qxGltfDocument &m_document;
    QString m_path;
    bool m_binary;
    QByteArray m_bin;
    std::vector<std::pair<QString, QByteArray>> m_files; ///< path and content, in order
    std::map<QString, QByteArray> m_placed; ///< files beside the scene, by path
    QStringList m_warnings;
};
