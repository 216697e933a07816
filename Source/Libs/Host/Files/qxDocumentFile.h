#pragma once

#include "Files/qxSceneConflict.h"

#include <QByteArray>
#include <QJsonObject>
#include <QStringList>
#include <QVector>

#include <functional>
#include <memory>

/// A variants document in the file that holds it, of which no scene is made: a scene file (.gltf,
/// .glb) or the document alone. What it is, its content tells.
class qxDocumentFile {
public:
    /// Of no file: no scene, without a document.
    qxDocumentFile();
    qxDocumentFile(const qxDocumentFile &) = delete;
    ~qxDocumentFile();

    /// Reads a file, or a stream such as a pipe, within the limit of qxMemoryBudget. An empty one
    /// is an empty document. Refuses scene files that qxSceneFile refuses for what their JSON says,
    /// and documents that are no text or too large; whether they are well-formed is not looked at.
    /// Files beside a scene are not read. On failure the object is unchanged.
    bool load(const QString &path);
    /// Whether it is a scene file.
    bool isScene() const;
    /// The document, UTF-8; empty when the scene has none.
    const QByteArray &document() const;
    /// The JSON of the scene file without the document; empty for a document alone. Made anew by
    /// each call.
    QJsonObject sceneJson() const;
    /// The content of the BIN chunk of a .glb, with its padding; empty for other files.
    const QByteArray &binaryChunk() const;
    /// Takes over what theirs changed of a scene since base, the documents aside; see
    /// Docs/Documents.md. Base may be an empty file. Returns what the sides changed differently, of
    /// which ours, or else theirs, is kept. Fails when theirs needs files of another folder that
    /// are not the same beside this file, and changes nothing then.
    bool mergeScene(const qxDocumentFile &base, const qxDocumentFile &theirs, bool prefersTheirs,
                    QVector<qxSceneConflict> &conflicts);
    /// Writes the file with that document. A scene keeps all else, and becomes a .gltf or a .glb
    /// as the suffix says; with any other suffix it keeps its form. In another folder it gets
    /// copies of the files that it needs. Refuses to write over the loaded file when others have
    /// changed it since, unless `overwrites`. On failure the old file is intact.
    bool save(const QString &path, const QByteArray &document, bool overwrites = false);

    /// Why the last operation failed, with the path; empty when it did not.
    QString errorString() const;
    /// What the user should know about the last save.
    QStringList warnings() const;

    /// Why these bytes are no text that a document could be; empty when they are one. A reader
    /// would take a NUL for the end, and what is no UTF-8 for characters that nobody wrote.
    static QString flawOf(const QByteArray &xml);

private:
    struct Content;
    bool attempt(const QString &path, const std::function<void()> &work);

    std::unique_ptr<Content> m_content;
    QString m_error;
    QStringList m_warnings;
};
