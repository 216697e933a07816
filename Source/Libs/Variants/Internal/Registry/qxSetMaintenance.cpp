#include "Internal/Registry/qxSetMaintenance.h"

#include "Internal/Registry/qxDeferredDeletion.h"
#include "Internal/Registry/qxNotify.h"
#include "qxVariant.h"
#include "qxVariantKinds.h"
#include "qxVariantSetContents.h"

#include "qxFindCache.h"
#include "qxForecast.h"
#include "qxSceneLookup.h"
#include "qxText.h"
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

/// Lights that no look-up by name finds count, too.
bool isInScene(const qxVariantKind &kind, const QString &base, const qxSceneLookup &scene)
{
    return &kind == &qxVariantKinds::light ? scene.hasLight(base)
                                           : !kind.rule.objects(base).empty();
}

void keepWhatWorks(qxVariantSetContents &set, const qxVariantKinds::List &kinds,
                   const qxSceneLookup &scene)
{
    for (const qxVariantKind *kind : kinds) {
        keepIf(set, *kind, [&](const QString &base, const QString &state) {
            if (kind == &qxVariantKinds::transform)
                return hasPose(base, state);
            return kind == &qxVariantKinds::light ? isInScene(*kind, base, scene)
                                                  : offer(kind->rule, base, state);
        });
    }
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
    const auto leadsToObjects = [&](const qxVariantKind *kind) {
        return kind->makesUsed && leadsToScene(set, *kind, [&](const QString &each) {
                   return isInScene(*kind, each, scene);
               });
    };
    return anyOf(qxVariantKinds::all(), leadsToObjects)
        || anyOf(set.geometries, hasObjects(qxStateRules::node))
        || anyOf(set.viewpoints, isViewpoint)
        || anyOf(set.animations, [&](const QString &each) { return scene.hasClip(each); });
}

void qxSetMaintenance::highlightVariants(const qxVariantSetContents &set)
{
    const qxDeferredDeletion deferred;
    for (const qxVariantKind *kind : qxVariantKinds::all())
        highlight(set, *kind);
}

void qxSetMaintenance::optimize(qxVariantSetContents &set)
{
    const qxFindCache cache(!isEmpty(set));
    const qxSceneLookup scene;
    const qxVariantKinds::Order &order = qxVariantKinds::optimizingOrder();
    keepWhatWorks(set, order.first, scene);
    keepIf(set.geometries, hasObjects(qxStateRules::node));
    keepIf(set.viewpoints, isViewpoint);
    keepIf(set.animations, [&](const QString &each) { return scene.hasClip(each); });
    keepWhatWorks(set, order.rest, scene);
}
