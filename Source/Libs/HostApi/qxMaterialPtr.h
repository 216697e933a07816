#pragma once

#include <OpenSG/OSGMaterial.h>

/// The host's handle on a material: an OpenSG material pointer, and the type under which scripts
/// know materials.
class qxMaterialPtr : public osg::MaterialPtr {
public:
    ///@{
    /// A handle on the material; null by default. It does not keep the material alive.
    qxMaterialPtr() {}
    qxMaterialPtr(const osg::MaterialPtr &material) : osg::MaterialPtr(material) {}
    qxMaterialPtr(const osg::NullFieldContainerPtr &null) : osg::MaterialPtr(null) {}
    ///@}
};
