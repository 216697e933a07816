#include "qxVariantCreator.h"

#include "qxNameLookUp.h"

#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGSwitch.h>

qxVariantCreator::qxVariantCreator(const char *name) : osg::GraphOp(name) {}

qxVariantCreator::~qxVariantCreator() {}

void qxVariantCreator::setParams(const std::string) {}

std::string qxVariantCreator::usage()
{
    return std::string();
}

bool qxVariantCreator::traverse(osg::NodePtr node)
{
    const qxUnchangedNames unchanged;
    osg::GraphOp::traverse(node);
    return true;
}

osg::Action::ResultE qxVariantCreator::traverseLeave(qxGraphOpNode, osg::Action::ResultE)
{
    return osg::Action::Continue;
}

bool qxVariantCreator::isSwitchWithChildren(const osg::NodePtr &node)
{
    return node != osg::NullFC && osg::SwitchPtr::dcast(node->getCore()) != osg::NullFC
        && node->getNChildren() > 0;
}
