#include "qxTransformVariantCreator.h"

#include "Internal/Registry/qxNotify.h"
#include "qxTransformVariant.h"
#include "qxVariants.h"

#include "qxNodeUtils.h"

qxTransformVariantCreator::qxTransformVariantCreator()
    : qxVariantCreator("qxTransformVariantCreator")
{
}

osg::GraphOp *qxTransformVariantCreator::create()
{
    return new qxTransformVariantCreator;
}

bool qxTransformVariantCreator::traverse(osg::NodePtr node)
{
    qxVariantCreator::traverse(node);
    qxNotify::variantsChanged(qxTransformVariant::notifications);
    return true;
}

osg::Action::ResultE qxTransformVariantCreator::traverseEnter(qxGraphOpNode node)
{
    if (qxNodeUtils::hasTransformVariants(node))
        qxVariants::createTransformVariant(node, false);
    return osg::Action::Continue;
}
