#include "Internal/qxSceneEdits.h"
#include "qxVariants.h"

#include "qxNodeUtils.h"

#include <OpenSG/OSGMaterialGroup.h>

void qxVariants::handleMaterialSnapshots(qxVariantSet *, osg::NodePtr, const QString &,
                                         osg::MaterialPtr, const std::vector<qxNodePtr> &,
                                         QSet<QString> &, std::set<osg::SwitchMaterialPtr> &,
                                         std::set<osg::MaterialPtr> &, bool, bool)
{
}

void qxVariants::restoreSwitchNodes() {}

void qxVariants::changeMaterial(osg::NodePtr node, osg::MaterialPtr material)
{
    const auto group = osg::MaterialGroupPtr::dcast(node->getCore());
    if (group != osg::NullFC)
        qxSceneEdits::setMaterial(group, material);
    else
        qxNodeUtils::setMaterial(node, material, false, false);
}
