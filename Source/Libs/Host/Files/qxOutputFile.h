#pragma once

#include "Files/qxFileSum.h"
#include "Files/qxSavingFile.h"

#include <QString>
#include <QStringList>

#include <sys/stat.h>

#include <functional>

/// A file that is written completely or not at all, and synchronised with the disk. It keeps owner,
/// group, mode, access list and extended attributes as far as this user may set them. Writing to a
/// link writes its target.
///
/// Pipes, devices and the like are written directly. So is a file with several hard links, with a
/// warning, because replacing it would leave the other links with the old content.
class qxOutputFile {
public:
    /// Who may read the file: everybody, as far as its mode or the umask allows, or only its owner.
    enum Readers { Everybody, OwnerAlone };

    /// Takes the next bytes of a content; false when there is no use in more.
    typedef std::function<bool(const QByteArray &bytes)> Sink;
    /// Gives a content to the sink, piece by piece, until it is false. Why there is no more of it,
    /// or empty.
    typedef std::function<QString(const Sink &sink)> Content;

    /// A file to write at that path. Nothing is touched before prepare.
    explicit qxOutputFile(const QString &path, Readers readers = Everybody);
    qxOutputFile(const qxOutputFile &) = delete;

    /// Takes the content and returns whether it can be written, as far as that is known now. The
    /// old file stays until commit.
    bool prepare(const QByteArray &bytes);
    /// The same for a content that need not be in memory. It is asked for once: now, or by the
    /// commit of what is written directly.
    bool prepare(const Content &content);
    /// Replaces the file at the path by the content; waits for the reader of a pipe.
    bool commit();

    /// The path as it was given.
    QString path() const { return m_path; }
    /// Why the last step failed.
    QString errorString() const { return m_error; }
    /// What the user should know about the save.
    const QStringList &warnings() const { return m_warnings; }
    /// The sum of what was prepared, unless it is written directly.
    const qxFileSum &sum() const { return m_sum; }
    /// Whether the old content is no longer at the path, also when commit has failed.
    bool isReplaced() const { return m_isReplaced; }

    /// Whether the path is neither a regular file nor a folder, but exists.
    static bool isStream(const QString &path);
    /// Why the path cannot be written, as far as that is known without touching it; empty if it
    /// can.
    static QString flawOf(const QString &path);
    /// The path that is written for this one: links are followed, also those that lead to nothing
    /// yet.
    static QString targetOf(const QString &path);
    /// That path through the real folder.
    static QString realTargetOf(const QString &path);
    /// Whether a write to one of these paths changes the file at the other.
    static bool isSame(const QString &path, const QString &other);

private:
    bool writeNew();
    template <class Write>
    bool writeContent(const Write &write);
    bool writeStraight();
    bool writeInPlace();
    bool reserve(int descriptor);
    bool fail(const QString &reason);
    bool failUntouched();

    QString m_path;
    QByteArray m_target;
    Content m_content;
    qxFileSum m_sum;
    qxSavingFile m_new;
    struct stat m_old = {}; ///< of what stands at the target; no links when nothing does
    Readers m_readers;
    bool m_isStream;
    bool m_isReplaced = false;
    QString m_error;
    QStringList m_warnings;
};
