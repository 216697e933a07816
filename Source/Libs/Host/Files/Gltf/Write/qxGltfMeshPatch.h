#pragma once

#include "Files/Gltf/Common/qxGltfState.h"
#include "Files/Gltf/Write/qxGltfMaterialPatch.h"

#include <QByteArray>

#include <map>

/// Finds the mesh that a node shows now, and adds it to the JSON of a file if it is missing.
class qxGltfMeshPatch {
public:
    qxGltfMeshPatch(qxJson &json, const qxGltfOrigin &origin, qxGltfMaterialPatch &materials);

    /// The mesh of every node of `state`, -1 for none. Throws qxGltfError naming the node whose
    /// geometry cannot be written.
    std::vector<int> write(const qxGltfState &state);

private:
    typedef std::vector<osg::UInt32> Parts;

    int meshOf(const qxGltfNodeState &node, const qxGltfState &state);
    /// `node`, which shows the geometry, is named when that cannot be written.
    qxJson primitiveOf(const osg::GeometryPtr &geometry, const osg::NodePtr &node);
    void finishBuffer();

    qxJson &m_json;
    const qxGltfOrigin &m_origin;
    qxGltfMaterialPatch &m_materials;
    std::map<Parts, int> m_meshes;
    QByteArray m_bytes; ///< data of new geometries, for a buffer of their own
};
