#include "Internal/Registry/qxSetSelection.h"

#include "Internal/Registry/qxNotify.h"
#include "qxVariant.h"
#include "qxVariantKinds.h"
#include "qxVariantSetContents.h"

#include "qxCameraService.h"
#include "qxFindCache.h"
#include "qxNames.h"
#include "qxNodeUtils.h"
#include "qxScenegraph.h"
#include "qxScript.h"

namespace {

/// From this many states that look up scene objects on, a cache of the names pays.
constexpr std::size_t StatesWorthACache = 4;

/// How the camera travels to a viewpoint; the numbers are those of the camera service.
struct Travel {
    int duration;
    int home;
    int redraw;
};
constexpr Travel toFirstViewpoint{0, 0, 1};
constexpr Travel toDefaultViewpoint{0, 1, 1};

bool isWorthACache(const qxVariantSetContents &set)
{
    return set.nodeVariants.size() + set.materialVariants.size() + set.lightVariants.size()
        >= StatesWorthACache;
}

/// A variant's name and a state.
typedef std::pair<QString, QString> Reference;

std::vector<Reference> referencesOf(const qxVariantSetContents &set, const qxVariantKind &kind)
{
    const qxStateList &states = set.*kind.states;
    std::vector<Reference> references;
    references.reserve(states.size());
    for (const qxVariantState &each : states)
        references.emplace_back(each.variant, each.state);
    return references;
}

/// Puts the variant of each reference into the state that `stateOf` answers.
template <class StateOf>
void selectAll(const qxVariantSetContents &set, const qxVariantKind &kind, const StateOf &stateOf)
{
    const qxUnchangedNames unchanged;
    for (const Reference &each : referencesOf(set, kind)) {
        qxVariant *const variant = kind.find(each.first);
        const qxUnchangedNames::Pause others;
        if (variant)
            variant->onSelect(stateOf(*variant, each));
    }
}

void selectStates(const qxVariantSetContents &set, const qxVariantKinds::List &kinds)
{
    for (const qxVariantKind *kind : kinds)
        selectAll(set, *kind, [](const qxVariant &, const Reference &each) { return each.second; });
}

void moveCamera(qxCameraService *camera, const QString &viewpoint, const Travel &travel)
{
    const int id = camera->findViewpoint(qxText::toUtf8(viewpoint));
    camera->moveToViewpoint(id, travel.duration, travel.home, travel.redraw);
}

void startAllAnimations(const qxVariantSetContents &set)
{
    const QStringList animations = set.animations.list();
    for (const QString &animation : animations)
        qxNotify::animationStart(animation);
}

void startNextAnimation(qxVariantSetContents &set)
{
    if (set.animations.empty())
        return;
    if (set.animationIndex >= set.animations.size())
        set.animationIndex = 0;
    qxNotify::animationStart(set.animations[set.animationIndex]);
    ++set.animationIndex;
}

void startAnimations(qxVariantSetContents &set)
{
    if (set.sequentialAnimation)
        startNextAnimation(set);
    else
        startAllAnimations(set);
}

/// What only a full selection does.
void applyRest(qxVariantSetContents &set, qxCameraService *camera)
{
    if (!set.script.isEmpty())
        qxScript::run(qxText::toUtf8(set.script).c_str());
    set.analyzer.execute();
    startAnimations(set);
    if (camera && !set.defaultViewpoint.isEmpty())
        moveCamera(camera, set.defaultViewpoint, toDefaultViewpoint);
}

} // namespace

void qxSetSelection::apply(qxVariantSetContents &set, bool full, bool keepCamera)
{
    const qxFindCache cache(isWorthACache(set));
    qxNotify::variantsSetSelected(set.name);
    selectStates(set, qxVariantKinds::selectionOrder().first);
    const auto camera = qxKernelServiceFactory::the()->getService<qxCameraService>();
    if (camera && !set.viewpoints.empty() && !keepCamera)
        moveCamera(camera, set.viewpoints.front(), toFirstViewpoint);
    selectStates(set, qxVariantKinds::selectionOrder().rest);
    if (full)
        applyRest(set, camera);
}

void qxSetSelection::applyDefaults(const qxVariantSetContents &set)
{
    for (const qxVariantKind *kind : qxVariantKinds::all()) {
        if (kind->hasDefaults)
            selectAll(set, *kind, [](const qxVariant &variant, const Reference &) {
                return variant.defaultState;
            });
    }
}

void qxSetSelection::showTargets(const qxVariantSetContents &set)
{
    for (const QString &name : set.targetNodeNames) {
        const qxNodePtr node = qxNames::findNode(name);
        if (node == osg::NullFC)
            return;
        qxScenegraph::showNodes(qxNodeUtils::getSubTreeNodes(node));
    }
}
