#pragma once

#include "Files/Gltf/Common/qxGltfJson.h"

#include <OpenSG/OSGGeometry.h>

#include <QByteArray>

#include <vector>

/// Writes geometries that did not come from the file: as triangles, each corner with its own
/// values.
class qxGltfGeometryWriter {
public:
    /// Data are appended to `bytes`, which becomes the next buffer of the file.
    qxGltfGeometryWriter(qxJson &json, QByteArray &bytes) : m_json(json), m_bytes(bytes) {}

    /// The JSON of a primitive without its material. Throws qxGltfError when the geometry has no
    /// triangles.
    qxJson write(const osg::GeometryPtr &geometry);

private:
    int append(const std::vector<float> &values, int components);
    void addBounds(qxJson &accessor, const std::vector<float> &positions) const;

    qxJson &m_json;
    QByteArray &m_bytes;
};
