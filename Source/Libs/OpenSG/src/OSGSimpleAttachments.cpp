#include <OpenSG/OSGSimpleAttachments.h>

#include <OpenSG/OSGAttachmentContainer.h>

#include "OSGWarning.h"

namespace osg {

FieldDescription *NameAttachmentDesc::_desc[] = {
    new FieldDescription(FieldTypeT::getClassType(), getFieldName(),
                         OSG_FC_FIELD_IDM_DESC(SimpleAttachment<NameAttachmentDesc>::SimpleField),
                         false, (FieldAccessMethod)&Name::getFieldPtr)};

OSG_FC_DLLEXPORT_DEF(SimpleAttachment, NameAttachmentDesc, OSG_SYSTEMLIB_DLLTMPLMAPPING);

static NamePtr findName(const AttachmentContainerPtr &container)
{
    return NamePtr::dcast(container->findAttachment(Name::getClassType()));
}

const Char8 *getName(AttachmentContainerPtr container)
{
    const NamePtr name = container ? findName(container) : NamePtr();
    return name ? name->getField().getValue().c_str() : NULL;
}

void setName(AttachmentContainerPtr container, const std::string &text)
{
    if (!container) {
        warn("setName: no container");
        return;
    }
    NamePtr name = findName(container);
    // A first name gets an attachment, later ones go into that.
    if (!name) {
        name = Name::create();
        const CPEditor editor(container, AttachmentContainer::AttachmentsFieldMask);
        container->addAttachment(name);
    }
    const CPEditor editor(name);
    name->getField().setValue(text);
}

void setName(AttachmentContainerPtr container, const Char8 *text)
{
    if (text)
        setName(container, std::string(text));
    else if (const NamePtr name = findName(container))
        container->subAttachment(name);
}

} // namespace osg
