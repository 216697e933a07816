#include "Internal/Document/qxOlderOverlays.h"

#include "Internal/Registry/qxDeferredDeletion.h"
#include "qxVariant.h"
#include "qxVariantKinds.h"
#include "qxVariantLists.h"
#include "qxVariantSet.h"

#include "OSGOverlayCore.h"
#include "qxNodeUtils.h"
#include "qxOverlays.h"

#include <OpenSG/OSGSimpleAttachments.h>

#include <QSet>

namespace {

/// "!Next" and the like: a variant with more options than "!Enable", "!Disable" and "!Toggle" was
/// never written in the older form.
constexpr std::size_t PlainOptions = 3;

/// The names of all overlays of the scene, empty ones for overlays without a name of their own.
QStringList overlayNames()
{
    QStringList names;
    for (const qxNodePtr &node : qxNodeUtils::getSubTreeNodes(qxOverlays::getPoolRoot())) {
        if (osg::OverlayCorePtr::dcast(node->getCore()) != osg::NullFC)
            names.append(QString::fromUtf8(osg::getName(node)));
    }
    return names;
}

bool isNewStyle(const qxVariantState &reference)
{
    const qxVariant *variant = qxVariantKinds::overlay.find(reference.variant);
    return (variant && variant->options.size() > PlainOptions) || !reference.state.isEmpty();
}

void refer(qxVariantSet &set, const QString &name, const QString &state)
{
    qxVariantKinds::overlay.create(name, true);
    set.addOverlayVariant(name, state);
}

/// Shows what the set refers to without a state. A set without any other reference listed all that
/// was shown: it hides the other overlays.
void fixOverlays(qxVariantSet &set, const QStringList &allNames)
{
    const qxStateList references = set.overlayVariants;
    QSet<QString> known;
    bool hasNewStyle = false;
    for (const qxVariantState &each : references) {
        if (isNewStyle(each))
            hasNewStyle = true;
        else
            refer(set, each.variant, variantEnable);
        known.insert(each.variant);
    }
    if (hasNewStyle)
        return;
    for (const QString &name : allNames) {
        if (!known.contains(name))
            refer(set, name, variantDisable);
    }
}

} // namespace

void qxOlderOverlays::makeExplicit()
{
    const QStringList names = overlayNames();
    const qxNamedList<qxVariantSet>::Walk walk(qxVariantLists::_variantSets);
    for (qxVariantSet *set : qxVariantLists::_variantSets) {
        const qxDeferredDeletion deferred;
        if (!set->overlayVariants.empty())
            fixOverlays(*set, names);
    }
}
