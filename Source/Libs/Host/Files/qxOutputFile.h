#pragma once

#include "Files/qxSavingFile.h"

#include <QString>
#include <QStringList>

#include <sys/stat.h>

/// A file that is written as a whole or not at all, and that is on the disk once it is written. It
/// keeps owner, group, mode, access list and extended attributes as far as this user may; of a
/// link, what it leads to is written.
///
/// What is no regular file, such as a pipe or a device, stays what it is: it is written straight
/// to. So is a file with several hard links, with a warning, because one that took its name would
/// leave the others with the old content.
class qxOutputFile {
public:
    /// Who may read the file: everybody whom the user's settings, or the mode that it has, let; or
    /// its owner and nobody else, whatever mode it has.
    enum Readers { Everybody, OwnerAlone };

    explicit qxOutputFile(const QString &path, Readers readers = Everybody);
    qxOutputFile(const qxOutputFile &) = delete;

    /// Takes the content; as far as that can be found out now, answers whether it can be written.
    /// What stands at the path stays until commit.
    bool prepare(const QByteArray &bytes);
    /// Makes the content what stands at the path; waits for the reader of a pipe.
    bool commit();

    QString path() const { return m_path; }
    /// Why the last step failed.
    QString errorString() const { return m_error; }
    /// What was not as one might expect.
    const QStringList &warnings() const { return m_warnings; }
    /// Whether the old content stands at the path no longer, also when commit has failed.
    bool isReplaced() const { return m_isReplaced; }

    /// Whether something stands at the path that is neither a regular file nor a folder.
    static bool isStream(const QString &path);
    /// What speaks against writing there, found out without touching it; empty for nothing.
    static QString flawOf(const QString &path);
    /// The path that is written for this one: links are followed, also those that lead to nothing
    /// yet.
    static QString targetOf(const QString &path);
    /// That path through the real folder.
    static QString realTargetOf(const QString &path);
    /// Whether a write to one of these paths changes what stands at the other.
    static bool isSame(const QString &path, const QString &other);

private:
    bool writeNew();
    bool writeStraight();
    bool writeInPlace();
    bool reserve(int descriptor);
    bool fail(const QString &reason);
    bool failUntouched();

    QString m_path;
    QByteArray m_target;
    QByteArray m_bytes;
    qxSavingFile m_new;
    struct stat m_old = {}; ///< of what stands at the target; no links when nothing does
    Readers m_readers;
    bool m_isStream;
    bool m_isReplaced = false;
    QString m_error;
    QStringList m_warnings;
};
