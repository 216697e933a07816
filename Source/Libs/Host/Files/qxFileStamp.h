#pragma once

#include "Files/qxFileSum.h"

#include <QByteArray>
#include <QString>

#include <sys/stat.h>

/// The content of a file when it was read or written, to detect later changes by others.
class qxFileStamp {
public:
    /// Of no file, which never changes.
    qxFileStamp() = default;
    /// `bytes` is the content of the file, or the beginning that matters.
    qxFileStamp(const QString &path, const QByteArray &bytes);
    /// The same of what has that sum.
    qxFileStamp(const QString &path, const qxFileSum &sum);

    /// Whether the file exists with the same content.
    bool isUpToDate() const;

private:
    QByteArray m_path;
    struct stat m_status = {};
    bool m_isStatusSure = false; ///< whether a later change shows in the status
    bool m_isWhole = false; ///< whether the bytes are all that the file holds
    qint64 m_size = 0;
    std::size_t m_hash = 0;
};
