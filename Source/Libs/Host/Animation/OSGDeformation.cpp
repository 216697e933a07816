#include "Animation/OSGDeformation.h"

OSG_BEGIN_NAMESPACE

const BitVector Deformation::TargetsFieldMask = TypeTraits<BitVector>::One
    << Deformation::TargetsFieldId;
const BitVector Deformation::NormalsFieldMask = TypeTraits<BitVector>::One
    << Deformation::NormalsFieldId;
const BitVector Deformation::JointsFieldMask = TypeTraits<BitVector>::One
    << Deformation::JointsFieldId;
const BitVector Deformation::WeightsFieldMask = TypeTraits<BitVector>::One
    << Deformation::WeightsFieldId;
const BitVector Deformation::BindMatricesFieldMask = TypeTraits<BitVector>::One
    << Deformation::BindMatricesFieldId;

FieldDescription *Deformation::_desc[] = {
    new FieldDescription(MFReal32::getClassType(), "targets", TargetsFieldId, TargetsFieldMask,
                         false, (FieldAccessMethod)&Deformation::getMFTargets),
    new FieldDescription(SFUInt32::getClassType(), "normals", NormalsFieldId, NormalsFieldMask,
                         false, (FieldAccessMethod)&Deformation::getSFNormals),
    new FieldDescription(MFUInt32::getClassType(), "joints", JointsFieldId, JointsFieldMask, false,
                         (FieldAccessMethod)&Deformation::getMFJoints),
    new FieldDescription(MFReal32::getClassType(), "weights", WeightsFieldId, WeightsFieldMask,
                         false, (FieldAccessMethod)&Deformation::getMFWeights),
    new FieldDescription(MFMatrix::getClassType(), "bindMatrices", BindMatricesFieldId,
                         BindMatricesFieldMask, false,
                         (FieldAccessMethod)&Deformation::getMFBindMatrices)};

FieldContainerType Deformation::_type(
    "Deformation", "Attachment", "Deformation",
    [] { return FieldContainerPtr(Deformation::createEmpty()); }, NULL, _desc, sizeof(_desc));

OSG_FIELD_CONTAINER_DEF(Deformation, DeformationPtr)

Deformation::Deformation() : Inherited(), _sfNormals(Computed) {}

Deformation::Deformation(const Deformation &other)
    : Inherited(other), _mfTargets(other._mfTargets), _sfNormals(other._sfNormals),
      _mfJoints(other._mfJoints), _mfWeights(other._mfWeights),
      _mfBindMatrices(other._mfBindMatrices)
{
}

#if !defined(OSG_FIXED_MFIELDSYNC)
void Deformation::executeSync(FieldContainer &other, const BitVector &which)
{
    Deformation &from = static_cast<Deformation &>(other);
    Inherited::executeSyncImpl(&from, which);
    if (which & TargetsFieldMask)
        _mfTargets.syncWith(from._mfTargets);
    if (which & JointsFieldMask)
        _mfJoints.syncWith(from._mfJoints);
    if (which & WeightsFieldMask)
        _mfWeights.syncWith(from._mfWeights);
    if (which & BindMatricesFieldMask)
        _mfBindMatrices.syncWith(from._mfBindMatrices);
#else
void Deformation::executeSync(FieldContainer &other, const BitVector &which, const SyncInfo &info)
{
    Deformation &from = static_cast<Deformation &>(other);
    Inherited::executeSyncImpl(&from, which, info);
    if (which & TargetsFieldMask)
        _mfTargets.syncWith(from._mfTargets, info);
    if (which & JointsFieldMask)
        _mfJoints.syncWith(from._mfJoints, info);
    if (which & WeightsFieldMask)
        _mfWeights.syncWith(from._mfWeights, info);
    if (which & BindMatricesFieldMask)
        _mfBindMatrices.syncWith(from._mfBindMatrices, info);
#endif
    if (which & NormalsFieldMask)
        _sfNormals.syncWith(from._sfNormals);
}

OSG_END_NAMESPACE
