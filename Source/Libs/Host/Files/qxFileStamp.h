#pragma once

#include <QByteArray>
#include <QString>

#include <sys/stat.h>

/// What a file held when it was read or written, to see later whether somebody has changed it.
class qxFileStamp {
public:
    /// Of no file: that stays as it is.
    qxFileStamp() = default;
    /// `bytes` is what the file holds, or what matters of it: its beginning.
    qxFileStamp(const QString &path, const QByteArray &bytes);

    /// Whether the file is there and holds the same.
    bool isUpToDate() const;

private:
    QByteArray m_path;
    struct stat m_status = {};
    bool m_isStatusSure = false; ///< whether a later change shows in the status
    bool m_isWhole = false; ///< whether the bytes are all that the file holds
    int m_size = 0;
    std::size_t m_hash = 0;
};
