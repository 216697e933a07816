#pragma once

#include <OpenSG/OSGMaterial.h>
#include <OpenSG/OSGMultiPassMaterialFields.h>

namespace osg {

/// Several materials drawn one after the other. References them all.
class MultiPassMaterial : public Material {
    typedef Material Inherited;

public:
    typedef MultiPassMaterialPtr Ptr;
    enum { MaterialsFieldId = Inherited::NextFieldId, NextFieldId };

    OSG_FIELD_CONTAINER_DECL(MultiPassMaterialPtr)

    /// Appends; a material may be in it several times. Null is ignored.
    void addMaterial(MaterialPtr material);
    /// Removes the first one. Null is ignored, a stranger only warns.
    void subMaterial(MaterialPtr material);
    bool hasMaterial(MaterialPtr material);

    /// Whether one of the materials is.
    bool isTransparent() const override;
    bool isMultiPass() const override { return true; }
    /// The number of materials.
    UInt32 getNPasses() const override { return UInt32(_mfMaterials.size()); }

    /// That of the material for this pass, null when there is none.
    StatePtr getState(UInt32 pass = 0) override;
    StatePtr makeState() override;
    void rebuildState() override;

    /// The materials in the order of drawing.
    OSG_MF(MFMaterialPtr, Materials)

protected:
    MultiPassMaterial() = default;
    MultiPassMaterial(const MultiPassMaterial &) = default;
    ~MultiPassMaterial() override;

    OSG_CONTAINER_STATICS
};

typedef MultiPassMaterial MultiPassMaterialBase;
typedef RefPtr<MultiPassMaterialPtr> MultiPassMaterialRefPtr;

OSG_FIELD_CONTAINER_INL_DEF(MultiPassMaterial, MultiPassMaterialPtr)

} // namespace osg
