#pragma once

#include "Files/Gltf/Common/qxGltfJson.h"

#include <QByteArray>

struct qxGltfCompressed;
struct qxGltfPacked;

/// The data of a GLB that is being made, with the lists that describe them. Compressed views belong
/// to a second buffer, which has no data: nobody can read the file without EXT_meshopt_compression.
class qxGltfBin {
public:
    /// What an accessor is for.
    enum Use { Vertices, Indices, Values };

    /// Buffer views and accessors are added to `json`.
    explicit qxGltfBin(qxJson &json) : m_json(json) {}

    /// The accessor of these elements. `bounds` gives it the least and greatest of each component.
    int addAccessor(const qxGltfPacked &packed, Use use, bool bounds);
    /// The same of elements that may be compressed.
    int addAccessor(const qxGltfCompressed &compressed, Use use, bool bounds);
    /// The buffer view of these bytes.
    int addView(const QByteArray &bytes);
    /// Writes the list of buffers.
    void finish();

    const QByteArray &bytes() const { return m_bytes; }
    /// Whether anything is compressed.
    bool isCompressed() const { return m_decompressed > 0; }

private:
    int addView(const qxGltfCompressed &compressed, Use use);
    static qxJson accessorOf(const qxGltfPacked &packed, bool bounds);

    qxJson &m_json;
    QByteArray m_bytes;
    qint64 m_decompressed = 0; ///< the bytes that compressed views stand for
};
