// What a header does not give; each marked line is refused on its own.
#include <OpenSG/OSGConfig.h>
osg::UInt32 beforeTypes = 0; // refused
static_assert(__has_include(<OpenSG/OSGCPEditor.h>), ""); // refused
#include <OpenSG/OSGThread.h>
bool withoutList = osg::Thread::getCurrentChangeList()->empty(); // refused
#include <OpenSG/OSGNode.h>

namespace osg {
class NodePtr;
} // namespace osg

void withNodeAlone(osg::NodePtr node)
{
    osg::NodeRefPtr holder(node); // refused
    osg::NodePtr made = osg::makeCoredNode<osg::Group>(); // refused
    node->getCore()->getType(); // refused
    osg::setName(node, "name"); // refused
}

#include <OpenSG/OSGMaterialFields.h>
#include <OpenSG/OSGSwitchMaterial.h>
namespace osg {
class MaterialPtr; // refused
class SwitchMaterialPtr; // refused
} // namespace osg

void withMaterials(osg::SwitchMaterialPtr material)
{
    osg::getName(material); // refused
    osg::setName(material, "name"); // refused
    osg::Material::create(); // refused
    material->setChoice(1);
}

#include <QHash>
void asKey(QHash<osg::NodePtr, int> numbers)
{
    numbers.insert(osg::NodePtr(), 1); // refused
}
