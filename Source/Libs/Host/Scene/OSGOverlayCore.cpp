#include "OSGOverlayCore.h"

OSG_BEGIN_NAMESPACE

const BitVector OverlayCore::LayerFieldMask = TypeTraits<BitVector>::One
    << OverlayCore::LayerFieldId;

FieldDescription *OverlayCore::_desc[] = {
    new FieldDescription(SFUInt32::getClassType(), "layer", LayerFieldId, LayerFieldMask, false,
                         (FieldAccessMethod)&OverlayCore::getSFLayer)};

FieldContainerType OverlayCore::_type(
    "OverlayCore", "Group", NULL, [] { return FieldContainerPtr(OverlayCore::createEmpty()); },
    NULL, _desc, sizeof(_desc));

OSG_FIELD_CONTAINER_DEF(OverlayCore, OverlayCorePtr)

OverlayCore::OverlayCore() : Inherited(), _sfLayer(0) {}

OverlayCore::OverlayCore(const OverlayCore &other) : Inherited(other), _sfLayer(other._sfLayer) {}

#if !defined(OSG_FIXED_MFIELDSYNC)
void OverlayCore::executeSync(FieldContainer &other, const BitVector &which)
{
    OverlayCore &from = static_cast<OverlayCore &>(other);
    Inherited::executeSyncImpl(&from, which);
    if (which & LayerFieldMask)
        _sfLayer.syncWith(from._sfLayer);
}
#else
void OverlayCore::executeSync(FieldContainer &other, const BitVector &which, const SyncInfo &info)
{
    OverlayCore &from = static_cast<OverlayCore &>(other);
    Inherited::executeSyncImpl(&from, which, info);
    if (which & LayerFieldMask)
        _sfLayer.syncWith(from._sfLayer);
}
#endif

OSG_END_NAMESPACE
