#pragma once

#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGMatrixFields.h>
#include <OpenSG/OSGTransformFields.h>

namespace osg {

/// Places its node's children by a matrix.
class Transform : public Group {
    typedef Group Inherited;

public:
    typedef TransformPtr Ptr;
    enum { MatrixFieldId = Inherited::NextFieldId, NextFieldId };

    OSG_FIELD_CONTAINER_DECL(TransformPtr)

    /// Multiplies by the matrix.
    void accumulateMatrix(Matrix &result) override;
    /// The box around the children, moved by the matrix.
    void adjustVolume(Volume &volume) override;
    /// A new matrix puts the volumes above out of date.
    void changed(BitVector whichField, UInt32 origin) override;

    /// From the children's coordinates to the node's; at first the identity.
    OSG_SF(SFMatrix, Matrix)

protected:
    Transform() = default;
    Transform(const Transform &) = default;

    OSG_CONTAINER_STATICS
};

typedef Transform TransformBase;
typedef RefPtr<TransformPtr> TransformRefPtr;
typedef CoredNodePtr<Transform> TransformNodePtr;

OSG_FIELD_CONTAINER_INL_DEF(Transform, TransformPtr)

} // namespace osg
