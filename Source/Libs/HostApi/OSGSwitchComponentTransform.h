#pragma once

#include <OpenSG/OSGComponentTransform.h>
#include <OpenSG/OSGMatrixFields.h>
#include <OpenSG/OSGUInt32Fields.h>

OSG_BEGIN_NAMESPACE

class SwitchComponentTransform;
/// Handle on a transform switch; not counted, as all of OpenSG's pointers.
typedef FCPtr<ComponentTransformPtr, SwitchComponentTransform> SwitchComponentTransformPtr;

/// The fields of a transform switch: a numbered list of transform states and the chosen one.
class SwitchComponentTransformBase : public ComponentTransform {
    typedef ComponentTransform Inherited;

public:
    ///@{
    /// The fields by number and by mask, for edit brackets and change lists.
    enum {
        ChoiceFieldId = Inherited::NextFieldId,
        StatesFieldId = ChoiceFieldId + 1,
        NextFieldId = StatesFieldId + 1
    };
    static const BitVector ChoiceFieldMask;
    static const BitVector StatesFieldMask;
    ///@}

    ///@{
    /// The fields themselves, for code that goes over the fields of any container.
    SFUInt32 *getSFChoice() { return &_sfChoice; }
    MFMatrix *getMFStates() { return &_mfStates; }
    ///@}

    ///@{
    /// The number of the chosen state, from 0; 0 at start, also while there is no state.
    UInt32 &getChoice() { return _sfChoice.getValue(); }
    const UInt32 &getChoice() const { return _sfChoice.getValue(); }
    ///@}
    /// Any number is stored; the transform does not change if there is no such state.
    void setChoice(const UInt32 &choice) { _sfChoice.setValue(choice); }

    ///@{
    /// The transforms to choose from, relative to the parent. Edit them inside an edit bracket.
    MFMatrix &getStates() { return _mfStates; }
    const MFMatrix &getStates() const { return _mfStates; }
    ///@}

protected:
    ///@{
    /// Instances are made by create() and copied by the factory; values go to other aspects by
    /// executeSync(). Only OpenSG calls these.
    SwitchComponentTransformBase();
    SwitchComponentTransformBase(const SwitchComponentTransformBase &other);
    ~SwitchComponentTransformBase() override {}

    SFUInt32 _sfChoice;
    MFMatrix _mfStates;
    ///@}

private:
    void operator=(const SwitchComponentTransformBase &);
};

/// A transform with several states. When an edit of the choice or of the states ends, it takes
/// translation, rotation and scale from the chosen state.
class SwitchComponentTransform : public SwitchComponentTransformBase {
    typedef SwitchComponentTransformBase Inherited;

public:
    typedef SwitchComponentTransformPtr Ptr; ///< the handle, as OpenSG's templates look for it
    OSG_FIELD_CONTAINER_DECL(SwitchComponentTransformPtr)

    /// How many transform states there are.
    UInt32 getCount() const { return UInt32(_mfStates.size()); }

    /// Takes the chosen state over. A choice without a state, and a state that cannot be taken
    /// apart because its numbers are too large, leave the transform as it is.
    void changed(BitVector which, UInt32 origin) override;
    /// Writes nothing.
    void dump(UInt32 = 0, const BitVector = 0) const override {}

protected:
    ///@{
    /// Instances are made by create() and copied by the factory; values go to other aspects by
    /// executeSync(). Only OpenSG calls these.
    SwitchComponentTransform() {}
    SwitchComponentTransform(const SwitchComponentTransform &other) : Inherited(other) {}
    ~SwitchComponentTransform() override {}

#if !defined(OSG_FIXED_MFIELDSYNC)
    void executeSync(FieldContainer &other, const BitVector &which) override;
#else
    void executeSync(FieldContainer &other, const BitVector &which, const SyncInfo &info) override;
#endif
    ///@}

private:
    friend class FieldContainer; // builds and destroys the instances
    static FieldDescription *_desc[];
    static FieldContainerType _type;
    void operator=(const SwitchComponentTransform &);
};

OSG_FIELD_CONTAINER_INL_DEF(SwitchComponentTransform, SwitchComponentTransformPtr)

OSG_END_NAMESPACE
