#pragma once

/// \file
/// Attachment by name: its pointer and the fields that hold it, without its definition.

#include <OpenSG/OSGFieldContainerFields.h>

#include <utility>
#include <vector>

namespace osg {

class Attachment;

/// Pointer to extra data of another object.
class AttachmentPtr : public FCPtr<FieldContainerPtr, Attachment> {
public:
    constexpr AttachmentPtr() = default;
    constexpr AttachmentPtr(const AttachmentPtr &) = default;
    AttachmentPtr(const NullFieldContainerPtr &) {}
    explicit AttachmentPtr(const Attachment *object);
    explicit AttachmentPtr(const Attachment &object);
    void operator=(const AttachmentPtr &other) { FCPtr::operator=(other); }
    void operator=(const NullFieldContainerPtr &) { m_object = nullptr; }

    /// Null when \a in is null or points to something else.
    template <class In>
    static AttachmentPtr dcast(const In in)
    {
        AttachmentPtr result;
        result.FCPtr::operator=(FCPtr::dcast(in));
        return result;
    }
};

/// One pointer, and a list of pointers; neither counts references.
OSG_FIELD_TYPEDEFS(AttachmentPtr, AttachmentPtr)

/// Attachments with their group id (upper half) and binding (lower half). A list, because most
/// containers have one attachment or none.
typedef std::vector<std::pair<UInt32, AttachmentPtr>> AttachmentMap;
typedef SField<AttachmentMap> SFAttachmentMap;
extern template class SField<AttachmentMap>;

} // namespace osg
