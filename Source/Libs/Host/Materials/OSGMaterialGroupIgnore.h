#pragma once

#include <OpenSG/OSGBoolFields.h>
#include <OpenSG/OSGSimpleAttachments.h>

OSG_BEGIN_NAMESPACE

/// Attachment of a material group that says whether its material is ignored, for which the core has
/// no field. Read and written through qxMaterials.
struct MaterialGroupIgnoreDesc {
    typedef SFBool FieldTypeT;

    static const Char8 *getTypeName() { return "MaterialGroupIgnore"; }
    static const Char8 *getFieldName() { return "ignore"; }
    static const Char8 *getGroupName() { return "materialGroupIgnore"; }
    static const Char8 *getParentTypeName() { return "Attachment"; }
    static InitContainerF getInitMethod() { return NULL; }
    static FieldDescription **getDesc() { return _desc; }

    static FieldDescription *_desc[];
};

typedef SimpleAttachment<MaterialGroupIgnoreDesc> MaterialGroupIgnore;
typedef FCPtr<AttachmentPtr, MaterialGroupIgnore> MaterialGroupIgnorePtr;

OSG_END_NAMESPACE
