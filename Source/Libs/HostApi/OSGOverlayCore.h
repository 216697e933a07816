#pragma once

#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGUInt32Fields.h>

OSG_BEGIN_NAMESPACE

class OverlayCore;
/// Handle on the core of an overlay; not counted, as all of OpenSG's pointers.
typedef FCPtr<GroupPtr, OverlayCore> OverlayCorePtr;

/// The core of an overlay: a part of the picture that lies in front of the scene. Overlays with a
/// higher layer lie in front of those with a lower one.
class OverlayCore : public Group {
    typedef Group Inherited;

public:
    typedef OverlayCorePtr Ptr; ///< the handle, as OpenSG's templates look for it
    ///@{
    /// The fields by number and by mask, for edit brackets and change lists.
    enum { LayerFieldId = Inherited::NextFieldId, NextFieldId = LayerFieldId + 1 };
    static const BitVector LayerFieldMask;
    ///@}
    OSG_FIELD_CONTAINER_DECL(OverlayCorePtr)

    ///@{
    /// The layer; 0 at start. Write it inside an edit bracket.
    SFUInt32 *getSFLayer() { return &_sfLayer; }
    const UInt32 &getLayer() const { return _sfLayer.getValue(); }
    void setLayer(const UInt32 &layer) { _sfLayer.setValue(layer); }
    ///@}

    /// Writes nothing.
    void dump(UInt32 = 0, const BitVector = 0) const override {}

protected:
    ///@{
    /// Instances are made by create() and copied by the factory; values go to other aspects by
    /// executeSync(). Only OpenSG calls these.
    OverlayCore();
    OverlayCore(const OverlayCore &other);
    ~OverlayCore() override {}

#if !defined(OSG_FIXED_MFIELDSYNC)
    void executeSync(FieldContainer &other, const BitVector &which) override;
#else
    void executeSync(FieldContainer &other, const BitVector &which, const SyncInfo &info) override;
#endif

    SFUInt32 _sfLayer;
    ///@}

private:
    friend class FieldContainer; // builds and destroys the instances
    static FieldDescription *_desc[];
    static FieldContainerType _type;
    void operator=(const OverlayCore &);
};

OSG_FIELD_CONTAINER_INL_DEF(OverlayCore, OverlayCorePtr)

OSG_END_NAMESPACE
