#pragma once

#include <OpenSG/OSGDrawable.h>
#include <OpenSG/OSGMaterialDrawableFields.h>
#include <OpenSG/OSGMaterialFields.h>

namespace osg {

/// The field of a drawable with a material. Its setter does not count references.
class MaterialDrawableBase : public Drawable {
    typedef Drawable Inherited;

public:
    enum { MaterialFieldId = Inherited::NextFieldId, NextFieldId };

    /// Null for none.
    OSG_SF(SFMaterialPtr, Material)

protected:
    MaterialDrawableBase() = default;
    MaterialDrawableBase(const MaterialDrawableBase &) = default;
};

/// Base of the drawables with a material of their own.
class MaterialDrawable : public MaterialDrawableBase {
    typedef MaterialDrawableBase Inherited;

public:
    typedef MaterialDrawablePtr Ptr;

    OSG_ABSTR_FIELD_CONTAINER_DECL(MaterialDrawablePtr)

    /// Releases the old material first. If that alone kept the new one alive, both are gone and the
    /// drawable has none.
    void setMaterial(const MaterialPtr &material);

protected:
    MaterialDrawable() = default;
    MaterialDrawable(const MaterialDrawable &) = default;
    ~MaterialDrawable() override;

    OSG_CONTAINER_STATICS
};

typedef RefPtr<MaterialDrawablePtr> MaterialDrawableRefPtr;

OSG_ABSTR_FIELD_CONTAINER_INL_DEF(MaterialDrawable, MaterialDrawablePtr)

} // namespace osg
