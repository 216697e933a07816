#include <OpenSG/OSGMaterialGroup.h>

#include <OpenSG/OSGMaterial.h>

namespace osg {

OSG_FIELD_MASK(MaterialGroupBase, Material)

FieldDescription *MaterialGroup::_desc[] = {
    OSG_SF_DESC(MaterialGroup, Material, "material", false)};

FieldContainerType MaterialGroup::_type(
    "MaterialGroup", "Group", NULL, [] { return FieldContainerPtr(MaterialGroup::createEmpty()); },
    NULL, _desc, sizeof(_desc));

OSG_FIELD_CONTAINER_DEF(MaterialGroup, MaterialGroupPtr)

MaterialGroup::~MaterialGroup()
{
    subRefCP(getMaterial());
}

void MaterialGroup::setMaterial(const MaterialPtr &material)
{
    const MaterialPtr added = material;
    // The old material may be all that keeps the new one.
    addRefCP(added);
    subRefCP(getMaterial());
    MaterialGroupBase::setMaterial(added);
}

} // namespace osg
