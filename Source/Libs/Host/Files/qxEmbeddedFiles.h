#pragma once

#include "Files/qxFileContent.h"

#include <QStringList>

/// Files whose content is part of a text, in Base64, without being held in memory: marks stand for
/// them until the text is written.
class qxEmbeddedFiles {
public:
    /// No files; its marks differ from those of all others.
    qxEmbeddedFiles();

    /// What stands for the content of the file. Its Base64 is the mark; no text has it by chance.
    QByteArray add(const QString &path);
    /// Whether no file was added.
    bool isEmpty() const { return m_paths.isEmpty(); }
    /// The text with the files in the place of their marks.
    qxFileContent in(const QByteArray &text) const;

private:
    QByteArray m_beginning; ///< of all marks, before their Base64
    QStringList m_paths;
};
