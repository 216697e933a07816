#pragma once

#include "qxNodePtr.h"

#include <OpenSG/OSGMaterial.h>

#include <cstdint>
#include <unordered_map>
#include <vector>

/// Finds the scene nodes that show a material: those whose material group or geometry has it.
class qxMaterialUsers {
public:
    /// Everything is read again when needed.
    void reset() { m_outdated = true; }
    /// These fields of the object with that id were edited.
    void edited(osg::UInt32 id, osg::BitVector mask);
    /// The object with that id was destroyed.
    void destroyed(osg::UInt32 id);

    /// Appends the nodes in scene order.
    void find(std::vector<qxNodePtr> &nodes, const osg::MaterialPtr &material);

private:
    typedef std::vector<std::uint32_t> Places; ///< indices into m_nodes, ascending

    void read();
    void coreEdited(const osg::NodeCorePtr &core);

    bool m_outdated = true;
    std::vector<qxNodePtr> m_nodes; ///< all nodes whose core can have a material, in scene order
    std::unordered_map<osg::UInt32, std::uint32_t> m_placeOf; ///< by the id of the node
    /// By the id of the material. An entry stays when its node gets another material, so look-ups
    /// check it.
    std::unordered_map<osg::UInt32, Places> m_users;
};
