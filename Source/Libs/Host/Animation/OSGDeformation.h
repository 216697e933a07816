#pragma once

#include <OpenSG/OSGAttachment.h>
#include <OpenSG/OSGAttachmentContainer.h>
#include <OpenSG/OSGMatrixFields.h>
#include <OpenSG/OSGReal32Fields.h>
#include <OpenSG/OSGUInt32Fields.h>

OSG_BEGIN_NAMESPACE

class Deformation;
typedef FCPtr<AttachmentPtr, Deformation> DeformationPtr;

/// How a mesh changes its form in pictures; the scene graph itself keeps the form of the file. A
/// geometry says what its vertices follow: morph targets, and joints of a skin. The node above it
/// says how far, as long as no clip plays (qxPose): which nodes are the joints, and the weights of
/// the targets.
class Deformation : public Attachment {
    typedef Attachment Inherited;

public:
    typedef DeformationPtr Ptr;
    /// What becomes of the normals when targets move the vertices.
    enum Normals { Computed = 0, Kept = 1, Moved = 2 };
    enum {
        TargetsFieldId = Inherited::NextFieldId,
        NormalsFieldId = TargetsFieldId + 1,
        JointsFieldId = NormalsFieldId + 1,
        WeightsFieldId = JointsFieldId + 1,
        BindMatricesFieldId = WeightsFieldId + 1,
        NextFieldId = BindMatricesFieldId + 1
    };
    static const BitVector TargetsFieldMask;
    static const BitVector NormalsFieldMask;
    static const BitVector JointsFieldMask;
    static const BitVector WeightsFieldMask;
    static const BitVector BindMatricesFieldMask;
    OSG_FIELD_CONTAINER_DECL(DeformationPtr)

    MFReal32 *getMFTargets() { return &_mfTargets; }
    SFUInt32 *getSFNormals() { return &_sfNormals; }
    MFUInt32 *getMFJoints() { return &_mfJoints; }
    MFReal32 *getMFWeights() { return &_mfWeights; }
    MFMatrix *getMFBindMatrices() { return &_mfBindMatrices; }

    /// Of a geometry, one target after the other: how it moves each vertex, and, if normals are
    /// Moved, how each normal; three numbers each.
    MFReal32 &getTargets() { return _mfTargets; }
    /// Of a geometry: one of Normals.
    UInt32 &getNormals() { return _sfNormals.getValue(); }
    /// Of a geometry, vertex after vertex, four or eight each: places in the node's list of joints.
    /// Of a node: the ids of the nodes that are its joints, 0 for one that is not there.
    MFUInt32 &getJoints() { return _mfJoints; }
    /// Of a geometry: how much the vertex follows each joint. Of a node: how much its mesh follows
    /// each target.
    MFReal32 &getWeights() { return _mfWeights; }
    /// Of a node: what leads from the mesh to each joint, as the mesh was bound to it.
    MFMatrix &getBindMatrices() { return _mfBindMatrices; }

    /// That of a node or geometry, null when it has none.
    static DeformationPtr of(const AttachmentContainerPtr &holder)
    {
        return DeformationPtr::dcast(holder->findAttachment(getClassType()));
    }

    void dump(UInt32 = 0, const BitVector = 0) const override {}

protected:
    Deformation();
    Deformation(const Deformation &other);
    ~Deformation() override {}

#if !defined(OSG_FIXED_MFIELDSYNC)
    void executeSync(FieldContainer &other, const BitVector &which) override;
#else
    void executeSync(FieldContainer &other, const BitVector &which, const SyncInfo &info) override;
#endif

    MFReal32 _mfTargets;
    SFUInt32 _sfNormals;
    MFUInt32 _mfJoints;
    MFReal32 _mfWeights;
    MFMatrix _mfBindMatrices;

private:
    friend class FieldContainer; // builds and destroys the instances
    static FieldDescription *_desc[];
    static FieldContainerType _type;
    void operator=(const Deformation &);
};

OSG_FIELD_CONTAINER_INL_DEF(Deformation, DeformationPtr)

OSG_END_NAMESPACE
