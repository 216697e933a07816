#pragma once

#include "Files/Gltf/Common/qxGltfJson.h"
#include "Files/Gltf/Common/qxGltfState.h"
#include "Files/qxExport.h"

/// The JSON of a scene file as it is to be written, with what it describes.
struct qxGltfEdited {
    qxJson json;
    qxGltfState state;
    std::vector<int> nodes; ///< in the file, of all nodes of `state`
    std::unordered_map<osg::UInt32, int> materials; ///< in the file, -1 for "none"; by their ids
};

/// Which nodes of a scene, and what of them, go into an export, and with which numbers.
class qxGltfExportChoice {
public:
    /// What stays behind is told in `result`.
    qxGltfExportChoice(const qxGltfEdited &scene, const qxGltfOrigin &origin,
                       qxExportOptions::Extent extent, qxExport &result);

    /// Positions in the state, in the order of their numbers; -1 for one that is not in the export.
    const std::vector<int> &order() const { return m_order; }
    /// The number in the export of a node of the file; -1 when it is not there.
    int numberOf(int fileNode) const;
    /// The same by the position in the state.
    int number(int position) const { return m_numbers[std::size_t(position)]; }
    /// Whether it shows nothing itself and is there only because skins move with it.
    bool isBare(int position) const { return m_isBare[std::size_t(position)]; }
    std::vector<int> roots() const { return numbersOf(m_scene.state.roots); }
    std::vector<int> children(int position) const;
    /// The shown parts of the node's mesh as places in the mesh of the file.
    std::vector<int> parts(int position) const;
    /// The mesh of the node in the file, -1 for none.
    int meshOf(int position) const;
    /// The place of a part in that mesh.
    int partOf(int position, std::size_t part) const;

private:
    const qxGltfNodeState &state(int position) const
    {
        return m_scene.state.nodes[std::size_t(position)];
    }
    bool isChosen(int position, std::size_t child) const;
    bool isLeftOut(int position, QString &kind, QString &reason) const;
    void tell(const QString &kind, int position, const QString &reason);
    void chooseShown();
    void tellOfContents(int position);
    void chooseJoints();
    void setNumbers();
    std::vector<int> numbersOf(const std::vector<int> &positions) const;

    const qxGltfEdited &m_scene;
    const qxGltfOrigin &m_origin;
    qxExportOptions::Extent m_extent;
    qxExport &m_result;
    std::vector<int> m_positions; ///< of the nodes of the file in the state, -1 for others
    std::vector<int> m_parents; ///< positions in the state
    std::vector<bool> m_isThere; ///< by positions in the state, as those that follow
    std::vector<bool> m_isBare;
    std::vector<int> m_numbers;
    std::vector<int> m_order;
};
