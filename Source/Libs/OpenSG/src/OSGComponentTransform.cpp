#include <OpenSG/OSGComponentTransform.h>

namespace osg {

OSG_FIELD_MASK(ComponentTransform, Center)
OSG_FIELD_MASK(ComponentTransform, Rotation)
OSG_FIELD_MASK(ComponentTransform, Scale)
OSG_FIELD_MASK(ComponentTransform, ScaleOrientation)
OSG_FIELD_MASK(ComponentTransform, Translation)

FieldDescription *ComponentTransform::_desc[] = {
    OSG_SF_DESC(ComponentTransform, Center, "center", false),
    OSG_SF_DESC(ComponentTransform, Rotation, "rotation", false),
    OSG_SF_DESC(ComponentTransform, Scale, "scale", false),
    OSG_SF_DESC(ComponentTransform, ScaleOrientation, "scaleOrientation", false),
    OSG_SF_DESC(ComponentTransform, Translation, "translation", false)};

FieldContainerType ComponentTransform::_type(
    "ComponentTransform", "Transform", NULL,
    [] { return FieldContainerPtr(ComponentTransform::createEmpty()); }, NULL, _desc,
    sizeof(_desc));

OSG_FIELD_CONTAINER_DEF(ComponentTransform, ComponentTransformPtr)

void ComponentTransform::changed(BitVector whichField, UInt32 origin)
{
    const BitVector parts = CenterFieldMask | RotationFieldMask | ScaleFieldMask
        | ScaleOrientationFieldMask | TranslationFieldMask;
    if (whichField & parts) {
        getMatrix().setTransform(getTranslation(), getRotation(), getScale(), getScaleOrientation(),
                                 getCenter());
        // An edit of its own, so that the matrix is recorded too.
        endEditCP(ComponentTransformPtr(this), MatrixFieldMask, origin);
    }
    Inherited::changed(whichField, origin);
}

} // namespace osg
