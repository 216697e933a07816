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

bool qxTransformVariantCreator::takes(const osg::NodePtr &node) const
{
    return qxNodeUtils::hasTransformVariants(node);
}

osg::Action::ResultE qxTransformVariantCreator::traverseEnter(qxGraphOpNode node)
{
    if (takes(node))
        qxVariants::createTransformVariant(node, false);
    return osg::Action::Continue;
}
