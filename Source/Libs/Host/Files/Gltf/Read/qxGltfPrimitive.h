#pragma once

#include "Files/Gltf/Common/qxGltfJson.h"
#include "Files/Gltf/Common/qxTinyGltf.h"

#include <cstdint>
#include <memory>
#include <vector>

class qxGltfDraco;
struct qxGltfModel;

/// The compressed meshes of a file. Several primitives may show parts of one.
class qxGltfDracoMeshes {
public:
    explicit qxGltfDracoMeshes(qxGltfModel &model) : m_model(model) {}

    /// That of a buffer view; the last one is kept. Throws qxGltfError.
    std::shared_ptr<const qxGltfDraco> of(int view);

private:
    qxGltfModel &m_model;
    int m_view = -1;
    std::shared_ptr<const qxGltfDraco> m_last;
};

/// The data of a primitive, wherever they are: in accessors or compressed.
class qxGltfPrimitive {
public:
    /// A primitive by its place in the file.
    struct Place {
        int mesh;
        int primitive;
    };

    /// Decompresses what is compressed. Where that fails but the accessors have data of their own,
    /// these are used, with a warning in the model. Throws qxGltfError.
    qxGltfPrimitive(qxGltfModel &model, Place place, qxGltfDracoMeshes &meshes);

    const tinygltf::Primitive &typed() const { return m_typed; }
    const qxJson &json() const { return m_json; }
    /// The mode as GL numbers it.
    int mode() const;
    bool hasTriangles() const { return mode() >= TINYGLTF_MODE_TRIANGLES; }
    bool has(const char *attribute) const { return accessorOf(attribute) >= 0; }
    /// The accessor of an attribute, -1 without it.
    int accessorOf(const char *attribute) const;
    /// Whether the values of the attribute are compressed beside its accessor.
    bool isCompressed(const char *attribute) const { return compressedId(attribute) >= 0; }
    /// How many components the attribute has; 0 without it.
    int components(const char *attribute) const;
    qint64 vertices() const;
    /// The values of an attribute for every vertex; empty without it. Throws qxGltfError.
    std::vector<float> values(const char *attribute, int components) const;
    int targets() const { return int(m_typed.targets.size()); }
    bool hasTarget(int target, const char *attribute) const;
    /// How a morph target moves the three components of an attribute; zeros without it. Throws
    /// qxGltfError.
    std::vector<float> targetValues(int target, const char *attribute) const;
    /// The accessor of the indices; -1 without, and for compressed ones.
    int indexAccessor() const { return m_compressed ? -1 : m_indices; }
    bool hasIndices() const { return m_compressed || m_indices >= 0; }
    qint64 indexCount() const;
    /// Below the number of vertices. Throws qxGltfError.
    std::vector<std::uint32_t> indices() const;

private:
    /// The id of an attribute that is compressed, -1 for others.
    int compressedId(const char *attribute) const;
    qint64 countOf(const char *attribute) const;
    bool canDoWithout(const qxJson &compression) const;
    std::vector<float> compressedValues(const char *attribute, int components) const;

    const qxGltfModel &m_model;
    const tinygltf::Primitive &m_typed;
    const qxJson &m_json;
    int m_indices; ///< their accessor, -1 for none
    std::shared_ptr<const qxGltfDraco> m_compressed; ///< null when nothing is
};
