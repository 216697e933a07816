#pragma once

#include "Files/qxOutputFile.h"

#include <vector>

/// What a file will hold: bytes, and the Base64 of other files. These are read one at a time, when
/// their turn to be written comes.
class qxFileContent {
public:
    ///@{
    /// Nothing, or these bytes.
    qxFileContent() = default;
    explicit qxFileContent(const QByteArray &bytes) { append(bytes); }
    ///@}

    ///@{
    /// Adds at the end.
    void append(const QByteArray &bytes);
    void append(const qxFileContent &content);
    ///@}
    /// Adds the Base64 of a file. A missing one, or one whose size changes before it is read, makes
    /// giveTo fail.
    void appendBase64(const QString &path);

    /// In bytes.
    qint64 size() const { return m_size; }
    /// See qxOutputFile::Content.
    QString giveTo(const qxOutputFile::Sink &sink) const;

private:
    /// A file when there is a path, else bytes.
    struct Piece {
        QByteArray bytes;
        QString path;
        qint64 size; ///< of the file
    };

    std::vector<Piece> m_pieces;
    qint64 m_size = 0;
};
