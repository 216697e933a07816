#pragma once

#include <QByteArray>
#include <QString>

class qxMemoryBudget;

/// The folder that the URIs of a scene file are relative to, and beside which a save puts files:
/// that of the file itself, also when `path` is a link to it.
QString qxGltfFolderOf(const QString &path);

/// The whole content of a regular file. Throws qxGltfError.
QByteArray qxGltfReadFile(const QString &path, qxMemoryBudget &budget);
/// The same for a file that the scene names: `relative` leads to it from `folder`. By its real path
/// it lies in that folder or below. Throws qxGltfError.
QByteArray qxGltfReadBeside(const QString &folder, const QString &relative, qxMemoryBudget &budget);
/// Whether what stands, or would be made, at `relative` lies in that folder or below by its real
/// path.
bool qxGltfIsInside(const QString &folder, const QString &relative);
