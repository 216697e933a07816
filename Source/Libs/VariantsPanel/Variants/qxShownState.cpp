#include "qxShownState.h"

#include "qxNodeVariant.h"

#include "OSGSwitchComponentTransform.h"
#include "qxScenegraph.h"

namespace {

const QLatin1String shownAtAll("!Enable");
const QLatin1String transform("Transform ");

} // namespace

QString qxShownState::of(const qxVariant &variant)
{
    const QString current = variant.onCurrent();
    const auto *const ofNode = dynamic_cast<const qxNodeVariant *>(&variant);
    if (!ofNode || current != shownAtAll)
        return current;
    const qxNodePtr node = qxScenegraph::findNode(ofNode->nodeName.toUtf8().constData());
    const auto choice = osg::SwitchComponentTransformPtr::dcast(node->getCore());
    return choice == osg::NullFC ? current : transform + QString::number(choice->getChoice());
}

bool qxShownState::isCurrent(const QString &state, const QString &shown)
{
    return !shown.isEmpty()
        && (state == shown || (state == shownAtAll && shown.startsWith(transform)));
}
