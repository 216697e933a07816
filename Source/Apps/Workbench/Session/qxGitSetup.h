#pragma once

#include <QPair>
#include <QStringList>

/// Has git compare and merge scenes and variants documents by this program.
class qxGitSetup {
public:
    /// For the repository around the current folder, or for all of the user.
    explicit qxGitSetup(bool isGlobal) : m_isGlobal(isGlobal) {}

    /// Finds out what is missing. False when there is no git, or no repository.
    bool read();
    /// Writes what is missing. What is there stays as it is, but for our own drivers.
    bool write();
    /// What is there and what is written, line by line.
    QStringList report() const { return m_report; }
    /// Why the last operation failed.
    QString errorString() const { return m_error; }

private:
    bool git(const QStringList &arguments, QString &out);
    QStringList config(const QStringList &arguments) const;
    bool findAttributes();
    bool readAttributes();
    bool fail(const QString &reason);

    bool m_isGlobal;
    QString m_attributes; ///< the path of the file
    QByteArray m_text; ///< its content to be; null when it has all
    QList<QPair<QString, QString>> m_settings; ///< those to write
    QStringList m_report;
    QString m_error;
};
