#include <OpenSG/OSGMaterial.h>

#include <OpenSG/OSGState.h>

#include "OSGWarning.h"

#include <algorithm>

namespace osg {

OSG_FIELD_MASK(Material, SortKey)
OSG_FIELD_MASK(Material, TransparencyMode)

FieldDescription *Material::_desc[] = {
    OSG_SF_DESC(Material, SortKey, "sortKey", false),
    OSG_SF_DESC(Material, TransparencyMode, "transparencyMode", false)};

FieldContainerType Material::_type("Material", "AttachmentContainer", NULL, NULL, NULL, _desc,
                                   sizeof(_desc));

OSG_ABSTR_FIELD_CONTAINER_DEF(Material, MaterialPtr)

MaterialPtr NullMaterial;

Material::Material(const Material &other)
    : AttachmentContainer(other), _sfSortKey(other._sfSortKey),
      _sfTransparencyMode(other._sfTransparencyMode)
{
}

Material::~Material()
{
    subRefCP(_pState);
}

bool Material::isTransparent() const
{
    return getTransparencyMode() == TransparencyForceTransparent;
}

StatePtr Material::getState(UInt32)
{
    // Nobody pays for a state before a renderer asks.
    if (!_pState) {
        _pState = makeState();
        addRefCP(_pState);
    }
    return _pState;
}

void Material::rebuildStatesOf(const MaterialPtr *begin, const MaterialPtr *end)
{
    if (m_isRebuilding)
        fail("a material is edited that shows itself");
    m_isRebuilding = true;
    std::for_each(begin, end, [](const MaterialPtr &material) { material->rebuildState(); });
    m_isRebuilding = false;
}

void Material::changed(BitVector whichField, UInt32 origin)
{
    rebuildState();
    Inherited::changed(whichField, origin);
}

} // namespace osg
