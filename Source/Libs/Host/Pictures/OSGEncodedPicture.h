#pragma once

#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGStringFields.h>

OSG_BEGIN_NAMESPACE

/// Attachment of an image without pixels: the bytes of its PNG, JPEG or WebP. Read and written
/// through qxEncodedPicture.
struct EncodedPictureDesc {
    typedef SFString FieldTypeT;

    static const Char8 *getTypeName() { return "EncodedPicture"; }
    static const Char8 *getFieldName() { return "bytes"; }
    static const Char8 *getGroupName() { return "encodedPicture"; }
    static const Char8 *getParentTypeName() { return "Attachment"; }
    static InitContainerF getInitMethod() { return NULL; }
    static FieldDescription **getDesc() { return _desc; }

    static FieldDescription *_desc[];
};

typedef SimpleAttachment<EncodedPictureDesc> EncodedPicture;
typedef FCPtr<AttachmentPtr, EncodedPicture> EncodedPicturePtr;

OSG_END_NAMESPACE
