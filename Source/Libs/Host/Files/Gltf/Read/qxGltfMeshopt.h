#pragma once

struct qxGltfModel;

/// Decompresses the buffer views that EXT_meshopt_compression compresses, all others stay. Where
/// that fails but there are data that are not compressed, these are used, with a warning. Throws
/// qxGltfError naming the buffer view when there are none.
void qxGltfDecodeViews(qxGltfModel &model);
