#pragma once

#include "Files/Gltf/Common/qxGltfJson.h"
#include "Files/Gltf/Common/qxGltfOrigin.h"
#include "Files/Gltf/Common/qxGltfSwitchMaterialState.h"
#include "Materials/qxSurface.h"

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGSimpleMaterial.h>

#include <optional>

struct qxGltfState;

/// A material as a scene file describes it, without textures.
struct qxGltfMaterialState {
    std::optional<std::string> name;
    std::vector<float> colour; ///< red, green, blue, opacity
    std::vector<float> emission;
    qxSurface surface;

    static qxGltfMaterialState of(const osg::SimpleMaterialPtr &material);
    /// Whether they are equal except for their names.
    bool looksLike(const qxGltfMaterialState &other) const;
};

/// Writes changed and new materials, and the material of each geometry, into the JSON of a file.
class qxGltfMaterialPatch {
public:
    /// The materials of a scene just loaded, by their place in the file.
    typedef std::vector<qxGltfMaterialState> Before;

    qxGltfMaterialPatch(qxJson &json, const qxGltfOrigin &origin, const Before &before);

    /// The materials of the scene's pool.
    void writePool();
    /// Lists all switch materials if they, the pool or names of materials differ from `loaded`. All
    /// of them, because the names of unlisted ones depend on other names. If they are as the
    /// mappings of the file make them, the list is removed.
    void writeSwitches(const qxGltfSwitchMaterialUse &loaded, const qxGltfSwitchMaterialUse &mapped,
                       const qxGltfSwitchMaterialUse &now);
    /// The materials of the geometries from the file, visible or not. Throws qxGltfError for a
    /// material that cannot be written.
    void writeGeometries(const qxGltfState &state, const qxGltfSwitchMaterialUse &use);
    /// Gives a primitive this material.
    void writeTo(qxJson &primitive, const osg::MaterialPtr &material);
    /// Writes a unique name that was generated at loading if other names in the file would now give
    /// another one. Call it last.
    void settleNames();
    /// The index of a material in the file, where it is added if missing; -1 for null.
    int indexOf(const osg::MaterialPtr &material);
    /// The places in the file of all that were looked up, by their ids.
    const std::unordered_map<osg::UInt32, int> &places() const { return m_written; }

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
