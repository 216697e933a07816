#pragma once

#include <QByteArray>

#include <sys/types.h>

/// A temporary file beside a target for its new content. Its name is derived from the target, and
/// it is locked as long as its process lives.
///
/// Operations that can fail answer false with the reason in errno.
class qxSavingFile {
public:
    qxSavingFile() = default;
    qxSavingFile(const qxSavingFile &) = delete;
    /// Removes the file unless it replaced its target or is kept.
    ~qxSavingFile();

    /// Creates it for that target, which need not exist, with the mode of open(2).
    bool create(const QByteArray &target, mode_t mode);
    /// Renames it to the target.
    bool replaceTarget();
    /// Keeps the file.
    void keep() { m_isKept = true; }

    /// What it is open as, for writing; -1 before create.
    int descriptor() const { return m_descriptor; }
    /// Its path; empty before create.
    const QByteArray &name() const { return m_name; }

    /// Removes the temporary files of killed saves of that target.
    static void removeStrays(const QByteArray &target);

private:
    bool lock();

    QByteArray m_target;
    QByteArray m_name;
    int m_descriptor = -1;
    bool m_isKept = false;
};
