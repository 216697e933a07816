#pragma once

#include "Files/qxGltfJson.h"
#include "Files/qxGltfScene.h"
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
};

/// Writes into the JSON of a file which materials changed, came, and are shown by which geometry.
class qxGltfMaterialPatch {
public:
    /// The materials of a scene just loaded, by their place in the file.
    typedef std::vector<qxGltfMaterialState> Before;

    qxGltfMaterialPatch(qxJson &json, const qxGltfOrigin &origin, const Before &before);

    /// The materials of the scene's pool.
    void writePool();
    /// The materials of the geometries that came from the file. Throws qxGltfError for a material
    /// that scene files have no form for.
    void writeGeometries(const qxGltfState &state);
    /// The place of a material in the file, which is made when it has none; -1 for null.
    int indexOf(const osg::MaterialPtr &material);

private:
    int append(const osg::MaterialPtr &material);
    void writeChanges(const osg::MaterialPtr &material, int index);

    qxJson &m_json;
    const qxGltfOrigin &m_origin;
    const Before &m_before;
    std::unordered_map<osg::UInt32, int> m_written;
};
