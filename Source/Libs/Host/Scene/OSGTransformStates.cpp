#include "Scene/OSGTransformStates.h"

OSG_BEGIN_NAMESPACE

const BitVector TransformStates::NamesFieldMask = TypeTraits<BitVector>::One
    << TransformStates::NamesFieldId;
const BitVector TransformStates::PosesFieldMask = TypeTraits<BitVector>::One
    << TransformStates::PosesFieldId;
const BitVector TransformStates::SelectedFieldMask = TypeTraits<BitVector>::One
    << TransformStates::SelectedFieldId;

FieldDescription *TransformStates::_desc[] = {
    new FieldDescription(MFString::getClassType(), "names", NamesFieldId, NamesFieldMask, false,
                         (FieldAccessMethod)&TransformStates::getMFNames),
    new FieldDescription(MFMatrix::getClassType(), "poses", PosesFieldId, PosesFieldMask, false,
                         (FieldAccessMethod)&TransformStates::getMFPoses),
    new FieldDescription(SFInt32::getClassType(), "selected", SelectedFieldId, SelectedFieldMask,
                         false, (FieldAccessMethod)&TransformStates::getSFSelected)};

FieldContainerType TransformStates::_type(
    "TransformStates", "Attachment", "TransformStates",
    [] { return FieldContainerPtr(TransformStates::createEmpty()); }, NULL, _desc, sizeof(_desc));

OSG_FIELD_CONTAINER_DEF(TransformStates, TransformStatesPtr)

TransformStates::TransformStates() : Inherited(), _sfSelected(-1) {}

TransformStates::TransformStates(const TransformStates &other)
    : Inherited(other), _mfNames(other._mfNames), _mfPoses(other._mfPoses),
      _sfSelected(other._sfSelected)
{
}

#if !defined(OSG_FIXED_MFIELDSYNC)
void TransformStates::executeSync(FieldContainer &other, const BitVector &which)
{
    TransformStates &from = static_cast<TransformStates &>(other);
    Inherited::executeSyncImpl(&from, which);
    if (which & NamesFieldMask)
        _mfNames.syncWith(from._mfNames);
    if (which & PosesFieldMask)
        _mfPoses.syncWith(from._mfPoses);
    if (which & SelectedFieldMask)
        _sfSelected.syncWith(from._sfSelected);
}
#else
void TransformStates::executeSync(FieldContainer &other, const BitVector &which,
                                  const SyncInfo &info)
{
    TransformStates &from = static_cast<TransformStates &>(other);
    Inherited::executeSyncImpl(&from, which, info);
    if (which & NamesFieldMask)
        _mfNames.syncWith(from._mfNames, info);
    if (which & PosesFieldMask)
        _mfPoses.syncWith(from._mfPoses, info);
    if (which & SelectedFieldMask)
        _sfSelected.syncWith(from._sfSelected);
}
#endif

OSG_END_NAMESPACE
