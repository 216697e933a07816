#pragma once

#include <OpenSG/OSGComponentTransformFields.h>
#include <OpenSG/OSGQuaternionFields.h>
#include <OpenSG/OSGTransform.h>
#include <OpenSG/OSGVec3fFields.h>

namespace osg {

/// Places its node's children by a matrix put together from parts. The matrix follows when the edit
/// of a part ends, not when it is set; a matrix set through Transform lasts until then.
class ComponentTransform : public Transform {
    typedef Transform Inherited;

public:
    typedef ComponentTransformPtr Ptr;
    enum {
        CenterFieldId = Inherited::NextFieldId,
        RotationFieldId,
        ScaleFieldId,
        ScaleOrientationFieldId,
        TranslationFieldId,
        NextFieldId
    };

    OSG_FIELD_CONTAINER_DECL(ComponentTransformPtr)

    /// Puts the matrix together when a part was edited, and edits that too.
    void changed(BitVector whichField, UInt32 origin) override;

    /// The point that rotation and scale leave in place.
    OSG_SF(SFVec3f, Center)
    /// About the center.
    OSG_SF(SFQuaternion, Rotation)
    /// At first 1 for each axis.
    OSG_SF_INIT(SFVec3f, Scale, 1, 1, 1)
    /// The axes that the scale is along.
    OSG_SF(SFQuaternion, ScaleOrientation)
    /// Comes last: moves what is turned and scaled.
    OSG_SF(SFVec3f, Translation)

protected:
    ComponentTransform() = default;
    ComponentTransform(const ComponentTransform &) = default;

private:
    /// The parts say where it is; a matrix of its own would not last.
    using Transform::setMatrix;

    OSG_CONTAINER_STATICS
};

typedef ComponentTransform ComponentTransformBase;
typedef RefPtr<ComponentTransformPtr> ComponentTransformRefPtr;
typedef CoredNodePtr<ComponentTransform> ComponentTransformNodePtr;

OSG_FIELD_CONTAINER_INL_DEF(ComponentTransform, ComponentTransformPtr)

} // namespace osg
