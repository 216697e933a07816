// Each marked line is refused on its own; without them the file compiles.
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGNodePtr.h>
#include <OpenSG/OSGSwitch.h>
#include <OpenSG/OSGUInt32Fields.h>

using namespace osg;

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
