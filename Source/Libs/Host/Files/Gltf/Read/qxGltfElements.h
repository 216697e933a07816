#pragma once

#include "Files/Gltf/Common/qxGltfJson.h"

#include <optional>

/// Where the elements of one list lie in the buffers, and how they are stored there. The check of a
/// file and the reading of its data both go by this, so that they cannot differ.
struct qxGltfElements {
    qint64 count = 0;
    int type = 0; ///< of a component, as the file states it
    int components = 0; ///< of an element; 0 for matrices, which nothing here reads
    int buffer = -1; ///< -1: all of them are zero
    qint64 begin = 0; ///< of the first element in the buffer
    qint64 stride = 0; ///< from one element to the next
};

/// An accessor: its elements, and those that replace some of them.
struct qxGltfAccessor {
    struct Sparse {
        qxGltfElements indices;
        qxGltfElements values;
    };
    qxGltfElements elements;
    bool isNormalized = false;
    std::optional<Sparse> sparse;

    /// The accessor at that place of the file, whose buffers and buffer views are checked. All
    /// elements lie within their buffers. Throws qxGltfError when they do not.
    static qxGltfAccessor of(const qxJson &document, int index);
};
