#include "qxLightVariantCreator.h"

#include "Internal/Registry/qxNotify.h"
#include "qxLightVariant.h"
#include "qxVariants.h"

#include "OSGUberLight.h"

#include <OpenSG/OSGNode.h>

qxLightVariantCreator::qxLightVariantCreator() : qxVariantCreator("qxLightVariantCreator") {}

osg::GraphOp *qxLightVariantCreator::create()
{
    return new qxLightVariantCreator;
}

bool qxLightVariantCreator::traverse(osg::NodePtr node)
{
    qxVariantCreator::traverse(node);
    qxNotify::variantsChanged(qxLightVariant::notifications);
    return true;
}

bool qxLightVariantCreator::takes(const osg::NodePtr &node) const
{
    return node != osg::NullFC && osg::UberLightPtr::dcast(node->getCore()) != osg::NullFC;
}

osg::Action::ResultE qxLightVariantCreator::traverseEnter(qxGraphOpNode node)
{
    if (takes(node))
        qxVariants::createLightVariant(node, false);
    return osg::Action::Continue;
}
