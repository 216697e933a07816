#include "qxShownStates.h"

#include "qxNodeVariant.h"

#include "OSGSwitchComponentTransform.h"
#include "qxStateRules.h"

qxShownStates::Shown qxShownStates::of(const qxVariant &variant) const
{
    Shown shown{variant.onCurrent(), false};
    const auto *const ofNode = dynamic_cast<const qxNodeVariant *>(&variant);
    if (!ofNode)
        return shown;
    const auto nodes = m_scene.nodes(ofNode->nodeName);
    if (nodes.empty())
        return shown;
    const qxSceneObject node{&qxVariantKinds::node, nodes.front(), osg::NullFC};
    shown.isHidden = qxStateRules::current(node, qxAspect::Visibility) == 0;
    if (osg::SwitchComponentTransformPtr::dcast(node.node->getCore()) != osg::NullFC)
        shown.state = qxStateRules::nameOf(node, qxAspect::Choice,
                                           qxStateRules::current(node, qxAspect::Choice));
    return shown;
}
