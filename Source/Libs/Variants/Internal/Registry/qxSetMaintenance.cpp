#include "Internal/Registry/qxSetMaintenance.h"

#include "Internal/Registry/qxNotify.h"
#include "Internal/Registry/qxOperation.h"
#include "Internal/Scene/qxFindCache.h"
#include "qxVariant.h"
#include "qxVariantKinds.h"
#include "qxVariantSetContents.h"

#include "qxMaterials.h"
#include "qxNames.h"
#include "qxNodeUtils.h"
#include "qxSceneLookup.h"
#include "qxUberCameraPool.h"

#include <OpenSG/OSGSwitch.h>
#include <OpenSG/OSGSwitchMaterial.h>

#include <algorithm>

namespace {

template <class Range, class Test>
bool anyOf(const Range &range, const Test &test)
{
    return std::any_of(range.begin(), range.end(), test);
}

std::vector<qxNodePtr> nodesOf(const QString &name)
{
    return qxNames::findNodes(name);
}

std::vector<osg::MaterialPtr> materialsOf(const QString &name)
{
    return qxNames::findMaterials(name);
}

std::vector<qxNodePtr> overlaysOf(const QString &name)
{
    return qxNames::findOverlays(name);
}

bool isNode(const QString &name)
{
    return !nodesOf(name).empty();
}

bool isOverlay(const QString &name)
{
    return qxNames::findOverlay(name) != osg::NullFC;
}

bool isViewpoint(const QString &name)
{
    return qxUberCameraPool::the()->findViewpoint(qxText::toUtf8(name)) >= 0;
}

bool isAction(const QString &state)
{
    return state.startsWith(QLatin1Char('!'));
}

/// Whether one of the references leads to a variant whose scene object passes the test.
template <class Test>
bool leadsToScene(const qxVariantSetContents &set, const qxVariantKind &kind, const Test &sceneHas)
{
    return anyOf(set.*kind.states, [&](const qxVariantState &each) {
        const qxVariant *variant = kind.find(each.variant);
        return variant && sceneHas(variant->*kind.sceneName);
    });
}

/// Drops the references whose variant exists but fails the test of (scene name, state).
template <class Test>
void keepIf(qxVariantSetContents &set, const qxVariantKind &kind, const Test &works)
{
    qxStateList &references = set.*kind.states;
    QStringList broken;
    for (const qxVariantState &each : references) {
        const qxVariant *variant = kind.find(each.variant);
        if (variant && !works(variant->*kind.sceneName, each.state))
            broken.append(each.variant);
    }
    for (const QString &name : broken)
        references.remove(name);
}

template <class Test>
void keepIf(qxUniqueNames &names, const Test &works)
{
    QStringList broken;
    for (const QString &name : names) {
        if (!works(name))
            broken.append(name);
    }
    for (const QString &name : broken)
        names.remove(name);
}

bool hasChildNamed(const osg::NodePtr &node, const std::string &name)
{
    for (osg::UInt32 index = 0; index < node->getNChildren(); ++index) {
        if (qxNodeUtils::getName(node->getChild(index)) == name)
            return true;
    }
    return false;
}

/// Whether the nodes exist and none of them is a switch without a child called like the state.
bool nodesOffer(const std::vector<qxNodePtr> &nodes, const QString &state)
{
    if (nodes.empty() || isAction(state))
        return !nodes.empty();
    const std::string name = qxText::toUtf8(state);
    return !anyOf(nodes, [&](const qxNodePtr &node) {
        const bool isSwitch = osg::SwitchPtr::dcast(node->getCore()) != osg::NullFC;
        return isSwitch && !hasChildNamed(node, name);
    });
}

/// The same for materials: no switch material without a material called like the state.
bool materialsOffer(const std::vector<osg::MaterialPtr> &materials, const QString &state)
{
    if (materials.empty() || isAction(state))
        return !materials.empty();
    const std::string name = qxText::toUtf8(state);
    const auto isNamed = [&](const osg::MaterialPtr &choice) {
        return qxMaterials::getName(choice) == name;
    };
    return !anyOf(materials, [&](const osg::MaterialPtr &material) {
        const osg::SwitchMaterialPtr choices = osg::SwitchMaterialPtr::dcast(material);
        return choices != osg::NullFC && !anyOf(choices->getMaterials(), isNamed);
    });
}

/// Whether one of the nodes has that transform state; actions are no states here.
bool nodesKnowTransform(const std::vector<qxNodePtr> &nodes, const QString &state)
{
    const std::string name = qxText::toUtf8(state);
    return anyOf(nodes, [&](const qxNodePtr &node) {
        return qxNodeUtils::hasTransformVariants(node)
            && qxNodeUtils::getTransformVariantIndex(node, name) >= 0;
    });
}

void highlight(const qxVariantSetContents &set, const qxVariantKind &kind)
{
    std::vector<QString> names;
    for (const qxVariantState &each : set.*kind.states) {
        if (kind.find(each.variant))
            names.push_back(each.variant);
    }
    qxNotify::highlightVariants(kind.notifications, names);
}

} // namespace

bool qxSetMaintenance::isEmpty(const qxVariantSetContents &set)
{
    const auto refersToAny = [&set](const qxVariantKind *kind) {
        return !(set.*kind->states).empty();
    };
    return !anyOf(qxVariantKinds::all(), refersToAny) && set.geometries.empty()
        && set.viewpoints.empty() && set.animations.empty() && set.script.isEmpty()
        && set.analyzer.clipState == qxAnalyzerVariant::NoChange;
}

bool qxSetMaintenance::isUsed(const qxVariantSetContents &set)
{
    const qxFindCache cache(!set.nodeVariants.empty() || !set.overlayVariants.empty()
                            || !set.geometries.empty());
    const qxSceneLookup scene;
    return leadsToScene(set, qxVariantKinds::node, isNode)
        || leadsToScene(set, qxVariantKinds::material,
                        [](const QString &each) { return !materialsOf(each).empty(); })
        || leadsToScene(set, qxVariantKinds::light,
                        [&](const QString &each) { return scene.hasLight(each); })
        || anyOf(set.geometries, isNode) || anyOf(set.viewpoints, isViewpoint)
        || anyOf(set.animations, [&](const QString &each) { return scene.hasClip(each); })
        || leadsToScene(set, qxVariantKinds::overlay, isOverlay);
}

void qxSetMaintenance::highlightVariants(const qxVariantSetContents &set)
{
    const qxOperation operation;
    for (const qxVariantKind *kind : qxVariantKinds::all())
        highlight(set, *kind);
}

void qxSetMaintenance::optimize(qxVariantSetContents &set)
{
    const qxFindCache cache(!isEmpty(set));
    const qxSceneLookup scene;
    keepIf(set, qxVariantKinds::node, [](const QString &each, const QString &state) {
        return nodesOffer(nodesOf(each), state);
    });
    keepIf(set, qxVariantKinds::material, [](const QString &each, const QString &state) {
        return materialsOffer(materialsOf(each), state);
    });
    keepIf(set, qxVariantKinds::light,
           [&](const QString &each, const QString &) { return scene.hasLight(each); });
    keepIf(set.geometries, isNode);
    keepIf(set.viewpoints, isViewpoint);
    keepIf(set.animations, [&](const QString &each) { return scene.hasClip(each); });
    keepIf(set, qxVariantKinds::overlay, [](const QString &each, const QString &state) {
        return nodesOffer(overlaysOf(each), state);
    });
    keepIf(set, qxVariantKinds::transform, [](const QString &each, const QString &state) {
        return nodesKnowTransform(nodesOf(each), state);
    });
}
