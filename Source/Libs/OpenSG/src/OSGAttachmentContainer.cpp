#include <OpenSG/OSGAttachmentContainer.h>

#include <OpenSG/OSGAttachment.h>

#include <algorithm>

namespace osg {

OSG_FIELD_MASK(AttachmentContainer, Attachments)

FieldDescription *AttachmentContainer::_desc[] = {
    OSG_SF_DESC(AttachmentContainer, Attachments, "attachments", false)};

FieldContainerType AttachmentContainer::_type("AttachmentContainer", "FieldContainer", NULL, NULL,
                                              NULL, _desc, sizeof(_desc));

OSG_ABSTR_FIELD_CONTAINER_DEF(AttachmentContainer, AttachmentContainerPtr)

AttachmentContainerPtr::AttachmentContainerPtr(const AttachmentContainer *object) : FCPtr(object) {}

AttachmentContainerPtr::AttachmentContainerPtr(const AttachmentContainer &object) : FCPtr(object) {}

// Group and binding as one number.
static UInt32 attachmentKey(UInt32 groupId, UInt16 binding)
{
    return groupId << 16 | binding;
}

static AttachmentMap::iterator findEntry(AttachmentMap &attachments, UInt32 key)
{
    return std::find_if(attachments.begin(), attachments.end(),
                        [key](const auto &entry) { return entry.first == key; });
}

AttachmentContainer::AttachmentContainer(const AttachmentContainer &other) : FieldContainer(other)
{
    for (const auto &[key, attachment] : other._sfAttachments.getValue())
        addAttachment(attachment, UInt16(key));
}

AttachmentContainer::~AttachmentContainer()
{
    for (const auto &[key, attachment] : _sfAttachments.getValue()) {
        attachment->subParent(FieldContainerPtr(this));
        subRefCP(attachment);
    }
}

void AttachmentContainer::addAttachment(const AttachmentPtr &attachment, UInt16 binding)
{
    if (!attachment)
        return;
    AttachmentMap &attachments = _sfAttachments.getValue();
    const UInt32 key = attachmentKey(attachment->getGroupId(), binding);
    const auto found = findEntry(attachments, key);
    // Reference before release, for the case that both are the same.
    addRefCP(attachment);
    attachment->addParent(FieldContainerPtr(this));
    if (found == attachments.end()) {
        attachments.emplace_back(key, attachment);
        return;
    }
    const AttachmentPtr old = found->second;
    found->second = attachment;
    old->subParent(FieldContainerPtr(this));
    subRefCP(old);
}

void AttachmentContainer::subAttachment(const AttachmentPtr &attachment, UInt16 binding)
{
    if (!attachment)
        return;
    AttachmentMap &attachments = _sfAttachments.getValue();
    const auto found = findEntry(attachments, attachmentKey(attachment->getGroupId(), binding));
    if (found == attachments.end() || found->second != attachment)
        return;
    attachment->subParent(FieldContainerPtr(this));
    subRefCP(attachment);
    attachments.erase(found);
}

AttachmentPtr AttachmentContainer::findAttachment(UInt32 groupId, UInt16 binding)
{
    AttachmentMap &attachments = _sfAttachments.getValue();
    const auto found = findEntry(attachments, attachmentKey(groupId, binding));
    return found == attachments.end() ? AttachmentPtr() : found->second;
}

AttachmentPtr AttachmentContainer::findAttachment(const FieldContainerType &type, UInt16 binding)
{
    return findAttachment(type.getGroupId(), binding);
}

void AttachmentContainer::dump(UInt32 indent, const BitVector) const
{
    dumpHeader(indent);
    for (const auto &[key, attachment] : _sfAttachments.getValue())
        attachment->dump(indent + 4);
}

} // namespace osg
