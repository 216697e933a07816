#pragma once

#include <QStringList>
#include <QTemporaryDir>

#include <gtest/gtest.h>

/// Base of fixtures with a temporary folder. Programs store their settings there, too.
class TestFolder {
protected:
    TestFolder();

    /// Where a file of that name lies in the folder.
    QString path(const QString &name) const { return folder.filePath(name); }
    /// Writes a file, with its sub-folders, and returns its path.
    QString write(const QString &name, const QByteArray &bytes) const;
    /// Makes a folder and returns its path.
    QString made(const QString &name) const;

    QTemporaryDir folder;
};

/// The path of a file in Tests/Data.
QString testData(const QString &name);
/// What the file holds; one that cannot be read fails the test.
QByteArray bytesOf(const QString &path);
/// The scene of that name in Tests/Data/Scenes with this variants document; with the one beside it
/// when that is null.
QByteArray sceneWith(const char *name, const QByteArray &document = QByteArray());

/// How failed expectations show texts.
void PrintTo(const QString &text, std::ostream *out);
void PrintTo(const QStringList &list, std::ostream *out);
void PrintTo(const QByteArray &bytes, std::ostream *out);
