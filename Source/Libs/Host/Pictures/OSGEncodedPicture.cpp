#include "Pictures/OSGEncodedPicture.h"

OSG_BEGIN_NAMESPACE

FieldDescription *EncodedPictureDesc::_desc[] = {new FieldDescription(
    FieldTypeT::getClassType(), getFieldName(), OSG_FC_FIELD_IDM_DESC(EncodedPicture::SimpleField),
    false, (FieldAccessMethod)&EncodedPicture::getFieldPtr)};

OSG_FC_DLLEXPORT_DEF(SimpleAttachment, EncodedPictureDesc, OSG_SYSTEMLIB_DLLTMPLMAPPING);

OSG_END_NAMESPACE
