#pragma once

#include <QJsonObject>

class qxSceneFile;
struct qxUberCamera;

/// All that the scene shows, read from the scene graph alone, whatever variants brought it about.
namespace qxSceneRecord {

/// The interface SceneRecord of Source/Web/published.ts. Nodes, in the order of their numbers, are
/// those of the file; what a playing clip moves stands where it rests.
QJsonObject take(const qxSceneFile &file);
/// How pictures of the main view look at the scene: from its camera; without one from the first
/// viewpoint; in a scene without viewpoints so that all of it is seen.
qxUberCamera camera();

} // namespace qxSceneRecord
