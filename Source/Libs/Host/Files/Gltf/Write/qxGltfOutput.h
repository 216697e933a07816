#pragma once

#include "Files/Gltf/Common/qxGltfDocument.h"
#include "Files/qxEmbeddedFiles.h"

#include <QStringList>

#include <map>
#include <vector>

/// Writes a scene file and the files that it needs beside it. No file is replaced before all of
/// them are written completely, and the scene file is replaced last. A file beside the scene never
/// replaces one of other content. If writing fails, the files beside the scene are removed.
class qxGltfOutput {
public:
    /// Writes to `path` a .gltf, or a `binary` .glb.
    qxGltfOutput(const qxGltfDocument &document, const QString &path, bool binary);
    /// Which of them the suffix of the path asks for. Throws qxGltfError for any other.
    static bool isBinary(const QString &path);

    /// Writes `json`, the edited JSON of the document, whose buffers have the given content.
    /// The files belong to marks in its texts. Throws qxGltfError.
    void write(qxJson json, const std::vector<QByteArray> &buffers,
               const qxEmbeddedFiles &files = qxEmbeddedFiles());
    /// What could not be copied, or was written under another name or form.
    const QStringList &warnings() const { return m_warnings; }
    /// Whether the old scene file was replaced, also when `write` has thrown.
    bool isReplaced() const { return m_isReplaced; }
    /// Of the new content of the scene file, once it was replaced.
    const qxFileSum &sum() const { return m_sum; }
    /// The URIs of the files of buffers and pictures beside a scene.
    static std::vector<std::string> filesOf(const qxJson &json);
    /// Whether a file of that path lies in the folder of the document.
    static bool isBeside(const qxGltfDocument &document, const QString &path);

private:
    void refuseOwnFiles() const;
    void packFirstBuffer(qxJson &json, const std::vector<QByteArray> &buffers);
    void unpackFirstBuffer(qxJson &json);
    void copyBuffers(qxJson &json, const std::vector<QByteArray> &buffers);
    void copyPictures(qxJson &json);
    void copy(qxJson &holder, const char *key, const QByteArray &bytes);
    QString place(const QString &wanted, const QByteArray &bytes);
    void commit();
    void settle(qxOutputFile &file);
    void takeBack() const;
    [[noreturn]] void fail(const QString &path, const QString &reason) const;

    const qxGltfDocument &m_document;
    QString m_path;
    bool m_binary;
    QByteArray m_bin;
    std::vector<std::pair<QString, qxFileContent>> m_files; ///< path and content, in order
    std::map<QString, QByteArray> m_placed; ///< files beside the scene, by path
    QStringList m_written; ///< beside the scene file, on the disk
    bool m_isReplaced = false;
    qxFileSum m_sum;
    QStringList m_warnings;
};
