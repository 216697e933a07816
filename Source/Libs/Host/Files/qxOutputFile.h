#pragma once

#include <QByteArray>
#include <QString>

#include <memory>

class QSaveFile;

/// A file that is written as a whole or not at all. What is no regular file, such as a pipe or a
/// device, stays what it is: it is written straight to.
class qxOutputFile {
public:
    explicit qxOutputFile(const QString &path);
    qxOutputFile(const qxOutputFile &) = delete;
    ~qxOutputFile();

    /// Takes the content; as far as that can be found out now, answers whether it can be written.
    /// What stands at the path stays until commit.
    bool prepare(const QByteArray &bytes);
    /// Makes the content what stands at the path; waits for the reader of a pipe.
    bool commit();

    QString path() const { return m_path; }
    /// Why the last step failed.
    QString errorString() const { return m_error; }

    /// Whether something stands at the path that is neither a regular file nor a folder.
    static bool isStream(const QString &path);
    /// What speaks against writing there, found out without touching it; empty for nothing.
    static QString flawOf(const QString &path);

private:
    bool fail(const QString &reason);
    bool writeStraight();

    QString m_path;
    QByteArray m_bytes; ///< of a stream
    std::unique_ptr<QSaveFile> m_file; ///< null for a stream
    QString m_error;
};
