#include <OpenSG/OSGMaterialDrawable.h>

#include <OpenSG/OSGMaterial.h>

namespace osg {

OSG_FIELD_MASK(MaterialDrawableBase, Material)

FieldDescription *MaterialDrawable::_desc[] = {
    OSG_SF_DESC(MaterialDrawable, Material, "material", false)};

FieldContainerType MaterialDrawable::_type("MaterialDrawable", "Drawable", NULL, NULL, NULL, _desc,
                                           sizeof(_desc));

OSG_ABSTR_FIELD_CONTAINER_DEF(MaterialDrawable, MaterialDrawablePtr)

MaterialDrawable::~MaterialDrawable()
{
    subRefCP(getMaterial());
}

void MaterialDrawable::setMaterial(const MaterialPtr &material)
{
    setRefdCP(getMaterial(), material);
}

} // namespace osg
