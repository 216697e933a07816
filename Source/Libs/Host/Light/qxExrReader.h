#pragma once

#include "Light/qxLightPicture.h"

#include <QByteArray>

class qxMemoryBudget;

/// Reads the channels R, G and B, or Y alone, of the first part of an OpenEXR picture, in full
/// size. Throws qxGltfError.
qxLightPicture qxReadExr(const QByteArray &bytes, qxMemoryBudget &budget);
