#pragma once

#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGMaterialFields.h>
#include <OpenSG/OSGMaterialGroupFields.h>

namespace osg {

/// The field of a material group. Its setter does not count references.
class MaterialGroupBase : public Group {
    typedef Group Inherited;

public:
    enum { MaterialFieldId = Inherited::NextFieldId, NextFieldId };

    /// Null for none.
    OSG_SF(SFMaterialPtr, Material)

protected:
    MaterialGroupBase() = default;
    MaterialGroupBase(const MaterialGroupBase &) = default;
};

/// Gives its subtree a material. The outermost group with a material wins, over inner groups and
/// over the geometries' own.
class MaterialGroup : public MaterialGroupBase {
    typedef MaterialGroupBase Inherited;

public:
    typedef MaterialGroupPtr Ptr;

    OSG_FIELD_CONTAINER_DECL(MaterialGroupPtr)

    /// References the new material, then releases the old one. Null for none.
    void setMaterial(const MaterialPtr &material);

protected:
    MaterialGroup() = default;
    MaterialGroup(const MaterialGroup &) = default;
    ~MaterialGroup() override;

    OSG_CONTAINER_STATICS
};

typedef RefPtr<MaterialGroupPtr> MaterialGroupRefPtr;
typedef CoredNodePtr<MaterialGroup> MaterialGroupNodePtr;

OSG_FIELD_CONTAINER_INL_DEF(MaterialGroup, MaterialGroupPtr)

} // namespace osg
