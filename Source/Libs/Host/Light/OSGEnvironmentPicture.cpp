#include "Light/OSGEnvironmentPicture.h"

OSG_BEGIN_NAMESPACE

FieldDescription *EnvironmentPictureDesc::_desc[] = {
    new FieldDescription(FieldTypeT::getClassType(), getFieldName(),
                         OSG_FC_FIELD_IDM_DESC(EnvironmentPicture::SimpleField), false,
                         (FieldAccessMethod)&EnvironmentPicture::getFieldPtr)};

OSG_FC_DLLEXPORT_DEF(SimpleAttachment, EnvironmentPictureDesc, OSG_SYSTEMLIB_DLLTMPLMAPPING);

OSG_END_NAMESPACE
