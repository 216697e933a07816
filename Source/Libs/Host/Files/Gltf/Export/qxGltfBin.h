#pragma once

#include "Files/Gltf/Common/qxGltfJson.h"

#include <QByteArray>

struct qxGltfPacked;

/// The data of a GLB that is being made, with the lists that describe them.
class qxGltfBin {
public:
    /// What an accessor is for.
    enum Use { Vertices, Indices, Values };

    /// Buffer views and accessors are added to `json`.
    explicit qxGltfBin(qxJson &json) : m_json(json) {}

    /// The accessor of these elements. `bounds` gives it the least and greatest of each component.
    int addAccessor(const qxGltfPacked &packed, Use use, bool bounds);
    /// The buffer view of these bytes.
    int addView(const QByteArray &bytes);
    /// Writes the list of buffers.
    void finish();

    const QByteArray &bytes() const { return m_bytes; }

private:
    qxJson &m_json;
    QByteArray m_bytes;
};
