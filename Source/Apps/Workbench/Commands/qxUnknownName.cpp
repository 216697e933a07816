#include "qxUnknownName.h"

#include "Session/qxSetPictures.h"
#include "qxNodeUtils.h"
#include "qxSuggestions.h"
#include "qxUberCameraPool.h"

namespace {

QString line(const char *what, const QString &name, const QStringList &names)
{
    return QStringLiteral("no %1 is called \"%2\"").arg(QLatin1String(what), name)
        + qxSuggestions::question(name, names);
}

} // namespace

QString qxUnknownName::set(const QString &name)
{
    return line("variant set", name, qxSetPictures::allNames());
}

QString qxUnknownName::viewpoint(const QString &name)
{
    QStringList names;
    for (int id = 0; id < qxUberCameraPool::the()->count(); ++id)
        names += QString::fromStdString(qxUberCameraPool::the()->get(id)->name);
    return line("viewpoint", name, names);
}

QString qxUnknownName::node(const QString &name)
{
    QStringList names;
    for (const qxNodePtr &node : qxNodeUtils::getSceneNodes())
        names += QString::fromStdString(qxNodeUtils::getName(node));
    names.removeDuplicates();
    return line("node", name, names);
}
