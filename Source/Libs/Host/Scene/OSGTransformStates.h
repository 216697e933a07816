#pragma once

#include <OpenSG/OSGAttachment.h>
#include <OpenSG/OSGInt32Fields.h>
#include <OpenSG/OSGMatrixFields.h>
#include <OpenSG/OSGStringFields.h>

OSG_BEGIN_NAMESPACE

class TransformStates;
/// Handle on the states of a node; not counted, as all of OpenSG's pointers.
typedef FCPtr<AttachmentPtr, TransformStates> TransformStatesPtr;

/// The named transform states of a node: as many names as poses, and which was selected last.
class TransformStates : public Attachment {
    typedef Attachment Inherited;

public:
    typedef TransformStatesPtr Ptr; ///< the handle, as OpenSG's templates look for it
    ///@{
    /// The fields by number and by mask, for edit brackets and change lists.
    enum {
        NamesFieldId = Inherited::NextFieldId,
        PosesFieldId = NamesFieldId + 1,
        SelectedFieldId = PosesFieldId + 1,
        NextFieldId = SelectedFieldId + 1
    };
    static const BitVector NamesFieldMask;
    static const BitVector PosesFieldMask;
    static const BitVector SelectedFieldMask;
    ///@}
    OSG_FIELD_CONTAINER_DECL(TransformStatesPtr)

    ///@{
    /// The fields themselves, for code that goes over the fields of any container.
    MFString *getMFNames() { return &_mfNames; }
    MFMatrix *getMFPoses() { return &_mfPoses; }
    SFInt32 *getSFSelected() { return &_sfSelected; }
    ///@}

    /// The names of the states, UTF-8; as many as poses.
    MFString &getNames() { return _mfNames; }
    /// The poses, relative to the node's parent.
    MFMatrix &getPoses() { return _mfPoses; }
    ///@{
    /// The index of the state that was selected last, -1 for none.
    const Int32 &getSelected() const { return _sfSelected.getValue(); }
    void setSelected(const Int32 &index) { _sfSelected.setValue(index); }
    ///@}

    /// Writes nothing.
    void dump(UInt32 = 0, const BitVector = 0) const override {}

protected:
    ///@{
    /// Instances are made by create() and copied by the factory; values go to other aspects by
    /// executeSync(). Only OpenSG calls these.
    TransformStates();
    TransformStates(const TransformStates &other);
    ~TransformStates() override {}

#if !defined(OSG_FIXED_MFIELDSYNC)
    void executeSync(FieldContainer &other, const BitVector &which) override;
#else
    void executeSync(FieldContainer &other, const BitVector &which, const SyncInfo &info) override;
#endif

    MFString _mfNames;
    MFMatrix _mfPoses;
    SFInt32 _sfSelected;
    ///@}

private:
    friend class FieldContainer; // builds and destroys the instances
    static FieldDescription *_desc[];
    static FieldContainerType _type;
    void operator=(const TransformStates &);
};

OSG_FIELD_CONTAINER_INL_DEF(TransformStates, TransformStatesPtr)

OSG_END_NAMESPACE
