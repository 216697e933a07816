#pragma once

/// \file
/// AttachmentContainer by name: its pointer and the fields that hold it, without its definition.

#include <OpenSG/OSGFieldContainerFields.h>

namespace osg {

class AttachmentContainer;

/// Pointer to an object that can carry attachments.
class AttachmentContainerPtr : public FCPtr<FieldContainerPtr, AttachmentContainer> {
public:
    constexpr AttachmentContainerPtr() = default;
    constexpr AttachmentContainerPtr(const AttachmentContainerPtr &) = default;
    AttachmentContainerPtr(const NullFieldContainerPtr &) {}
    explicit AttachmentContainerPtr(const AttachmentContainer *object);
    explicit AttachmentContainerPtr(const AttachmentContainer &object);
    void operator=(const AttachmentContainerPtr &other) { FCPtr::operator=(other); }
    void operator=(const NullFieldContainerPtr &) { m_object = nullptr; }

    /// Null when \a in is null or points to something else.
    template <class In>
    static AttachmentContainerPtr dcast(const In in)
    {
        AttachmentContainerPtr result;
        result.FCPtr::operator=(FCPtr::dcast(in));
        return result;
    }
};

/// One pointer, and a list of pointers; neither counts references.
OSG_FIELD_TYPEDEFS(AttachmentContainerPtr, AttachmentContainerPtr)

} // namespace osg
