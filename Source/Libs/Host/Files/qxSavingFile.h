#pragma once

#include <QByteArray>

#include <sys/types.h>

/// The file beside a target that takes its new content until that is whole. Its name tells the
/// target, and it is locked as long as its process lives.
///
/// Operations that can fail answer false with the reason in errno.
class qxSavingFile {
public:
    qxSavingFile() = default;
    qxSavingFile(const qxSavingFile &) = delete;
    /// Removes the file unless it has become its target or is kept.
    ~qxSavingFile();

    /// Makes it for that target, which need not exist, with the mode that open(2) gives it.
    bool create(const QByteArray &target, mode_t mode);
    /// Makes it the target.
    bool replaceTarget();
    /// Leaves it where it is.
    void keep() { m_isKept = true; }

    int descriptor() const { return m_descriptor; }
    const QByteArray &name() const { return m_name; }

    /// Removes what saves of that target have left that were killed.
    static void removeStrays(const QByteArray &target);

private:
    bool lock();

    QByteArray m_target;
    QByteArray m_name;
    int m_descriptor = -1;
    bool m_isKept = false;
};
