#include "qxNodePath.h"

#include "qxNodeUtils.h"
#include "qxScenegraph.h"

#include <QStringList>

QString qxNodePath(const osg::NodePtr &node)
{
    QStringList names;
    const osg::NodePtr root = qxScenegraph::getRoot();
    for (osg::NodePtr at = node; at != osg::NullFC && at != root; at = at->getParent())
        names.prepend(QString::fromStdString(qxNodeUtils::getName(at)));
    return names.join(QLatin1Char('/'));
}
