#pragma once

#include "Files/Gltf/Export/qxGltfExportChoice.h"
#include "Files/Gltf/Export/qxGltfExportMaterials.h"
#include "Files/Gltf/Export/qxGltfExportMeshes.h"

/// Makes a GLB of a scene for others: only what is needed, in one file. Its JSON is built anew, so
/// that what nothing refers to stays behind.
class qxGltfExporter {
public:
    /// `model` is the file with the JSON of `scene`.
    qxGltfExporter(qxGltfModel &model, const qxGltfEdited &scene, const qxGltfOrigin &origin,
                   const qxExportOptions &options);

    /// Call it once. Throws qxGltfError.
    qxExport make();

private:
    void findGeometries();
    void writeAsset();
    void writeMaterials();
    void nameMaterials();
    void writeNodes();
    void placeUppers();
    qxJson node(int position);
    void writeContent(qxJson &node, int position);
    void writeLight(qxJson &node, const qxJson &from);
    int skin(int index);
    void dress(qxJson &primitive, int mesh, int part);
    int materialOf(const osg::MaterialPtr &material) const;
    void addMappings(qxJson &primitive, osg::UInt32 geometry, int shown);
    void writeVariants();
    void writeScene();
    void writeCameras(qxJson &roots);
    int cameraNode(int viewpoint) const;
    void finish();

    qxGltfModel &m_model;
    const qxGltfEdited &m_scene;
    const qxGltfOrigin &m_origin;
    const qxExportOptions &m_options;
    qxExport m_result;
    qxJson m_json = qxJson::object();
    qxGltfBin m_bin{m_json};
    qxGltfTidy m_tidy;
    qxGltfExportChoice m_choice;
    qxGltfExportMaterials m_materials;
    qxGltfExportMeshes m_meshes;
    std::map<std::pair<int, int>, osg::UInt32> m_geometries; ///< by mesh and part of the file
    std::map<int, int> m_skins;
    std::map<int, int> m_lights;
    std::map<int, qxGltfPose> m_uppers; ///< of nodes above those of these numbers
    qxJson m_roots;
    bool m_hasMappings = false;
};
