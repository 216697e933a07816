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

FieldContainerType OverlayCore::_type("OverlayCore", "Group", NULL,
                                      [] { return FieldContainerPtr(OverlayCore::createEmpty()); });
OSG_FIELD_CONTAINER_DEF(OverlayCore, OverlayCorePtr)
OverlayCore::OverlayCore() : _sfLayer(0) {}
OverlayCore::OverlayCore(const OverlayCore &) = default;
void OverlayCore::executeSync(SYNC_PARAMETERS) {}

FieldContainerType UberLight::_type("UberLight", "Light", NULL,
                                    [] { return FieldContainerPtr(UberLight::createEmpty()); });
OSG_FIELD_CONTAINER_DEF(UberLight, UberLightPtr)
UberLight::UberLight() : _sfKind(Point), _sfIntensity(1) {}
UberLight::UberLight(const UberLight &) = default;
void UberLight::executeSync(SYNC_PARAMETERS) {}

typedef SwitchComponentTransformBase SwitchBase;
const BitVector SwitchBase::ChoiceFieldMask = TypeTraits<BitVector>::One << ChoiceFieldId;
const BitVector SwitchBase::StatesFieldMask = TypeTraits<BitVector>::One << StatesFieldId;
FieldContainerType
    SwitchComponentTransform::_type("SwitchComponentTransform", "ComponentTransform", NULL, [] {
        return FieldContainerPtr(SwitchComponentTransform::createEmpty());
    });
OSG_FIELD_CONTAINER_DEF(SwitchComponentTransform, SwitchComponentTransformPtr)
SwitchBase::SwitchComponentTransformBase() : _sfChoice(0) {}
SwitchBase::SwitchComponentTransformBase(const SwitchComponentTransformBase &) = default;
void SwitchComponentTransform::executeSync(SYNC_PARAMETERS) {}

// The columns of a state are its turned and scaled axes; here no state is mirrored or sheared.
void SwitchComponentTransform::changed(BitVector which, UInt32 origin)
{
    if ((which & (ChoiceFieldMask | StatesFieldMask)) && getChoice() < getCount()) {
        Matrix axes = getStates()[getChoice()];
        setTranslation(Vec3f(axes[3][0], axes[3][1], axes[3][2]));
        for (int i = 0; i < 3; ++i) {
            _sfScale.getValue()[i] = Vec3f(axes[i][0], axes[i][1], axes[i][2]).length();
            axes[i] *= 1 / getScale()[i];
        }
        setRotation(Quaternion(axes));
        which |= TranslationFieldMask; // so that the matrix follows
    }
    Inherited::changed(which, origin);
}

OSG_END_NAMESPACE
