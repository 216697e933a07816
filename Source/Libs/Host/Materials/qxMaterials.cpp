#include "qxMaterials.h"

#include <OpenSG/OSGSimpleAttachments.h>

std::string qxMaterials::getName(const osg::MaterialPtr &material)
{
    const osg::Char8 *name = osg::getName(material);
    return name ? name : std::string();
}

bool qxMaterials::isEditable(const osg::MaterialPtr &material)
{
    return material != osg::NullFC;
}
