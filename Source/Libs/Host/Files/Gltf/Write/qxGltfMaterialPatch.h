#pragma once

#include "Files/Gltf/Common/qxGltfJson.h"
#include "Files/Gltf/Read/qxGltfScene.h"
#include "Files/Gltf/Write/qxGltfSwitchMaterialState.h"
#include "Materials/qxSurface.h"

#include <OpenSG/OSGSimpleMaterial.h>

#include <optional>

struct qxGltfState;

/// What a scene file says about a material, without its textures.
struct qxGltfMaterialState {
    std::optional<std::string> name;
    std::vector<float> colour; ///< red, green, blue, opacity
    std::vector<float> emission;
    qxSurface surface;

    static qxGltfMaterialState of(const osg::SimpleMaterialPtr &material);
    /// Whether they have everything but their names in common.
    bool looksLike(const qxGltfMaterialState &other) const;
};

/// Writes into the JSON of a file which materials changed, came, and are shown by which geometry.
class qxGltfMaterialPatch {
public:
    /// The materials of a scene just loaded, by their place in the file.
    typedef std::vector<qxGltfMaterialState> Before;

    qxGltfMaterialPatch(qxJson &json, const qxGltfOrigin &origin, const Before &before);

    /// The materials of the scene's pool.
    void writePool();
    /// Lists the switch materials when they, the pool or names of materials are not as they were
    /// `loaded`: then all of them, because those that are not listed are named by what else is
    /// there. When they are as the mappings of the file make them, takes the list out instead.
    void writeSwitches(const qxGltfSwitchMaterialUse &loaded, const qxGltfSwitchMaterialUse &mapped,
                       const qxGltfSwitchMaterialUse &now);
    /// The materials of the geometries that came from the file, be they shown or not. Throws
    /// qxGltfError for a material that scene files have no form for.
    void writeGeometries(const qxGltfState &state, const qxGltfSwitchMaterialUse &use);
    /// Gives a primitive this material.
    void writeTo(qxJson &primitive, const osg::MaterialPtr &material);
    /// Keeps names that were made distinguishable: where other names in the file would lead to
    /// another one, the file gets the name itself. To be called last.
    void settleNames();
    /// The place of a material in the file, which is made when it has none; -1 for null.
    int indexOf(const osg::MaterialPtr &material);

private:
    int placeOf(const osg::MaterialPtr &material);
    void listSwitches(const qxGltfSwitchMaterialUse &use, const qxJson &old);
    void findDefault(const qxGltfSwitchMaterialUse &use);
    void placeDefault(const qxGltfSwitchMaterialUse &use);
    bool isAsLoaded(const qxGltfOrigin::Part &part, const osg::GeometryPtr &geometry);
    bool isDefault(const osg::MaterialPtr &material) const;
    std::vector<int> poolPlaces(const qxGltfSwitchMaterialUse &use) const;
    void writePoolOrder(const std::vector<int> &places);
    int append(const osg::MaterialPtr &material);
    void writeChanges(const osg::MaterialPtr &material, int index);

    qxJson &m_json;
    const qxGltfOrigin &m_origin;
    const Before &m_before;
    std::unordered_map<osg::UInt32, int> m_written;
    std::unordered_map<osg::UInt32, int> m_listed; ///< the places of switch materials
    std::unordered_map<int, std::string> m_names; ///< of materials, by their place
    osg::MaterialPtr m_default; ///< that of primitives without one, when something contains it
    bool m_namesChanged = false;
    bool m_settles = false; ///< whether generated names are written, too
    bool m_list = false; ///< whether switch materials are written
};
