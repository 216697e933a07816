#pragma once

#include "Render/qxRenderGeometry.h"
#include "Render/qxRenderMaterial.h"
#include "Scene/qxEditReader.h"

#include <unordered_map>

/// Geometries, materials and images of the scene, prepared for ray tracing and cached until they
/// change.
class qxRenderSources {
public:
    qxRenderSources() = default;
    qxRenderSources(const qxRenderSources &) = delete;

    /// Processes the edits since the last call: edited geometries become outdated, materials are
    /// read again. `marked` is an object that lives as long as the scene.
    void update(const osg::FieldContainerPtr &marked);
    /// Whether the last update found an edit of anything that pictures may show.
    bool isOther() const { return m_isOther; }

    std::shared_ptr<const qxRenderGeometry> geometry(const osg::GeometryPtr &core);
    /// The material, kept up to date by every update. For null the one of geometries without
    /// material.
    std::shared_ptr<const qxRenderMaterial> material(const osg::MaterialPtr &material);

private:
    typedef osg::UInt32 Id; ///< of a field container

    std::shared_ptr<const qxRenderTexture> texture(const osg::ImagePtr &image,
                                                   qxRenderTexture::Content content);
    qxTextureSource textureSource();
    void decodePictures(const osg::MaterialPtr &material);
    bool isShown(Id id) const;
    void edited(Id id, osg::BitVector mask);
    void forget(Id id);
    void forgetGeometry(Id core);
    void forgetEverything();
    void rememberProperties(const osg::GeometryPtr &core);
    void readMaterials();

    qxEditReader m_edits;
    bool m_isOther = true;
    std::unordered_map<Id, std::shared_ptr<qxRenderGeometry>> m_geometries; ///< by core
    std::unordered_map<Id, std::vector<Id>> m_coresOf; ///< by property: cores that have it
    std::unordered_map<Id, std::shared_ptr<qxRenderMaterial>> m_materials;
    typedef std::unordered_map<Id, std::shared_ptr<const qxRenderTexture>> Textures; ///< by image
    std::array<Textures, 2> m_textures; ///< by content
    std::shared_ptr<const qxRenderMaterial> m_noMaterial = std::make_shared<qxRenderMaterial>();
};
