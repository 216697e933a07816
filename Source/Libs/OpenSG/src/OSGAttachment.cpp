#include <OpenSG/OSGAttachment.h>

namespace osg {

OSG_FIELD_MASK(Attachment, Parents)

FieldDescription *Attachment::_desc[] = {OSG_MF_DESC(Attachment, Parents, "parents", true)};

FieldContainerType Attachment::_type("Attachment", "FieldContainer", "Attachment", NULL, NULL,
                                     _desc, sizeof(_desc));

OSG_ABSTR_FIELD_CONTAINER_DEF(Attachment, AttachmentPtr)

AttachmentPtr::AttachmentPtr(const Attachment *object) : FCPtr(object) {}

AttachmentPtr::AttachmentPtr(const Attachment &object) : FCPtr(object) {}

void Attachment::addParent(const FieldContainerPtr &parent)
{
    _mfParents.push_back(parent);
}

void Attachment::subParent(const FieldContainerPtr &parent)
{
    const auto found = _mfParents.find(parent);
    if (found != _mfParents.end())
        _mfParents.erase(found);
}

void Attachment::dump(UInt32 indent, const BitVector) const
{
    dumpHeader(indent);
}

} // namespace osg
