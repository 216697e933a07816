#include "qxMessage.h"
#include "qxModuleBase.h"
#include "qxNodeUtils.h"

#include <OpenSG/OSGMaterial.h>
#include <OpenSG/OSGMaterialDrawable.h>
#include <OpenSG/OSGMaterialGroup.h>

namespace {

template <class CorePtr>
void setMaterialOf(const CorePtr &core, const osg::MaterialPtr &material, osg::BitVector mask)
{
    // A drawable releases its old material first, and that may be all that keeps the new one.
    const osg::MaterialRefPtr kept(material);
    // Of nothing else: a geometry that many nodes share would look for all their volumes.
    const osg::CPEditor edit(core, mask);
    core->setMaterial(material);
}

void setOwnMaterial(const osg::NodePtr &node, const osg::MaterialPtr &material)
{
    const auto group = osg::MaterialGroupPtr::dcast(node->getCore());
    if (group != osg::NullFC)
        return setMaterialOf(group, material, osg::MaterialGroup::MaterialFieldMask);
    const auto drawable = osg::MaterialDrawablePtr::dcast(node->getCore());
    if (drawable != osg::NullFC)
        setMaterialOf(drawable, material, osg::MaterialDrawable::MaterialFieldMask);
}

} // namespace

osg::MaterialPtr qxNodeUtils::getMaterial(const osg::NodePtr &node)
{
    if (node == osg::NullFC)
        return osg::MaterialPtr();
    const auto drawable = osg::MaterialDrawablePtr::dcast(node->getCore());
    if (drawable != osg::NullFC)
        return drawable->getMaterial();
    const auto group = osg::MaterialGroupPtr::dcast(node->getCore());
    return group == osg::NullFC ? osg::MaterialPtr() : group->getMaterial();
}

void qxNodeUtils::setMaterial(const osg::NodePtr &node, const osg::MaterialPtr &material,
                              bool subTree, bool announce)
{
    if (node == osg::NullFC)
        return;
    setOwnMaterial(node, material);
    if (subTree) {
        for (const qxNodePtr &each : getSubTreeNodes(node))
            setOwnMaterial(each, material);
    }
    if (!announce)
        return;
    qxMessage message(qxModuleBase::MaterialsChanged);
    qxModuleBase::sendMessage(message, false);
}
