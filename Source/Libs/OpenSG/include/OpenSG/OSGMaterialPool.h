#pragma once

#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGMaterialFields.h>
#include <OpenSG/OSGMaterialPoolFields.h>

#include <set>
#include <vector>

namespace osg {

/// An ordered store of materials without duplicates, all of them referenced.
class MaterialPool : public Group {
    typedef Group Inherited;

public:
    typedef MaterialPoolPtr Ptr;
    enum { MaterialsFieldId = Inherited::NextFieldId, NextFieldId };

    OSG_FIELD_CONTAINER_DECL(MaterialPoolPtr)

    /// Number of materials.
    UInt32 getCount() const { return UInt32(_mfMaterials.size()); }

    /// Null and what is there already are left out.
    void add(const MaterialPtr &material);
    /// All materials of a tree: of its material groups, drawables and pools.
    void add(const NodePtr &root);
    void add(const MaterialPoolPtr &pool);

    /// A stranger only warns.
    void sub(const MaterialPtr &material);
    void sub(const NodePtr &root);
    void sub(const MaterialPoolPtr &pool);
    void sub(UInt32 index);

    /// -1 when absent.
    Int32 find(const MaterialPtr &material) const;
    /// Null when out of range.
    MaterialPtr get(UInt32 index);
    /// Replaces the content of \a materials.
    void get(std::vector<MaterialPtr> &materials);
    const std::set<MaterialPtr> &get() { return m_set; }
    /// Releases them all.
    void clear();

    /// Brings the set in line with a list that was written directly.
    void changed(BitVector whichField, UInt32 origin) override;

    static const BitVector MaterialsFieldMask;

protected:
    MaterialPool() = default;
    MaterialPool(const MaterialPool &) = default;
    ~MaterialPool() override;

    MFMaterialPtr *getMFMaterials() { return &_mfMaterials; }

    MFMaterialPtr _mfMaterials;

private:
    std::set<MaterialPtr> m_set;

    OSG_CONTAINER_STATICS
};

typedef MaterialPool MaterialPoolBase;
typedef RefPtr<MaterialPoolPtr> MaterialPoolRefPtr;
typedef CoredNodePtr<MaterialPool> MaterialPoolNodePtr;

OSG_FIELD_CONTAINER_INL_DEF(MaterialPool, MaterialPoolPtr)

} // namespace osg
