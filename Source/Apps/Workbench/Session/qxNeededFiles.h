#pragma once

#include <QStringList>

class QJsonObject;

/// The buffers and pictures that lie beside a scene file.
namespace qxNeededFiles {

/// Those that the JSON of a scene names, from its folder on.
QStringList of(const QJsonObject &sceneJson);

} // namespace qxNeededFiles
