#include "qxNodeVariantCreator.h"

#include "qxVariants.h"

qxNodeVariantCreator::qxNodeVariantCreator() : qxVariantCreator("qxNodeVariantCreator") {}

osg::GraphOp *qxNodeVariantCreator::create()
{
    return new qxNodeVariantCreator;
}

bool qxNodeVariantCreator::takes(const osg::NodePtr &node) const
{
    return isSwitchWithChildren(node);
}

osg::Action::ResultE qxNodeVariantCreator::traverseEnter(qxGraphOpNode node)
{
    if (takes(node))
        qxVariants::createNodeVariant(node, false);
    return osg::Action::Continue;
}
