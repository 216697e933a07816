#include "Materials/OSGMaterialGroupIgnore.h"
#include "qxMaterials.h"

#include <OpenSG/OSGMaterialGroup.h>

namespace {

osg::MaterialGroupPtr groupOf(const osg::NodePtr &node)
{
    return node == osg::NullFC ? osg::MaterialGroupPtr()
                               : osg::MaterialGroupPtr::dcast(node->getCore());
}

osg::MaterialGroupIgnorePtr flagOf(const osg::MaterialGroupPtr &group)
{
    return osg::MaterialGroupIgnorePtr::dcast(
        group->findAttachment(osg::MaterialGroupIgnore::getClassType()));
}

void attach(const osg::MaterialGroupPtr &group, const osg::MaterialGroupIgnorePtr &flag)
{
    const osg::CPEditor edit(group, osg::AttachmentContainer::AttachmentsFieldMask);
    group->addAttachment(flag);
}

} // namespace

bool qxMaterials::getIgnoreMaterialGroup(const osg::NodePtr &node)
{
    const osg::MaterialGroupPtr group = groupOf(node);
    if (group == osg::NullFC)
        return false;
    const osg::MaterialGroupIgnorePtr flag = flagOf(group);
    return flag != osg::NullFC && flag->getField().getValue();
}

bool qxMaterials::setIgnoreMaterialGroup(const osg::NodePtr &node, bool ignore)
{
    const osg::MaterialGroupPtr group = groupOf(node);
    if (group == osg::NullFC)
        return false;
    osg::MaterialGroupIgnorePtr flag = flagOf(group);
    if (flag == osg::NullFC && !ignore)
        return true;
    if (flag == osg::NullFC) {
        flag = osg::MaterialGroupIgnore::create();
        attach(group, flag);
    }
    const osg::CPEditor edit(flag, osg::MaterialGroupIgnore::SimpleFieldMask);
    flag->getField().setValue(ignore);
    return true;
}
