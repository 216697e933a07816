#pragma once

#include <QByteArray>
#include <QString>

#include <functional>

class qxMemoryBudget;

/// Does the work on the file at that path. Why it failed, with the path, when it threw; else empty.
QString qxGltfAttempt(const QString &path, const std::function<void()> &work);

/// The folder that the URIs of a scene file are relative to: that of the file itself, even if
/// `path` is a link to it.
QString qxGltfFolderOf(const QString &path);

/// The whole content of a regular file. Throws qxGltfError.
QByteArray qxGltfReadFile(const QString &path, qxMemoryBudget &budget);
/// The same for a file that the scene names by the path `relative` to `folder`. Its real path must
/// be in that folder or below. Throws qxGltfError.
QByteArray qxGltfReadBeside(const QString &folder, const QString &relative, qxMemoryBudget &budget);
/// Whether the real path of `relative`, which need not exist, is in that folder or below.
bool qxGltfIsInside(const QString &folder, const QString &relative);
