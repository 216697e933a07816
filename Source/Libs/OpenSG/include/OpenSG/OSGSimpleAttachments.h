#pragma once

#include <OpenSG/OSGAttachment.h>
#include <OpenSG/OSGAttachmentContainerFields.h>
#include <OpenSG/OSGStringFields.h>

#include <string>

namespace osg {

/// An attachment that carries one field. The description states everything else: `FieldTypeT`, the
/// names of type, field, group and parent type, the init method and the field table. The type
/// object stands in one source file, by OSG_FC_DLLEXPORT_DEF.
template <class AttachmentDescT>
class SimpleAttachment : public Attachment {
    typedef Attachment Inherited;

public:
    /// The one field.
    typedef typename AttachmentDescT::FieldTypeT FieldTypeT;
    typedef FCPtr<AttachmentPtr, SimpleAttachment> PtrType;
    enum { SimpleFieldId = Inherited::NextFieldId, NextFieldId };
    static const BitVector SimpleFieldMask;

    /// What OSG_FIELD_CONTAINER_DECL gives other classes, written out for a template.
    static FieldContainerType &getClassType() { return _type; }
    static UInt32 getClassTypeId() { return _type.getId(); }
    FieldContainerType &getType() override { return _type; }
    const FieldContainerType &getType() const override { return _type; }
    UInt32 getContainerSize() const override { return sizeof(SimpleAttachment); }
    static PtrType create() { return FieldContainer::createFrom<PtrType>(_type); }
    static PtrType createEmpty() { return FieldContainer::createDefault<PtrType>(); }
    FieldContainerPtr shallowCopy() const override { return FieldContainer::copyOf(*this); }

    /// The field; its value is written between begin and end of an edit.
    FieldTypeT &getField() { return m_field; }
    const FieldTypeT &getField() const { return m_field; }
    /// The same as a pointer, for the field table.
    FieldTypeT *getFieldPtr() { return &m_field; }

protected:
    SimpleAttachment() = default;
    SimpleAttachment(const SimpleAttachment &) = default;

private:
    friend class FieldContainer;
    static FieldContainerType _type;

    FieldTypeT m_field;
};

template <class AttachmentDescT>
const BitVector SimpleAttachment<AttachmentDescT>::SimpleFieldMask =
    TypeTraits<BitVector>::One << SimpleAttachment<AttachmentDescT>::SimpleFieldId;

/// Defines the type of a SimpleAttachment, inside namespace osg, after its field table.
#define OSG_FC_DLLEXPORT_DEF(CLASS, DESC, EXPORT) \
    template <> \
    EXPORT FieldContainerType CLASS<DESC>::_type( \
        DESC::getTypeName(), DESC::getParentTypeName(), DESC::getGroupName(), \
        [] { return FieldContainerPtr(CLASS<DESC>::createEmpty()); }, DESC::getInitMethod(), \
        DESC::getDesc(), sizeof(FieldDescription *)); \
    template class CLASS<DESC>

/// The name of a node, core, material or image.
struct NameAttachmentDesc {
    typedef SFString FieldTypeT;

    /// Texts under which type and field are known.
    static const Char8 *getTypeName() { return "Name"; }
    static const Char8 *getFieldName() { return "name"; }
    static const Char8 *getGroupName() { return "name"; }
    static const Char8 *getParentTypeName() { return "Attachment"; }
    /// Nothing to initialise.
    static InitContainerF getInitMethod() { return NULL; }
    /// The table with the one field.
    static FieldDescription **getDesc() { return _desc; }

    static FieldDescription *_desc[];
};

/// Its text is `name->getField().getValue()`.
typedef SimpleAttachment<NameAttachmentDesc> Name;
typedef FCPtr<AttachmentPtr, Name> NamePtr;

template <>
FieldContainerType Name::_type;
extern template class SimpleAttachment<NameAttachmentDesc>;

/// NULL for null and for what has no name; "" is a name. Valid until the next setName().
const Char8 *getName(AttachmentContainerPtr container);
/// Names the container, inside an edit bracket of its own. All that share its Name attachment are
/// renamed with it. Null only warns.
void setName(AttachmentContainerPtr container, const std::string &name);
/// The same; NULL takes the name away, without a bracket, and then the container must not be null.
void setName(AttachmentContainerPtr container, const Char8 *name);

} // namespace osg
