#pragma once

#include "Files/Gltf/Common/qxGltfJson.h"

#include <optional>

/// Where and how the elements of one list are stored in the buffers. Both the check of a file and
/// the reader of its data use it, so that they cannot differ.
struct qxGltfElements {
    qint64 count = 0;
    int type = 0; ///< of a component, as the file states it
    int components = 0; ///< of an element; 0 for small matrices, which nothing here reads
    int view = -1; ///< the buffer view; -1: all of them are zero
    qint64 begin = 0; ///< of the first element in the view
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

    /// The accessor of that index in a file with checked buffers and buffer views. Throws
    /// qxGltfError if not all elements are within their buffers.
    static qxGltfAccessor of(const qxJson &document, int index);
};
