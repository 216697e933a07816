#pragma once

#include "qxNodePtr.h"

#include <OpenSG/OSGMaterial.h>

#include <cstdint>
#include <unordered_map>
#include <vector>

/// Finds the scene nodes that show a material: those whose material group or geometry has it.
class qxMaterialUsers {
public:
    /// Everything is read anew when needed.
    void reset() { m_outdated = true; }
    /// Takes note that these fields of the object with that id were edited.
    void edited(osg::UInt32 id, osg::BitVector mask);
    /// Takes note that the object with that id is gone.
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
    /// By the id of the material. A place stays when its node takes another material: only what is
    /// still true counts when a material is looked up.
    std::unordered_map<osg::UInt32, Places> m_users;
};
