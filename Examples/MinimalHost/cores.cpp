// The node cores of the host as OpenSG knows them. Nothing here asks for their fields by name or
// copies them between threads, so the fields are not described, and masks that nothing uses are not
// defined.
#include "OSGOverlayCore.h"
#include "OSGSwitchComponentTransform.h"
#include "OSGUberLight.h"

#if !defined(OSG_FIXED_MFIELDSYNC)
#define SYNC_PARAMETERS FieldContainer &, const BitVector &
#else
#define SYNC_PARAMETERS FieldContainer &, const BitVector &, const SyncInfo &
#endif

OSG_BEGIN_NAMESPACE

namespace {

template <class Core>
FieldContainerPtr create()
{
    return Core::createEmpty();
}

} // namespace

FieldContainerType OverlayCore::_type("OverlayCore", "Group", NULL, osg::create<OverlayCore>);
OSG_FIELD_CONTAINER_DEF(OverlayCore, OverlayCorePtr)
OverlayCore::OverlayCore() : _sfLayer(0) {}
OverlayCore::OverlayCore(const OverlayCore &) = default;
void OverlayCore::executeSync(SYNC_PARAMETERS) {}

FieldContainerType UberLight::_type("UberLight", "Light", NULL, osg::create<UberLight>);
OSG_FIELD_CONTAINER_DEF(UberLight, UberLightPtr)
UberLight::UberLight() : _sfKind(Point), _sfIntensity(1) {}
UberLight::UberLight(const UberLight &) = default;
void UberLight::executeSync(SYNC_PARAMETERS) {}

typedef SwitchComponentTransformBase SwitchBase;
const BitVector SwitchBase::ChoiceFieldMask = TypeTraits<BitVector>::One << ChoiceFieldId;
const BitVector SwitchBase::StatesFieldMask = TypeTraits<BitVector>::One << StatesFieldId;
FieldContainerType SwitchComponentTransform::_type("SwitchComponentTransform", "ComponentTransform",
                                                   NULL, osg::create<SwitchComponentTransform>);
OSG_FIELD_CONTAINER_DEF(SwitchComponentTransform, SwitchComponentTransformPtr)
SwitchBase::SwitchComponentTransformBase() : _sfChoice(0) {}
SwitchBase::SwitchComponentTransformBase(const SwitchComponentTransformBase &) = default;
void SwitchComponentTransform::executeSync(SYNC_PARAMETERS) {}

void SwitchComponentTransform::changed(BitVector which, UInt32 origin)
{
    if ((which & (ChoiceFieldMask | StatesFieldMask)) && getChoice() < getCount()) {
        Quaternion scaleAxes;
        getStates()[getChoice()].getTransform(_sfTranslation.getValue(), _sfRotation.getValue(),
                                              _sfScale.getValue(), scaleAxes);
        setScaleOrientation(scaleAxes);
        which |= TranslationFieldMask; // so that the matrix follows
    }
    Inherited::changed(which, origin);
}

OSG_END_NAMESPACE
