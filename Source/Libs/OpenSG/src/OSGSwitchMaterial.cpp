#include <OpenSG/OSGSwitchMaterial.h>

#include <OpenSG/OSGSimpleGeometry.h>

#include "OSGWarning.h"

namespace osg {

OSG_FIELD_MASK(SwitchMaterial, Materials)
OSG_FIELD_MASK(SwitchMaterial, Choice)

FieldDescription *SwitchMaterial::_desc[] = {
    OSG_MF_DESC(SwitchMaterial, Materials, "materials", false),
    OSG_SF_DESC(SwitchMaterial, Choice, "choice", false)};

FieldContainerType SwitchMaterial::_type(
    "SwitchMaterial", "Material", NULL,
    [] { return FieldContainerPtr(SwitchMaterial::createEmpty()); }, NULL, _desc, sizeof(_desc));

OSG_FIELD_CONTAINER_DEF(SwitchMaterial, SwitchMaterialPtr)

SwitchMaterial::~SwitchMaterial()
{
    for (const MaterialPtr &material : _mfMaterials)
        subRefCP(material);
}

void SwitchMaterial::addMaterial(MaterialPtr material)
{
    if (!material)
        return;
    addRefCP(material);
    _mfMaterials.push_back(material);
}

void SwitchMaterial::subMaterial(MaterialPtr material)
{
    if (!material)
        return;
    const auto found = _mfMaterials.find(material);
    if (found == _mfMaterials.end()) {
        warn("SwitchMaterial::subMaterial: not a material of this one");
        return;
    }
    _mfMaterials.erase(found);
    subRefCP(material);
}

bool SwitchMaterial::hasMaterial(MaterialPtr material)
{
    return _mfMaterials.find(material) != _mfMaterials.end();
}

MaterialPtr SwitchMaterial::getMaterial(UInt32 index)
{
    if (index < _mfMaterials.getSize())
        return _mfMaterials[index];
    warn("SwitchMaterial::getMaterial: index out of range");
    return NullFC;
}

MaterialPtr SwitchMaterial::getCurrentMaterial()
{
    if (!current())
        warn("SwitchMaterial::getCurrentMaterial: choice out of range");
    return current();
}

MaterialPtr SwitchMaterial::current() const
{
    return getChoice() < _mfMaterials.getSize() ? _mfMaterials[getChoice()] : MaterialPtr();
}

// So that something is drawn whatever the choice.
MaterialPtr SwitchMaterial::currentOrDefault() const
{
    return current() ? current() : getDefaultMaterial();
}

bool SwitchMaterial::isTransparent() const
{
    return current() && current()->isTransparent();
}

bool SwitchMaterial::isMultiPass() const
{
    return current() && current()->isMultiPass();
}

UInt32 SwitchMaterial::getNPasses() const
{
    return current() ? current()->getNPasses() : 1;
}

StatePtr SwitchMaterial::getState(UInt32 pass)
{
    return currentOrDefault()->getState(pass);
}

void SwitchMaterial::rebuildState()
{
    if (const MaterialPtr shown = current())
        rebuildStatesOf(&shown, &shown + 1);
}

StatePtr SwitchMaterial::makeState()
{
    return currentOrDefault()->makeState();
}

} // namespace osg
