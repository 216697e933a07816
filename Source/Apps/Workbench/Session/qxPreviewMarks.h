#pragma once

#include "Files/qxEmbeddedFiles.h"

#include <QMap>

/// While it lives, sets bear marks of files in place of their previews, so that a document can be
/// written without reading them.
class qxPreviewMarks {
public:
    /// The files by the names of the sets. A set whose preview is that of the file keeps it.
    explicit qxPreviewMarks(const QMap<QString, QString> &previews);
    qxPreviewMarks(const qxPreviewMarks &) = delete;
    ~qxPreviewMarks();

    /// What the marks stand for.
    const qxEmbeddedFiles &files() const { return m_files; }

private:
    qxEmbeddedFiles m_files;
    QMap<QString, QByteArray> m_before; ///< the previews of the sets, by name
};
