#pragma once

#include <OpenSG/OSGAttachmentContainerFields.h>
#include <OpenSG/OSGAttachmentFields.h>
#include <OpenSG/OSGFieldContainer.h>

namespace osg {

/// A container that can carry attachments, one per attachment group and binding.
class AttachmentContainer : public FieldContainer {
    typedef FieldContainer Inherited;

public:
    enum { AttachmentsFieldId = Inherited::NextFieldId, NextFieldId };

    OSG_ABSTR_FIELD_CONTAINER_DECL(AttachmentContainerPtr)

    /// References the attachment; one of the same group and binding is replaced and released. Null
    /// is ignored.
    void addAttachment(const AttachmentPtr &attachment, UInt16 binding = 0);
    /// Releases the attachment; one that is not there only warns.
    void subAttachment(const AttachmentPtr &attachment, UInt16 binding = 0);
    /// Null when there is none.
    AttachmentPtr findAttachment(UInt32 groupId, UInt16 binding = 0);
    AttachmentPtr findAttachment(const FieldContainerType &type, UInt16 binding = 0);

    void dump(UInt32 indent = 0, const BitVector flags = 0) const override;

    static const BitVector AttachmentsFieldMask;
    SFAttachmentMap *getSFAttachments() { return &_sfAttachments; }

protected:
    AttachmentContainer() = default;
    /// The copy shares the attachments and references them.
    AttachmentContainer(const AttachmentContainer &other);
    ~AttachmentContainer() override;

    SFAttachmentMap _sfAttachments;

    OSG_CONTAINER_STATICS
};

OSG_ABSTR_FIELD_CONTAINER_INL_DEF(AttachmentContainer, AttachmentContainerPtr)

} // namespace osg
