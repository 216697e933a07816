#include "FuzzShown.h"

#include "qxLightVariant.h"
#include "qxLightVariantCreator.h"
#include "qxMaterialVariant.h"
#include "qxNodeVariant.h"
#include "qxNodeVariantCreator.h"
#include "qxOverlayVariant.h"
#include "qxOverlayVariantCreator.h"
#include "qxTransformVariant.h"
#include "qxTransformVariantCreator.h"
#include "qxVariantSet.h"
#include "qxVariants.h"

#include "qxOverlays.h"
#include "qxScenegraph.h"

#include <OpenSG/OSGSwitchMaterial.h>

namespace {

/// How many of a list are tried: an input need not be slow to be bad.
constexpr int Enough = 12;

/// A node without a name is known by the type of its core, and a place that components cannot tell
/// comes back as another type.
bool isNameOfType(const QString &name)
{
    static const QStringList types{"Group", "Transform", "ComponentTransform"};
    return types.contains(name);
}

template <class Variant>
void addStates(QStringList &states, const char *kind, const qxNamedList<Variant> &list)
{
    for (const Variant *variant : list) {
        if (isNameOfType(variant->name))
            continue;
        states << QStringLiteral("%1 %2: %3")
                      .arg(QLatin1String(kind), variant->name, variant->onCurrent());
    }
}

template <class Variant>
void selectEach(unsigned choice, const qxNamedList<Variant> &list)
{
    int left = Enough;
    for (Variant *variant : list) {
        if (!variant->options.empty())
            variant->onSelect(variant->options[choice % variant->options.size()].name);
        if (--left == 0)
            return;
    }
}

} // namespace

QStringList FuzzShown::states()
{
    QStringList states;
    addStates(states, "node", qxVariants::_nodeVariants);
    addStates(states, "material", qxVariants::_materialVariants);
    addStates(states, "light", qxVariants::_lightVariants);
    addStates(states, "overlay", qxVariants::_overlayVariants);
    addStates(states, "transform", qxVariants::_transformVariants);
    return states;
}

void FuzzShown::createVariants()
{
    const osg::NodePtr root = qxScenegraph::getRoot();
    qxNodeVariantCreator().traverse(root);
    qxLightVariantCreator().traverse(root);
    qxTransformVariantCreator().traverse(root);
    qxOverlayVariantCreator().traverse(qxOverlays::getPoolRoot());
    if (qxScenegraph::environmentGeometrySwitch() != osg::NullFC)
        qxVariants::createNodeVariant(qxScenegraph::environmentGeometrySwitch(), false);
    std::vector<osg::MaterialPtr> materials;
    qxScenegraph::getMaterialPool()->get(materials);
    for (const osg::MaterialPtr &material : materials) {
        if (osg::SwitchMaterialPtr::dcast(material) != osg::NullFC)
            qxVariants::createMaterialVariant(material, false);
    }
}

void FuzzShown::selectStates(unsigned choice)
{
    selectEach(choice, qxVariants::_nodeVariants);
    selectEach(choice, qxVariants::_materialVariants);
    selectEach(choice, qxVariants::_lightVariants);
    selectEach(choice, qxVariants::_overlayVariants);
    selectEach(choice, qxVariants::_transformVariants);
}

void FuzzShown::selectSets()
{
    int left = Enough;
    for (qxVariantSet *set : qxVariants::_variantSets) {
        set->select(true, false);
        set->selectDefault();
        if (--left == 0)
            return;
    }
}
