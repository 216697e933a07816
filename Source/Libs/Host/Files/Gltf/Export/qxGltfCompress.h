#pragma once

#include "Files/Gltf/Common/qxGltfJson.h"
#include "Files/Gltf/Export/qxGltfPacked.h"

#include <map>
#include <optional>

/// The data of a primitive, independent of those of others.
struct qxGltfPrimitiveData {
    typedef std::map<std::string, qxGltfPacked> Attributes;

    Attributes attributes;
    std::vector<Attributes> targets;
    std::optional<std::vector<std::uint32_t>> indices;
};

/// A list of triangles in an order that graphics cards are fast with, and that compresses well;
/// vertices that nothing uses are dropped. With `keepsOrder` the triangles stay in theirs.
void qxGltfArrange(qxGltfPrimitiveData &triangles, bool keepsOrder);

/// Elements as EXT_meshopt_compression has them.
struct qxGltfCompressed {
    QByteArray bytes; ///< compressed; null for what is not worth it
    qxGltfPacked values; ///< what becomes of them when they are decompressed
    int stride = 0; ///< of these
    const char *mode = "ATTRIBUTES";
    const char *filter = nullptr; ///< null for none
};

/// Compresses an attribute of vertices: positions to 2^-16 of the extent, texture coordinates to
/// 2^-16, directions to twelve bits.
qxGltfCompressed qxGltfCompressVertices(const std::string &name, const qxGltfPacked &values,
                                        bool isTarget);
/// Compresses indices without loss; those of a list of triangles better than others.
qxGltfCompressed qxGltfCompressIndices(const std::vector<std::uint32_t> &indices,
                                       std::size_t vertices, bool areTriangles);
