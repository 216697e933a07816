#include "qxShownStates.h"

#include "qxNodeVariant.h"

#include "OSGSwitchComponentTransform.h"
#include "qxStateRules.h"

qxShownStates::Shown qxShownStates::of(const qxVariantRow &row) const
{
    Shown shown{row.variant->onCurrent(), false};
    const auto *const variant = dynamic_cast<const qxNodeVariant *>(row.variant);
    if (!variant)
        return shown;
    const auto nodes = m_scene.nodes(variant->nodeName);
    if (nodes.empty())
        return shown;
    const qxSceneObject node{&qxVariantKinds::node, nodes.front(), osg::NullFC};
    shown.isHidden = qxStateRules::current(node, qxAspect::Visibility) == 0;
    if (osg::SwitchComponentTransformPtr::dcast(node.node->getCore()) != osg::NullFC)
        shown.state = qxStateRules::nameOf(node, qxAspect::Choice,
                                           qxStateRules::current(node, qxAspect::Choice));
    return shown;
}
