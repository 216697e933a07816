// Every line here is one that programs for OpenSG 1.8 contain.
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGSwitch.h>
#include <OpenSG/OSGSwitchMaterial.h>

#include <QSet>
#include <QVariant>

#include <boost/any.hpp>

using namespace osg;

Q_DECLARE_METATYPE(osg::NodePtr)

namespace osg {
inline uint qHash(const NodePtr &node, uint seed = 0)
{
    return ::qHash(quintptr(node.getCPtr()), seed);
}
} // namespace osg

void byDefault(NodePtr node = NullFC, const MaterialPtr &material = NullFC);

bool comparisons(const NodePtr &n, const SwitchPtr &s, const NodeCorePtr &c,
                 const FieldContainerPtr &f)
{
    return (n && !s) || n == NullFC || NullFC == n || n != 0 || n == nullptr || c == s || f == n
        || n < NullFC;
}

void pointers(const NodePtr &node, Node *raw)
{
    byDefault(NullFC);
    NodePtr explicitly(raw);
    NodeRefPtr holder(node);
    holder = node;
    NodePtr back = holder;
    NodeCore *core = node.getCore();
    NodePtr parent = node->getParent();
    QSet<NodePtr>().insert(back);
    QVariant::fromValue(node);
    boost::any_cast<NodePtr>(boost::any(node));
    setName(node, 0);
    setName(node, nullptr);
    setName(node->getCore(), std::string());
}

void loops(const NodePtr &node, const SwitchMaterialPtr &material)
{
    for (const NodePtr &child : *node->getMFChildren())
        byDefault(child);
    foreach (MaterialPtr each, material->getMaterials())
        byDefault(NullFC, each);
}
