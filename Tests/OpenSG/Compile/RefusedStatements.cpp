// Each marked line is refused on its own; without them the file compiles.
#include <OpenSG/OSGAction.h>
#include <OpenSG/OSGColor.h>
#include <OpenSG/OSGComponentTransform.h>
#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGMaterialPool.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGNodePtr.h>
#include <OpenSG/OSGQuaternion.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGSwitch.h>
#include <OpenSG/OSGTextureChunk.h>
#include <OpenSG/OSGUInt32Fields.h>

#include <functional>

using namespace osg;

using Result = Action::ResultE;
Result enter(NodePtr &);
Result enterConst(const NodePtr &);
Result enterByValue(NodePtr);
Result leaveConst(const NodePtr &, Result);

struct Visitor {
    Result enter(NodePtr &);
    Result enterConst(NodePtr &) const;
};

void walks(NodePtr root, Visitor *visitor, std::vector<NodePtr> roots)
{
    traverse(root, enter); // refused
    traverse(root, std::function<Result(NodePtr &)>(enter)); // refused
    osgTypedFunctionFunctor1CPtrRef<Result, NodePtr>(enterConst); // refused
    osgTypedFunctionFunctor1CPtrRef<Result, NodePtr>(enterByValue); // refused
    osgTypedFunctionFunctor2CPtrRef<Result, NodePtr, Result>(leaveConst); // refused
    osgTypedMethodFunctor1ObjPtrCPtrRef(visitor, &Visitor::enterConst); // refused
    traverse(roots, osgTypedMethodFunctor1ObjPtrCPtrRef(visitor, &Visitor::enter));
}

void containers(FieldContainerPtr any, ComponentTransformPtr component, MaterialPoolPtr pool)
{
    getName(any); // refused
    setName(any, "name"); // refused
    component->setMatrix(Matrix()); // refused
    TransformPtr(component)->setMatrix(Matrix());
    pool->add(NullFC); // refused
    pool->getMaterials(); // refused
    pool->add(MaterialPtr(NullFC));
    TextureChunkPtr()->setImage(ImagePtr()); // refused
}

void mathematics(Vec3f vector, Matrix matrix, Quaternion turn, Color3f rgb, Color4f rgba)
{
    Pnt3f point = {1, 2, 3};
    point = {1, 2, 3}; // refused
    point = Pnt3f(0); // refused
    vector = {1, 2, 3};
    point = vector; // refused
    vector.x() = 1; // refused
    vector = vector / 2.f; // refused
    matrix = matrix * matrix; // refused
    turn = turn * turn; // refused
    turn = Quaternion(0.f, 0.f, 0.f, 1.f); // refused
    rgb = rgba; // refused
    rgba = rgb; // refused
    turn = Quaternion(matrix);
}

void pointers(NodePtr a, SwitchPtr s, NodeCorePtr c, FieldContainerPtr f, Node *raw)
{
    a = NULL; // refused
    a = 0; // refused
    a = nullptr; // refused
    a = a = NullFC; // refused
    s = c; // refused
    a = f; // refused
    NodePtr implicit = raw; // refused
    NodeRefPtr holder = a; // refused
    NodeCorePtr core = a.getCore(); // refused
}

// Only these have no typedef Ptr.
NodeCore::Ptr *core; // refused
AttachmentContainer::Ptr *container; // refused
Name::Ptr *name; // refused
GeoPositions3f::Ptr *positions; // refused
Name::PtrType *namePtr;
GeoPositions3f::PtrType *positionsPtr;

void properties(GeoIndicesPtr any, GeoIndicesUI16Ptr exact)
{
    any->insertValue(1, 0); // refused
    exact->insertValue(1, 0);
}

void types(const FieldContainerPtr &made)
{
    const auto capturing = [made] { return made; };
    const std::function<FieldContainerPtr()> any;
    FieldContainerType a("A", "Group", NULL, [] { return FieldContainerPtr(); });
    FieldContainerType b("B", "Group", NULL, capturing); // refused
    FieldContainerType c("C", "Group", NULL, any); // refused
}

void fields(SFUInt32 a, SFUInt32 b, MFUInt32 m, MFUInt32 n)
{
    a = b = a; // refused
    m = n = m; // refused
    m.erase(m.begin(), m.end()); // refused
}

void nodes(const Node *node, NodePtr ptr, BitVector mask)
{
    node->getParent(); // refused
    node->getChild(0); // refused
    ptr->editMFChildren(); // refused
    switch (mask) {
    case Node::TravMaskFieldMask: // refused
        break;
    case Node::TravMaskFieldId:
        break;
    }
    static_assert(Node::CoreFieldMask == 64, ""); // refused
    CPEditor whole(ptr->getCore(), mask);
    CPEdit(ptr->getCore(), mask); // refused
}
