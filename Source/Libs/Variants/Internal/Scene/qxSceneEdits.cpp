#include "Internal/Scene/qxSceneEdits.h"

#include "Internal/Scene/qxEdit.h"

#include "qxMaterialParts.h"
#include "qxNodeUtils.h"

#include <OpenSG/OSGMaterialDrawable.h>
#include <OpenSG/OSGMaterialGroup.h>
#include <OpenSG/OSGMaterialPool.h>
#include <OpenSG/OSGSwitch.h>
#include <OpenSG/OSGSwitchMaterial.h>

void qxSceneEdits::setTraversalMask(const osg::NodePtr &node, osg::UInt32 mask)
{
    const qxEdit edit(node, osg::Node::TravMaskFieldMask);
    node->setTravMask(mask);
}

void qxSceneEdits::setChoice(const osg::SwitchPtr &core, osg::Int32 choice)
{
    const qxEdit edit(core, osg::Switch::ChoiceFieldMask);
    core->setChoice(choice);
}

void qxSceneEdits::setChoice(const osg::SwitchComponentTransformPtr &core, osg::UInt32 choice)
{
    const qxEdit edit(core, osg::SwitchComponentTransformBase::ChoiceFieldMask);
    core->setChoice(choice);
}

void qxSceneEdits::setChoice(const osg::SwitchMaterialPtr &switchMaterial, osg::UInt32 choice)
{
    const qxEdit edit(switchMaterial);
    switchMaterial->setChoice(choice);
}

void qxSceneEdits::addMaterial(const osg::SwitchMaterialPtr &switchMaterial,
                               const osg::MaterialPtr &material)
{
    if (qxMaterialParts::contain(material, switchMaterial))
        return;
    const qxEdit edit(switchMaterial, osg::SwitchMaterialBase::MaterialsFieldMask);
    switchMaterial->addMaterial(material);
}

void qxSceneEdits::subMaterial(const osg::SwitchMaterialPtr &switchMaterial,
                               const osg::MaterialPtr &material)
{
    const qxEdit edit(switchMaterial, osg::SwitchMaterialBase::MaterialsFieldMask);
    switchMaterial->subMaterial(material);
}

void qxSceneEdits::setMaterial(const osg::MaterialGroupPtr &group, const osg::MaterialPtr &material)
{
    const qxEdit edit(group);
    group->setMaterial(material);
}

void qxSceneEdits::setMaterial(const osg::MaterialDrawablePtr &drawable,
                               const osg::MaterialPtr &material)
{
    // Drawables release the old material first, and it may be all that keeps the new one.
    const osg::MaterialRefPtr kept(material);
    const qxEdit edit(drawable);
    drawable->setMaterial(material);
}

void qxSceneEdits::setMaterial(const osg::NodePtr &node, const osg::MaterialPtr &material)
{
    const auto group = osg::MaterialGroupPtr::dcast(node->getCore());
    if (group != osg::NullFC)
        setMaterial(group, material);
    else
        qxNodeUtils::setMaterial(node, material, false, false);
}

void qxSceneEdits::shareMaterial(const std::vector<qxNodePtr> &nodes)
{
    const osg::MaterialPtr material =
        nodes.size() < 2 ? osg::MaterialPtr() : qxNodeUtils::getMaterial(nodes.front());
    for (std::size_t i = 1; i < nodes.size(); ++i)
        setMaterial(nodes[i], material);
}

void qxSceneEdits::addToPool(const osg::MaterialPoolPtr &pool, const osg::MaterialPtr &material)
{
    const qxEdit edit(pool);
    pool->add(material);
}

void qxSceneEdits::subFromPool(const osg::MaterialPoolPtr &pool, const osg::MaterialPtr &material)
{
    const qxEdit edit(pool);
    pool->sub(material);
}
