#pragma once

#include "Files/Gltf/Common/qxGltfNames.h"
#include "Files/Gltf/Read/qxGltfScene.h"
#include "Files/Gltf/Write/qxGltfSwitchMaterialState.h"

#include <map>

/// Makes the switch materials of a file and puts them on the geometries: those that the file lists
/// (qxSwitchMaterials), and one for every way in which its primitives map materials to variants
/// (KHR_materials_variants). What cannot be used is a warning.
class qxGltfSwitchMaterialBuilder {
public:
    /// Takes materials and geometries from `scene`, and puts switch materials and variants there.
    qxGltfSwitchMaterialBuilder(qxGltfModel &model, qxGltfScene &scene);

    void build();
    /// How the switch materials would be without the list, if each had its first material chosen:
    /// as long as they are so, the file needs no list. To be called after build.
    qxGltfSwitchMaterialUse mapped();

private:
    /// Materials of the file by their place, -1 for that of primitives without one: the default,
    /// and then that of each variant, which is -2 for a variant that is not mapped.
    typedef std::vector<int> Mapping;

    /// An entry of the list of switch materials, and what became of it.
    struct Listed {
        bool isOpen = false; ///< while what it contains is made
        bool isMade = false;
        osg::SwitchMaterialRefPtr material; ///< null when it cannot be used
    };

    void makeListed();
    osg::MaterialPtr listed(const qxJson &list, int index, int depth);
    osg::SwitchMaterialRefPtr makeListed(const qxJson &list, int index, int depth);
    void orderPool();
    osg::MaterialPtr pooled(const qxJson &place) const;
    void assign(std::size_t mesh, std::size_t primitive);
    void takeNames();
    bool isListed(const qxJson &primitive, osg::SwitchMaterialPtr &shown) const;
    Mapping mappingOf(const qxJson &primitive, const QString &called);
    osg::SwitchMaterialPtr switchFor(const Mapping &mapping);
    static osg::SwitchMaterialRefPtr make(const std::string &name,
                                          const std::vector<osg::MaterialPtr> &materials,
                                          osg::UInt32 choice);
    osg::MaterialPtr material(int index);
    void nameVariants();
    void describeVariants();

    qxGltfModel &m_model;
    qxGltfScene &m_scene;
    qxGltfNames m_names; ///< of materials
    qxGltfMaterialRef m_default; ///< made when something shows it
    std::vector<Listed> m_listed;
    std::map<Mapping, osg::SwitchMaterialPtr> m_mapped;
    std::vector<std::pair<osg::SwitchMaterialPtr, Mapping>> m_uses; ///< by first use
    std::unordered_map<osg::UInt32, std::size_t> m_useOf; ///< by the id of the switch material
};
