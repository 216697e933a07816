#pragma once

#include <OpenSG/OSGSwitchMaterial.h>

#include <string>
#include <unordered_map>

struct qxGltfOrigin;
struct qxGltfState;

/// The plain material that a material shows; null when it shows none.
osg::MaterialPtr qxGltfShownMaterial(osg::MaterialPtr material);

/// A switch material as a scene file lists it. A save lists them if those of the scene just loaded
/// and the present ones differ.
struct qxGltfSwitchMaterialState {
    osg::SwitchMaterialPtr material;
    osg::UInt32 id = 0;
    std::string name;
    std::vector<osg::MaterialPtr> contents;
    osg::UInt32 choice = 0;

    static qxGltfSwitchMaterialState of(const osg::SwitchMaterialPtr &material);
    /// Whether a file has the same to say about both.
    bool operator==(const qxGltfSwitchMaterialState &other) const;
};

/// The switch materials of a scene, and which of them the geometries show, by container id.
struct qxGltfSwitchMaterialUse {
    std::vector<qxGltfSwitchMaterialState> states;
    std::unordered_map<osg::UInt32, int> shownBy;
    std::vector<osg::UInt32> pool; ///< ids of what is in the scene's material pool

    /// Those of the scene's material pool, then those that only geometries have, and those that are
    /// only contained in others. One without a name that no geometry has cannot be found and is
    /// left out. A geometry of the file that is not in the scene has the one that it was loaded
    /// with.
    static qxGltfSwitchMaterialUse of(const qxGltfState &state, const qxGltfOrigin &origin);
    void add(const osg::SwitchMaterialPtr &material);
    /// Records that the geometry has the material, if that is a switch material.
    void addGeometry(osg::UInt32 geometry, const osg::MaterialPtr &material);
    /// Whether a file has the same to say about the switch materials and who shows them.
    bool operator==(const qxGltfSwitchMaterialUse &other) const;

private:
    std::unordered_map<osg::UInt32, int> m_known;
};
