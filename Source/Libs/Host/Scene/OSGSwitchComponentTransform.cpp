#include "OSGSwitchComponentTransform.h"

#include "Scene/qxTransformStates.h"

OSG_BEGIN_NAMESPACE

const BitVector SwitchComponentTransformBase::ChoiceFieldMask = TypeTraits<BitVector>::One
    << SwitchComponentTransformBase::ChoiceFieldId;
const BitVector SwitchComponentTransformBase::StatesFieldMask = TypeTraits<BitVector>::One
    << SwitchComponentTransformBase::StatesFieldId;

FieldDescription *SwitchComponentTransform::_desc[] = {
    new FieldDescription(SFUInt32::getClassType(), "choice", ChoiceFieldId, ChoiceFieldMask, false,
                         (FieldAccessMethod)&SwitchComponentTransform::getSFChoice),
    new FieldDescription(MFMatrix::getClassType(), "states", StatesFieldId, StatesFieldMask, false,
                         (FieldAccessMethod)&SwitchComponentTransform::getMFStates)};

FieldContainerType SwitchComponentTransform::_type(
    "SwitchComponentTransform", "ComponentTransform", NULL,
    [] { return FieldContainerPtr(SwitchComponentTransform::createEmpty()); }, NULL, _desc,
    sizeof(_desc));

OSG_FIELD_CONTAINER_DEF(SwitchComponentTransform, SwitchComponentTransformPtr)

SwitchComponentTransformBase::SwitchComponentTransformBase() : Inherited(), _sfChoice(0) {}

SwitchComponentTransformBase::SwitchComponentTransformBase(
    const SwitchComponentTransformBase &other)
    : Inherited(other), _sfChoice(other._sfChoice), _mfStates(other._mfStates)
{
}

void SwitchComponentTransform::changed(BitVector which, UInt32 origin)
{
    if ((which & (ChoiceFieldMask | StatesFieldMask)) && getChoice() < getCount())
        qxTransformStates::setPose(SwitchComponentTransformPtr(*this), getStates()[getChoice()]);
    Inherited::changed(which, origin);
}

#if !defined(OSG_FIXED_MFIELDSYNC)
void SwitchComponentTransform::executeSync(FieldContainer &other, const BitVector &which)
{
    SwitchComponentTransform &from = static_cast<SwitchComponentTransform &>(other);
    Inherited::executeSyncImpl(&from, which);
    if (which & ChoiceFieldMask)
        _sfChoice.syncWith(from._sfChoice);
    if (which & StatesFieldMask)
        _mfStates.syncWith(from._mfStates);
}
#else
void SwitchComponentTransform::executeSync(FieldContainer &other, const BitVector &which,
                                           const SyncInfo &info)
{
    SwitchComponentTransform &from = static_cast<SwitchComponentTransform &>(other);
    Inherited::executeSyncImpl(&from, which, info);
    if (which & ChoiceFieldMask)
        _sfChoice.syncWith(from._sfChoice);
    if (which & StatesFieldMask)
        _mfStates.syncWith(from._mfStates, info);
}
#endif

OSG_END_NAMESPACE
