#pragma once

#include "Files/Gltf/Export/qxGltfBin.h"
#include "Files/Gltf/Export/qxGltfTidy.h"
#include "Files/Gltf/Read/qxGltfPrimitive.h"

#include <functional>
#include <map>

struct qxGltfPacked;

/// Copies meshes into an export with their data, which become part of its BIN chunk. Draco's
/// compression is undone, because many programs cannot.
class qxGltfExportMeshes {
public:
    /// Gives a primitive its material.
    typedef std::function<void(qxJson &primitive, int mesh, int part)> Dress;

    /// Adds to the lists of `json` and to `bin`.
    qxGltfExportMeshes(qxGltfModel &model, qxJson &json, qxGltfBin &bin,
                       const qxExportOptions &options, qxExport &result)
        : m_model(model), m_json(json), m_bin(bin), m_options(options), m_result(result),
          m_tidy(options.extent, result), m_draco(model)
    {
    }

    /// The mesh of the export with these primitives of a mesh of the file; -1 when none of them can
    /// be exported. Throws qxGltfError.
    int mesh(int index, const std::vector<int> &parts, const Dress &dress);
    /// Whether any vertex has values that need KHR_mesh_quantization.
    bool isQuantized() const { return m_isQuantized; }

private:
    qxJson primitive(int mesh, int part);
    qxJson placeholder();
    void addAttributes(qxJson &primitive, const qxGltfPrimitive &from);
    void addIndices(qxJson &primitive, const qxGltfPrimitive &from);
    void addTargets(qxJson &primitive, const qxGltfPrimitive &from);
    int attribute(const std::string &name, qxGltfPacked values, bool isTarget);
    void addCompressed(qxJson &primitive, const qxGltfPrimitive &from, bool keepsOrder);
    int compressed(const std::string &name, const qxGltfPacked &values, bool isTarget);
    void count(const qxGltfPacked &values, const QByteArray &written);
    int copied(const std::string &name, int accessor, bool isTarget);

    qxGltfModel &m_model;
    qxJson &m_json;
    qxGltfBin &m_bin;
    const qxExportOptions &m_options;
    qxExport &m_result;
    qxGltfTidy m_tidy;
    qxGltfDracoMeshes m_draco;
    std::map<std::pair<int, std::vector<int>>, int> m_meshes;
    std::map<std::pair<int, std::string>, int> m_accessors; ///< by their place and use
    std::map<std::string, qxJson> m_compressed; ///< primitives by what they are made of
    bool m_isQuantized = false;
};
