#include "Internal/Registry/qxKind.h"
#include "Internal/Registry/qxSetUse.h"
#include "Internal/Registry/qxText.h"
#include "Internal/Scene/qxFindCache.h"
#include "Internal/Scene/qxSceneNames.h"
#include "qxVariantSet.h"

#include "qxForecast.h"
#include "qxUberCameraPool.h"

#include <algorithm>

namespace {

template <class Range, class Test>
bool anyOf(const Range &range, const Test &test)
{
    return std::any_of(range.begin(), range.end(), test);
}

/// A test for (scene name), whatever is asked of it.
auto hasObjects(const qxStateRule &rule)
{
    return [&rule](const QString &name) { return !rule.objects(name).empty(); };
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
template <class Variant, class Test>
bool leadsToScene(const qxVariantSet &set, const Test &sceneHas)
{
    return anyOf(set.*qxKind<Variant>::states, [&](const qxVariantState &each) {
        const Variant *variant = qxKinds::find<Variant>(each.variant);
        return variant && sceneHas(variant->*qxKind<Variant>::sceneName);
    });
}

/// Drops the references whose variant exists but fails the test of (scene name, state).
template <class Variant, class Test>
void keepIf(qxVariantSet &set, const Test &works)
{
    qxStateList &references = set.*qxKind<Variant>::states;
    QStringList broken;
    for (const qxVariantState &each : references) {
        const Variant *variant = qxKinds::find<Variant>(each.variant);
        if (variant && !works(variant->*qxKind<Variant>::sceneName, each.state))
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

bool isLacking(const qxEffect &effect)
{
    return effect.reason == qxReason::NoSuchChild || effect.reason == qxReason::NoSuchMaterial
        || effect.reason == qxReason::EmptySwitchMaterial;
}

/// Whether the objects exist and none of them is a switch that lacks what the state names.
bool offer(const qxStateRule &rule, const QString &base, const QString &state)
{
    const std::vector<qxSceneObject> objects = rule.objects(base);
    if (objects.empty() || isAction(state))
        return !objects.empty();
    qxStateSurvey survey;
    return !anyOf(objects, [&](const qxSceneObject &each) {
        return isLacking(survey.ask(rule, each, state).front());
    });
}

/// Whether one of the nodes has that transform state; actions are no states here.
bool hasPose(const QString &base, const QString &state)
{
    qxStateSurvey survey;
    return anyOf(qxStateRules::transform.objects(base), [&](const qxSceneObject &each) {
        return survey.isNamed(qxStateRules::transform, each, state);
    });
}

template <class Variant>
void highlight(const qxVariantSet &set)
{
    std::vector<QString> names;
    for (const qxVariantState &each : set.*qxKind<Variant>::states) {
        if (qxKinds::find<Variant>(each.variant))
            names.push_back(each.variant);
    }
    qxKind<Variant>::highlight(names);
}

} // namespace

bool qxVariantSet::isEmpty()
{
    return nodeVariants.empty() && materialVariants.empty() && lightVariants.empty()
        && overlayVariants.empty() && transformVariants.empty() && geometries.empty()
        && viewpoints.empty() && animations.empty() && script.isEmpty()
        && analyzer.clipState == qxAnalyzerVariant::NoChange;
}

bool qxVariantSet::isUsed()
{
    const qxFindCache cache(!nodeVariants.empty() || !overlayVariants.empty()
                            || !geometries.empty());
    const qxSceneNames scene;
    const auto isNode = hasObjects(qxStateRules::node);
    return leadsToScene<qxNodeVariant>(*this, isNode)
        || leadsToScene<qxMaterialVariant>(*this, hasObjects(qxStateRules::material))
        || leadsToScene<qxLightVariant>(*this,
                                        [&](const QString &each) { return scene.hasLight(each); })
        || anyOf(geometries, isNode) || anyOf(viewpoints, isViewpoint)
        || anyOf(animations, [&](const QString &each) { return scene.hasClip(each); })
        || leadsToScene<qxOverlayVariant>(*this, hasObjects(qxStateRules::overlay));
}

void qxVariantSet::showConnectedVariants()
{
    const qxSetUse use(*this);
    highlight<qxNodeVariant>(*this);
    highlight<qxMaterialVariant>(*this);
    highlight<qxLightVariant>(*this);
    highlight<qxOverlayVariant>(*this);
    highlight<qxTransformVariant>(*this);
}

void qxVariantSet::optimize()
{
    const qxFindCache cache(!isEmpty());
    const qxSceneNames scene;
    keepIf<qxNodeVariant>(*this, [](const QString &each, const QString &state) {
        return offer(qxStateRules::node, each, state);
    });
    keepIf<qxMaterialVariant>(*this, [](const QString &each, const QString &state) {
        return offer(qxStateRules::material, each, state);
    });
    keepIf<qxLightVariant>(
        *this, [&](const QString &each, const QString &) { return scene.hasLight(each); });
    keepIf(geometries, hasObjects(qxStateRules::node));
    keepIf(viewpoints, isViewpoint);
    keepIf(animations, [&](const QString &each) { return scene.hasClip(each); });
    keepIf<qxOverlayVariant>(*this, [](const QString &each, const QString &state) {
        return offer(qxStateRules::overlay, each, state);
    });
    keepIf<qxTransformVariant>(*this, hasPose);
}
