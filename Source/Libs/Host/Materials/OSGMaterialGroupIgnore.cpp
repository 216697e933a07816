#include "Materials/OSGMaterialGroupIgnore.h"

OSG_BEGIN_NAMESPACE

FieldDescription *MaterialGroupIgnoreDesc::_desc[] = {
    new FieldDescription(FieldTypeT::getClassType(), getFieldName(),
                         OSG_FC_FIELD_IDM_DESC(MaterialGroupIgnore::SimpleField), false,
                         (FieldAccessMethod)&MaterialGroupIgnore::getFieldPtr)};

OSG_FC_DLLEXPORT_DEF(SimpleAttachment, MaterialGroupIgnoreDesc, OSG_SYSTEMLIB_DLLTMPLMAPPING);

OSG_END_NAMESPACE
