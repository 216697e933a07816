#pragma once

#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGStringFields.h>

OSG_BEGIN_NAMESPACE

/// Attachment of a node: the picture that surrounds the scene when the node is the shown
/// environment. Read and written through qxEnvironmentPicture.
struct EnvironmentPictureDesc {
    typedef SFString FieldTypeT;

    static const Char8 *getTypeName() { return "EnvironmentPicture"; }
    static const Char8 *getFieldName() { return "picture"; }
    static const Char8 *getGroupName() { return "environmentPicture"; }
    static const Char8 *getParentTypeName() { return "Attachment"; }
    static InitContainerF getInitMethod() { return NULL; }
    static FieldDescription **getDesc() { return _desc; }

    static FieldDescription *_desc[];
};

typedef SimpleAttachment<EnvironmentPictureDesc> EnvironmentPicture;
typedef FCPtr<AttachmentPtr, EnvironmentPicture> EnvironmentPicturePtr;

OSG_END_NAMESPACE
