#pragma once

#include <OpenSG/OSGAttachmentFields.h>
#include <OpenSG/OSGFieldContainer.h>

namespace osg {

/// Extra data of an attachment container. One object may be shared by several.
class Attachment : public FieldContainer {
    typedef FieldContainer Inherited;

public:
    enum { ParentsFieldId = Inherited::NextFieldId, NextFieldId };

    OSG_ABSTR_FIELD_CONTAINER_DECL(AttachmentPtr)

    /// The containers that have this attachment; not counted.
    void addParent(const FieldContainerPtr &parent);
    void subParent(const FieldContainerPtr &parent);

    void dump(UInt32 indent = 0, const BitVector flags = 0) const override;

    OSG_MF(MFFieldContainerPtr, Parents)

protected:
    Attachment() = default;
    /// The copy has no parents yet.
    Attachment(const Attachment &other) : FieldContainer(other), _mfParents() {}

    OSG_CONTAINER_STATICS
};

OSG_ABSTR_FIELD_CONTAINER_INL_DEF(Attachment, AttachmentPtr)

} // namespace osg
