#pragma once

#include "Files/Gltf/Common/qxGltfJson.h"
#include "Files/Gltf/Common/qxGltfState.h"

/// Writes the differences between two descriptions of a scene into the JSON of its file. Everything
/// else is kept, also unknown members. Nodes that left the scene stay in the list of nodes, because
/// other parts of the file may refer to nodes by their position.
class qxGltfPatch {
public:
    /// `before` describes the scene as `json` has it, `after` as it is now.
    qxGltfPatch(qxJson &json, const qxGltfState &before, const qxGltfState &after);

    /// `meshes[i]` is the mesh of the file that node `i` of `after` shows now, -1 for none. The
    /// places of the nodes of `after` in the file.
    std::vector<int> write(const std::vector<int> &meshes, int scene);

private:
    void placeNewNodes();
    void releaseLiveChildren();
    void writeNode(std::size_t position, int mesh);
    void writeVisibility(qxJson &node, bool visible);
    void writeSharing(qxJson &node, const qxGltfNodeState &before, const qxGltfNodeState &after);
    void removeUnmeantMarks();
    void takeChildrenFromScenes();
    void writeScene(int scene);
    const qxGltfNodeState &stateBefore(int index) const;
    qxJson indicesOf(const std::vector<int> &positions, const std::vector<int> &indices) const;

    qxJson &m_json;
    const qxGltfState &m_before;
    const qxGltfState &m_after;
    const std::unordered_map<std::string, int> m_ownersBefore; ///< see qxGltfState::owners
    const std::unordered_map<std::string, int> m_owners;
    std::unordered_map<int, std::size_t> m_known; ///< position in `before` by index in the file
    std::vector<int> m_indicesBefore;
    std::vector<int> m_indices; ///< in the file, of all nodes of `after`
    bool m_hasLeft = false; ///< whether nodes of `before` are gone
};
