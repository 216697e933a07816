#include "qxUnknownName.h"

#include "qxVariantGroup.h"
#include "qxVariants.h"

#include "Session/qxSetPreviews.h"
#include "qxNames.h"
#include "qxNodeUtils.h"
#include "qxSceneLookup.h"
#include "qxSuggestions.h"

namespace {

QString line(const char *what, const QString &name, const QStringList &names)
{
    return QStringLiteral("no %1 is called \"%2\"").arg(QLatin1String(what), name)
        + qxSuggestions::question(name, names);
}

} // namespace

QString qxUnknownName::set(const QString &name)
{
    return line("variant set", name, qxSetPreviews::allNames());
}

QString qxUnknownName::group(const QString &name)
{
    QStringList names;
    for (const qxVariantGroup *group : qxVariants::_variantGroups)
        names += group->name;
    return line("variant group", name, names);
}

QString qxUnknownName::viewpoint(const QString &name)
{
    return line("viewpoint", name, qxSceneLookup::viewpointNames());
}

QString qxUnknownName::node(const QString &name)
{
    QStringList names;
    for (const qxNodePtr &node : qxNodeUtils::getSceneNodes())
        names += qxNames::nameOf(node);
    names.removeDuplicates();
    return line("node", name, names);
}

QString qxUnknownName::animation(const QString &name, const QStringList &names)
{
    return line("animation", name, names);
}
