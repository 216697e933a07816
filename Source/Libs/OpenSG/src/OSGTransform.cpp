#include <OpenSG/OSGTransform.h>

#include <OpenSG/OSGVolume.h>

namespace osg {

OSG_FIELD_MASK(Transform, Matrix)

FieldDescription *Transform::_desc[] = {OSG_SF_DESC(Transform, Matrix, "matrix", false)};

FieldContainerType Transform::_type(
    "Transform", "Group", NULL, [] { return FieldContainerPtr(Transform::createEmpty()); }, NULL,
    _desc, sizeof(_desc));

OSG_FIELD_CONTAINER_DEF(Transform, TransformPtr)

void Transform::accumulateMatrix(Matrix &result)
{
    result.mult(getMatrix());
}

void Transform::adjustVolume(Volume &volume)
{
    // Of the box, not of what is in it: the result may be too large.
    volume.transform(getMatrix());
}

void Transform::changed(BitVector whichField, UInt32 origin)
{
    if (whichField & MatrixFieldMask)
        invalidateVolume();
    Inherited::changed(whichField, origin);
}

} // namespace osg
