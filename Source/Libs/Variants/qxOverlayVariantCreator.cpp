#include "qxOverlayVariantCreator.h"

#include "qxVariants.h"

qxOverlayVariantCreator::qxOverlayVariantCreator() : qxVariantCreator("qxOverlayVariantCreator") {}

osg::GraphOp *qxOverlayVariantCreator::create()
{
    return new qxOverlayVariantCreator;
}

osg::Action::ResultE qxOverlayVariantCreator::traverseEnter(qxGraphOpNode node)
{
    if (isSwitchWithChildren(node))
        qxVariants::createOverlayVariant(node, false);
    return osg::Action::Continue;
}
