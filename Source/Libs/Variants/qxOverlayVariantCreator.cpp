#include "qxOverlayVariantCreator.h"

#include "qxVariants.h"

qxOverlayVariantCreator::qxOverlayVariantCreator() : qxVariantCreator("qxOverlayVariantCreator") {}

osg::GraphOp *qxOverlayVariantCreator::create()
{
    return new qxOverlayVariantCreator;
}

bool qxOverlayVariantCreator::takes(const osg::NodePtr &node) const
{
    return isSwitchWithChildren(node);
}

osg::Action::ResultE qxOverlayVariantCreator::traverseEnter(qxGraphOpNode node)
{
    if (takes(node))
        qxVariants::createOverlayVariant(node, false);
    return osg::Action::Continue;
}
