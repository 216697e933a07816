#include "qxMessage.h"
#include "qxModuleBase.h"
#include "qxNodeUtils.h"

#include <OpenSG/OSGMaterial.h>
#include <OpenSG/OSGMaterialDrawable.h>
#include <OpenSG/OSGMaterialGroup.h>

namespace {

template <class CorePtr>
void setMaterialOf(const CorePtr &core, const osg::MaterialPtr &material)
{
    // A drawable releases its old material first, and that may be all that keeps the new one.
    const osg::MaterialRefPtr kept(material);
    const osg::CPEditor edit(core);
    core->setMaterial(material);
}

void setOwnMaterial(const osg::NodePtr &node, const osg::MaterialPtr &material)
{
    const auto group = osg::MaterialGroupPtr::dcast(node->getCore());
    if (group != osg::NullFC)
        return setMaterialOf(group, material);
    const auto drawable = osg::MaterialDrawablePtr::dcast(node->getCore());
    if (drawable != osg::NullFC)
        setMaterialOf(drawable, material);
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
