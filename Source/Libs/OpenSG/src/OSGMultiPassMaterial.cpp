#include <OpenSG/OSGMultiPassMaterial.h>

#include <OpenSG/OSGState.h>

#include "OSGWarning.h"

namespace osg {

OSG_FIELD_MASK(MultiPassMaterial, Materials)

FieldDescription *MultiPassMaterial::_desc[] = {
    OSG_MF_DESC(MultiPassMaterial, Materials, "materials", false)};

FieldContainerType MultiPassMaterial::_type(
    "MultiPassMaterial", "Material", NULL,
    [] { return FieldContainerPtr(MultiPassMaterial::createEmpty()); }, NULL, _desc, sizeof(_desc));

OSG_FIELD_CONTAINER_DEF(MultiPassMaterial, MultiPassMaterialPtr)

MultiPassMaterial::~MultiPassMaterial()
{
    for (const MaterialPtr &material : _mfMaterials)
        subRefCP(material);
}

void MultiPassMaterial::addMaterial(MaterialPtr material)
{
    if (!material)
        return;
    addRefCP(material);
    _mfMaterials.push_back(material);
}

void MultiPassMaterial::subMaterial(MaterialPtr material)
{
    if (!material)
        return;
    const auto found = _mfMaterials.find(material);
    if (found == _mfMaterials.end()) {
        warn("MultiPassMaterial::subMaterial: not a material of this one");
        return;
    }
    _mfMaterials.erase(found);
    subRefCP(material);
}

bool MultiPassMaterial::hasMaterial(MaterialPtr material)
{
    return _mfMaterials.find(material) != _mfMaterials.end();
}

bool MultiPassMaterial::isTransparent() const
{
    if (getTransparencyMode() != TransparencyAutoDetection)
        return Inherited::isTransparent();
    return std::any_of(_mfMaterials.begin(), _mfMaterials.end(),
                       [](const MaterialPtr &material) { return material->isTransparent(); });
}

StatePtr MultiPassMaterial::getState(UInt32 pass)
{
    if (pass < _mfMaterials.getSize())
        return _mfMaterials[pass]->getState();
    warn("MultiPassMaterial::getState: no such pass");
    return NullFC;
}

void MultiPassMaterial::rebuildState()
{
    const std::vector<MaterialPtr> &passes = _mfMaterials.getValues();
    rebuildStatesOf(passes.data(), passes.data() + passes.size());
}

StatePtr MultiPassMaterial::makeState()
{
    return _mfMaterials.empty() ? StatePtr() : _mfMaterials.front()->makeState();
}

} // namespace osg
