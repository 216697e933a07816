#pragma once

#include "Files/Gltf/Read/qxGltfMaterials.h"

#include <OpenSG/OSGSwitchMaterial.h>

#include <string>
#include <unordered_map>

struct qxGltfOrigin;
struct qxGltfState;

/// A switch material as a scene file lists it. Comparing those of a scene just loaded with those
/// that are there now tells whether a save has to list them.
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

    /// Those of the scene's material pool, and behind them those that only geometries have, and
    /// those that are only contained in others. One without a name that nothing shows cannot be
    /// found and is left out. What the file holds without showing it has the one
    /// that it was loaded with.
    static qxGltfSwitchMaterialUse of(const qxGltfState &state, const qxGltfOrigin &origin);
    void add(const osg::SwitchMaterialPtr &material);
    /// Takes note that the geometry shows the material, if that is a switch material.
    void addGeometry(osg::UInt32 geometry, const osg::MaterialPtr &material);
    /// Whether a file has the same to say about the switch materials and who shows them.
    bool operator==(const qxGltfSwitchMaterialUse &other) const;

private:
    std::unordered_map<osg::UInt32, int> m_known;
};
