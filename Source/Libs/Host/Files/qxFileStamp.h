#pragma once

#include <QByteArray>
#include <QString>

#include <sys/stat.h>

/// What a file held when it was read or written, to see later whether somebody has changed it.
class qxFileStamp {
public:
    /// Of no file: nobody changes that.
    qxFileStamp() = default;
    /// `bytes` is what the file holds, or what matters of it: its beginning.
    qxFileStamp(const QString &path, const QByteArray &bytes);

    /// Whether the file holds something else by now. One that is gone does not.
    bool isOutdated() const;

private:
    QByteArray m_path;
    struct stat m_status = {};
    bool m_isStatusSure = false; ///< whether a later change shows in the status
    bool m_isWhole = false; ///< whether the bytes are all that the file holds
    int m_size = 0;
    std::size_t m_hash = 0;
};
