#pragma once

#include <QByteArray>

class qxRenderScene;
struct qxPictureSettings;

/// What a picture of the scene with these settings is made from, as qxRenderer::fingerprint tells
/// it. The scene is read, its trees may be out of date.
QByteArray qxPictureDigest(const qxRenderScene &scene, const qxPictureSettings &settings);
