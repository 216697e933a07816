#include "qxNodeKind.h"

#include "OSGOverlayCore.h"
#include "OSGSwitchComponentTransform.h"

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGLight.h>
#include <OpenSG/OSGMaterialGroup.h>
#include <OpenSG/OSGSwitch.h>
#include <OpenSG/OSGTransform.h>

namespace {

struct Kind {
    const osg::FieldContainerType &type;
    const char *word;
};

/// Those that are derived from others come first.
const std::vector<Kind> &kinds()
{
    static const std::vector<Kind> all = {
        {osg::SwitchComponentTransform::getClassType(),
         QT_TRANSLATE_NOOP("qxNodeKind", "Transform Switch")},
        {osg::Transform::getClassType(), QT_TRANSLATE_NOOP("qxNodeKind", "Transform")},
        {osg::Switch::getClassType(), QT_TRANSLATE_NOOP("qxNodeKind", "Switch")},
        {osg::Light::getClassType(), QT_TRANSLATE_NOOP("qxNodeKind", "Light")},
        {osg::Geometry::getClassType(), QT_TRANSLATE_NOOP("qxNodeKind", "Mesh")},
        {osg::MaterialGroup::getClassType(), QT_TRANSLATE_NOOP("qxNodeKind", "Material Group")},
        {osg::OverlayCore::getClassType(), QT_TRANSLATE_NOOP("qxNodeKind", "Overlay")},
        {osg::Group::getClassType(), QT_TRANSLATE_NOOP("qxNodeKind", "Group")}};
    return all;
}

} // namespace

QString qxNodeKind::word(const osg::NodeCorePtr &core)
{
    if (core == osg::NullFC)
        return QString();
    for (const Kind &kind : kinds()) {
        if (core->getType().isDerivedFrom(kind.type))
            return tr(kind.word);
    }
    return typeName(core);
}

QString qxNodeKind::typeName(const osg::NodeCorePtr &core)
{
    return core == osg::NullFC ? QString() : QString::fromLatin1(core->getType().getCName());
}
