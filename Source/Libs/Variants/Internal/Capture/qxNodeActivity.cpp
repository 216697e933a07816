#include "Internal/Capture/qxNodeActivity.h"

#include "Internal/Capture/qxCaptureState.h"
#include "Internal/Registry/qxSceneVariants.h"
#include "Internal/Scene/qxPathLookup.h"
#include "qxNodeVariant.h"
#include "qxVariantSet.h"

#include "qxMaterials.h"
#include "qxNodeUtils.h"
#include "qxText.h"

namespace {

/// The path as an argument in a script.
QString quotedPath(const osg::NodePtr &node)
{
    const QLatin1Char quote('"');
    return quote + qxText::escaped(qxPathLookup::getNodePath(node), quote) + quote;
}

} // namespace

bool qxNodeActivity::goesOnBelow(const osg::NodePtr &node, qxVariantSet *set, bool captureNodes,
                                 bool notify)
{
    if (node == osg::NullFC)
        return false;
    if (node->getActive())
        return true;
    if (!captureNodes || !set)
        return false;
    if (qxCaptureState::hasActiveNode(qxNodeUtils::getName(node)))
        set->appendToScript(
            QStringLiteral("findNodePath(%1).setActive(false)").arg(quotedPath(node)));
    else if (qxNodeVariant *variant = qxSceneVariants::ofNode(node, notify))
        set->add(variant, variantDisable);
    return false;
}

void qxNodeActivity::recordIgnored(const osg::NodePtr &node, qxVariantSet &set)
{
    const bool ignore = qxMaterials::getIgnoreMaterialGroup(node);
    set.appendToScript(
        QStringLiteral("setIgnoreMaterialGroup(%1,%2)")
            .arg(quotedPath(node), ignore ? QLatin1String("true") : QLatin1String("false")));
}
