#pragma once

#include <QTemporaryDir>

/// An earlier version of a scene file: another file, or a revision of the git repository that the
/// file lies in.
class qxFileVersion {
public:
    /// Finds the version of `file` that `version` names. Of a revision the scene, and the files
    /// beside it that it needs, are put into a temporary folder; what git does not have is taken
    /// from beside `file`. On failure see errorString.
    bool find(const QString &file, const QString &version);
    /// Where the scene file of the version lies, as long as this lives.
    QString path() const { return m_path; }
    /// Why nothing was found.
    QString errorString() const { return m_error; }

private:
    bool fetch(const QString &name, QByteArray &bytes);
    bool write(const QString &name, const QByteArray &bytes);
    bool takeNeeded();

    QTemporaryDir m_folder;
    QString m_home; ///< the folder of the present file
    QString m_revision;
    QString m_path;
    QString m_error;
};
