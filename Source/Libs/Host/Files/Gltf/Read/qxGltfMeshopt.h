#pragma once

#include "Files/Gltf/Common/qxGltfJson.h"

#include <QStringList>

#include <map>
#include <vector>

class qxMemoryBudget;

/// What the buffer views hold that EXT_meshopt_compression compresses, by their number. One whose
/// compressed data cannot be used is left out with a warning if there are plain ones. Throws
/// qxGltfError naming the buffer view when there are none.
std::map<int, QByteArray> qxGltfDecodedViews(const qxJson &document,
                                             const std::vector<QByteArray> &buffers,
                                             qxMemoryBudget &budget, QStringList &warnings);
