#pragma once

#include <OpenSG/OSGMaterial.h>
#include <OpenSG/OSGSwitchMaterialFields.h>
#include <OpenSG/OSGUInt32Fields.h>

namespace osg {

/// A material that is one of several. References them all.
class SwitchMaterial : public Material {
    typedef Material Inherited;

public:
    typedef SwitchMaterialPtr Ptr;
    enum { MaterialsFieldId = Inherited::NextFieldId, ChoiceFieldId, NextFieldId };

    OSG_FIELD_CONTAINER_DECL(SwitchMaterialPtr)

    /// Appends; a material may be in it several times. Null is ignored.
    void addMaterial(MaterialPtr material);
    /// Removes the first one. Null is ignored, a stranger only warns. The choice stays as it is.
    void subMaterial(MaterialPtr material);
    bool hasMaterial(MaterialPtr material);
    /// Null, with a warning, when there is no such material.
    MaterialPtr getMaterial(UInt32 index);
    MaterialPtr getCurrentMaterial();

    // Those of the current material; opaque and one pass without one.
    bool isTransparent() const override;
    bool isMultiPass() const override;
    UInt32 getNPasses() const override;

    /// That of the current material, of the default material without one.
    StatePtr getState(UInt32 pass = 0) override;
    StatePtr makeState() override;
    void rebuildState() override;

    /// The materials to choose from, in order.
    OSG_MF(MFMaterialPtr, Materials)
    /// Index of the current material; may be out of range.
    OSG_SF_INIT(SFUInt32, Choice, 0)

protected:
    SwitchMaterial() = default;
    SwitchMaterial(const SwitchMaterial &) = default;
    ~SwitchMaterial() override;

private:
    /// Null when out of range, silently.
    MaterialPtr current() const;
    MaterialPtr currentOrDefault() const;

    OSG_CONTAINER_STATICS
};

typedef SwitchMaterial SwitchMaterialBase;
typedef RefPtr<SwitchMaterialPtr> SwitchMaterialRefPtr;

OSG_FIELD_CONTAINER_INL_DEF(SwitchMaterial, SwitchMaterialPtr)

} // namespace osg
