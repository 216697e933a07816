#pragma once

#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGUInt32Fields.h>

OSG_BEGIN_NAMESPACE

class OverlayCore;
typedef FCPtr<GroupPtr, OverlayCore> OverlayCorePtr;

/// The core of an overlay: a part of the picture that lies in front of the scene. Overlays with a
/// higher layer lie in front of those with a lower one.
class OverlayCore : public Group {
    typedef Group Inherited;

public:
    typedef OverlayCorePtr Ptr;
    enum { LayerFieldId = Inherited::NextFieldId, NextFieldId = LayerFieldId + 1 };
    static const BitVector LayerFieldMask;
    OSG_FIELD_CONTAINER_DECL(OverlayCorePtr)

    SFUInt32 *getSFLayer() { return &_sfLayer; }
    const UInt32 &getLayer() const { return _sfLayer.getValue(); }
    void setLayer(const UInt32 &layer) { _sfLayer.setValue(layer); }

    void dump(UInt32 = 0, const BitVector = 0) const override {}

protected:
    OverlayCore();
    OverlayCore(const OverlayCore &other);
    ~OverlayCore() override {}

#if !defined(OSG_FIXED_MFIELDSYNC)
    void executeSync(FieldContainer &other, const BitVector &which) override;
#else
    void executeSync(FieldContainer &other, const BitVector &which, const SyncInfo &info) override;
#endif

    SFUInt32 _sfLayer;

private:
    friend class FieldContainer; // builds and destroys the instances
    static FieldDescription *_desc[];
    static FieldContainerType _type;
    void operator=(const OverlayCore &);
};

OSG_FIELD_CONTAINER_INL_DEF(OverlayCore, OverlayCorePtr)

OSG_END_NAMESPACE
