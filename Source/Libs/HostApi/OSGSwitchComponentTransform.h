#pragma once

#include <OpenSG/OSGComponentTransform.h>
#include <OpenSG/OSGMatrixFields.h>
#include <OpenSG/OSGUInt32Fields.h>

OSG_BEGIN_NAMESPACE

class SwitchComponentTransform;
typedef FCPtr<ComponentTransformPtr, SwitchComponentTransform> SwitchComponentTransformPtr;

/// The fields of a transform switch: a numbered list of transform states and the chosen one.
class SwitchComponentTransformBase : public ComponentTransform {
    typedef ComponentTransform Inherited;

public:
    enum {
        ChoiceFieldId = Inherited::NextFieldId,
        StatesFieldId = ChoiceFieldId + 1,
        NextFieldId = StatesFieldId + 1
    };
    static const BitVector ChoiceFieldMask;
    static const BitVector StatesFieldMask;

    SFUInt32 *getSFChoice() { return &_sfChoice; }
    MFMatrix *getMFStates() { return &_mfStates; }

    UInt32 &getChoice() { return _sfChoice.getValue(); }
    const UInt32 &getChoice() const { return _sfChoice.getValue(); }
    /// Any number is stored; the transform does not change if there is no such state.
    void setChoice(const UInt32 &choice) { _sfChoice.setValue(choice); }

    MFMatrix &getStates() { return _mfStates; }
    const MFMatrix &getStates() const { return _mfStates; }

protected:
    SwitchComponentTransformBase();
    SwitchComponentTransformBase(const SwitchComponentTransformBase &other);
    ~SwitchComponentTransformBase() override {}

    SFUInt32 _sfChoice;
    MFMatrix _mfStates;

private:
    void operator=(const SwitchComponentTransformBase &);
};

/// A transform with several states. When an edit of the choice or of the states ends, it takes
/// translation, rotation and scale from the chosen state.
class SwitchComponentTransform : public SwitchComponentTransformBase {
    typedef SwitchComponentTransformBase Inherited;

public:
    typedef SwitchComponentTransformPtr Ptr;
    OSG_FIELD_CONTAINER_DECL(SwitchComponentTransformPtr)

    /// How many transform states there are.
    UInt32 getCount() const { return UInt32(_mfStates.size()); }

    void changed(BitVector which, UInt32 origin) override;
    void dump(UInt32 = 0, const BitVector = 0) const override {}

protected:
    SwitchComponentTransform() {}
    SwitchComponentTransform(const SwitchComponentTransform &other) : Inherited(other) {}
    ~SwitchComponentTransform() override {}

#if !defined(OSG_FIXED_MFIELDSYNC)
    void executeSync(FieldContainer &other, const BitVector &which) override;
#else
    void executeSync(FieldContainer &other, const BitVector &which, const SyncInfo &info) override;
#endif

private:
    friend class FieldContainer; // builds and destroys the instances
    static FieldDescription *_desc[];
    static FieldContainerType _type;
    void operator=(const SwitchComponentTransform &);
};

OSG_FIELD_CONTAINER_INL_DEF(SwitchComponentTransform, SwitchComponentTransformPtr)

OSG_END_NAMESPACE
