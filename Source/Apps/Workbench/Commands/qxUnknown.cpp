#include "qxUnknown.h"

#include "Session/qxSetPictures.h"
#include "qxNearest.h"
#include "qxNodeUtils.h"
#include "qxUberCameraPool.h"

namespace {

QString line(const char *what, const QString &name, const QStringList &names)
{
    return QStringLiteral("no %1 is called \"%2\"").arg(QLatin1String(what), name)
        + qxNearest::question(name, names);
}

} // namespace

QString qxUnknown::set(const QString &name)
{
    return line("variant set", name, qxSetPictures::allNames());
}

QString qxUnknown::viewpoint(const QString &name)
{
    QStringList names;
    for (int id = 0; id < qxUberCameraPool::the()->count(); ++id)
        names += QString::fromStdString(qxUberCameraPool::the()->get(id)->name);
    return line("viewpoint", name, names);
}

QString qxUnknown::node(const QString &name)
{
    QStringList names;
    for (const qxNodePtr &node : qxNodeUtils::getSceneNodes())
        names += QString::fromStdString(qxNodeUtils::getName(node));
    names.removeDuplicates();
    return line("node", name, names);
}
