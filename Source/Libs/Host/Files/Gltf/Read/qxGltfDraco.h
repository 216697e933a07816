#pragma once

#include <QByteArray>

#include <cstdint>
#include <memory>
#include <vector>

class qxMemoryBudget;

namespace draco {
class Mesh;
}

/// A mesh that KHR_draco_mesh_compression compresses, decompressed.
class qxGltfDraco {
public:
    /// Takes the memory from the budget before it is needed; the mesh gives it back when it goes.
    /// Throws qxGltfError when the bytes are no such mesh or too large.
    qxGltfDraco(const QByteArray &bytes, qxMemoryBudget &budget);
    qxGltfDraco(const qxGltfDraco &) = delete;
    ~qxGltfDraco();

    qint64 vertices() const;
    /// How many the indices of all triangles are.
    qint64 corners() const;
    std::vector<std::uint32_t> indices() const;
    /// Whether there is an attribute of that id with so many components.
    bool has(unsigned int id, int components) const;
    /// Its values for every vertex. `scale` is a factor for integers.
    std::vector<float> values(unsigned int id, float scale) const;

private:
    std::unique_ptr<draco::Mesh> m_mesh;
    qxMemoryBudget &m_budget;
    qint64 m_taken = 0;
};
