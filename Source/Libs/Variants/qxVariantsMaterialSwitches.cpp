#include "Internal/qxMaterialSwitches.h"
#include "Internal/qxNodePaths.h"
#include "Internal/qxSceneEdits.h"
#include "qxVariantSet.h"
#include "qxVariants.h"

#include "qxNodeUtils.h"
#include "qxScenegraph.h"

#include <OpenSG/OSGMaterialGroup.h>

namespace {

/// The nodes at and below `top` that a capture of materials would come to, in scene order.
std::vector<osg::NodePtr> reachedFrom(const osg::NodePtr &top)
{
    std::vector<osg::NodePtr> reached;
    std::vector<osg::NodePtr> open(1, top);
    while (!open.empty()) {
        const osg::NodePtr node = open.back();
        open.pop_back();
        if (node == osg::NullFC || node->getTravMask() != qxSceneEdits::Visible)
            continue;
        reached.push_back(node);
        const osg::MFNodePtr &children = *node->getMFChildren();
        open.insert(open.end(), children.rbegin(), children.rend());
    }
    return reached;
}

} // namespace

void qxVariants::handleMaterialSnapshots(qxVariantSet *set, osg::NodePtr node, const QString &path,
                                         osg::MaterialPtr material, const std::vector<qxNodePtr> &,
                                         QSet<QString> &visitedNames,
                                         std::set<osg::SwitchMaterialPtr> &visitedSwitchMaterials,
                                         std::set<osg::MaterialPtr> &visitedMaterials, bool capture,
                                         bool notify)
{
    const qxMaterialSwitches::Scope scope{
        set, visitedNames, visitedSwitchMaterials, visitedMaterials, capture, notify};
    if (qxMaterialSwitches *run = qxMaterialSwitches::current(set))
        run->handle(node, path, material, scope);
    else
        qxMaterialSwitches(set).handle(node, path, material, scope);
}

void qxVariants::restoreSwitchNodes()
{
    const QString name = getUniqueVariantSetName(QStringLiteral("Temp"));
    qxVariantSet *const set = createVariantSet(name, true, nullptr);
    if (!set)
        return;
    {
        const qxSetUse use(*set); // Listeners hear of new variants and may remove any set.
        const qxMaterialSwitches run(set);
        const std::vector<qxNodePtr> roots = {qxScenegraph::getRoot(),
                                              qxScenegraph::environmentGeometrySwitch()};
        QSet<QString> paths;
        std::set<osg::SwitchMaterialPtr> switches;
        std::set<osg::MaterialPtr> materials;
        for (const qxNodePtr &root : roots) {
            for (const osg::NodePtr &node : reachedFrom(root)) {
                const osg::MaterialPtr material = qxNodeUtils::getMaterial(node);
                if (material != osg::NullFC)
                    handleMaterialSnapshots(set, node, qxNodePaths::getNodePath(node), material,
                                            roots, paths, switches, materials, false, true);
            }
        }
    }
    removeVariantSet(name);
}

void qxVariants::changeMaterial(osg::NodePtr node, osg::MaterialPtr material)
{
    const auto group = osg::MaterialGroupPtr::dcast(node->getCore());
    if (group != osg::NullFC)
        qxSceneEdits::setMaterial(group, material);
    else
        qxNodeUtils::setMaterial(node, material, false, false);
}
