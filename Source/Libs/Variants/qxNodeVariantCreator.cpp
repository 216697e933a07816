#include "qxNodeVariantCreator.h"

#include "qxVariants.h"

qxNodeVariantCreator::qxNodeVariantCreator() : qxVariantCreator("qxNodeVariantCreator") {}

osg::GraphOp *qxNodeVariantCreator::create()
{
    return new qxNodeVariantCreator;
}

osg::Action::ResultE qxNodeVariantCreator::traverseEnter(qxGraphOpNode node)
{
    if (isSwitchWithChildren(node))
        qxVariants::createNodeVariant(node, false);
    return osg::Action::Continue;
}
