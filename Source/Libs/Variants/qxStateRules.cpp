#include "qxStateRules.h"

#include "Internal/Scene/qxSceneEdits.h"
#include "qxVariant.h"

#include "qxLights.h"
#include "qxMaterials.h"
#include "qxNodeUtils.h"
#include "qxOverlays.h"
#include "qxScenegraph.h"
#include "qxText.h"
#include "qxTransformService.h"

#include <OpenSG/OSGSwitch.h>
#include <OpenSG/OSGSwitchMaterial.h>

#include <algorithm>
#include <cstdio>

namespace {

constexpr char TransformName[] = "Transform %u";

osg::SwitchPtr switchOf(const qxSceneObject &object)
{
    return osg::SwitchPtr::dcast(object.node->getCore());
}

osg::SwitchComponentTransformPtr transformSwitchOf(const qxSceneObject &object)
{
    return osg::SwitchComponentTransformPtr::dcast(object.node->getCore());
}

/// -1 for none.
template <class List, class NameOf>
int firstNamed(const List &list, const std::string &name, const NameOf &nameOf)
{
    const auto found = std::find_if(list.begin(), list.end(),
                                    [&](const auto &each) { return nameOf(each) == name; });
    return found == list.end() ? -1 : int(found - list.begin());
}

void visitNodes(const std::string &name, const qxStateRule::Visit &visit)
{
    for (const qxNodePtr &each : qxScenegraph::findNodes(name.c_str()))
        visit(qxSceneObject(each));
}

void visitOverlays(const std::string &name, const qxStateRule::Visit &visit)
{
    for (const qxNodePtr &each : qxOverlays::findOverlays(name.c_str()))
        visit(qxSceneObject(each));
}

void visitMaterials(const std::string &name, const qxStateRule::Visit &visit)
{
    for (const osg::MaterialPtr &each : qxMaterials::findMaterials(name.c_str()))
        visit(qxSceneObject(each));
}

void refuse(const qxSceneObject &object, qxAspect aspect, qxReason reason, qxEffectTarget &target)
{
    target.take({object, aspect, -1, reason});
}

void requestPose(const osg::NodePtr &node, int place)
{
    auto *service = qxKernelServiceFactory::the()->getService<qxTransformService>();
    const QList<QRPC::NodeTrafoId> request{QRPC::NodeTrafoId(node.getFieldContainerId(), place)};
    service->selectTransformVariants(request, 0, 0);
}

void setChoice(const qxSceneObject &object, osg::Int64 place)
{
    if (object.material != osg::NullFC)
        return qxSceneEdits::setChoice(object.switchMaterial, osg::UInt32(place));
    const auto choices = switchOf(object);
    if (choices != osg::NullFC)
        qxSceneEdits::setChoice(choices, osg::Int32(place));
    else
        qxSceneEdits::setChoice(transformSwitchOf(object), osg::UInt32(place));
}

/// What showing, hiding and toggling do. False for any other state, which does nothing here.
bool decideShown(const qxSceneObject &object, qxAspect aspect, const qxStateRequest &request,
                 qxEffectTarget &target)
{
    const bool toggle = request.state == variantToggle;
    if (!toggle && request.state != variantEnable && request.state != variantDisable)
        return false;
    const bool show = toggle ? !target.value(object, aspect) : request.state == variantEnable;
    target.take({object, aspect, show, toggle ? qxReason::Toggled : qxReason::Named});
    if (show && request.recurses)
        qxStateRules::recurse(object.node, target);
    target.finish(object);
    return true;
}

/// Of clones the first one takes the choice.
void takeChoice(qxEffect effect, bool isFirst, qxEffectTarget &target)
{
    effect.isDone = !isFirst;
    if (effect.isDone)
        effect.value = target.value(effect.object, effect.aspect);
    target.take(effect);
}

void decideTransformSwitch(const qxSceneObject &object, qxStateRequest &request,
                           qxEffectTarget &target)
{
    const auto core = transformSwitchOf(object);
    const osg::UInt32 count = core->getCount();
    osg::UInt32 place = 0;
    qxReason reason = qxReason::Stepped;
    if (request.step) {
        place = qxSwitchStepping::stepTransformSwitch(
            *request.step, osg::UInt32(target.value(object, qxAspect::Choice)), count);
    } else if (const auto number = qxStateRules::transformPlace(request.state)) {
        place = *number;
        reason = place < count ? qxReason::Numbered : qxReason::BeyondTransforms;
    } else {
        reason = qxReason::FirstTransform;
    }
    takeChoice({object, qxAspect::Choice, place, reason}, request.isFirstVisit(core), target);
}

void decideSwitch(const qxSceneObject &object, qxStateRequest &request, qxEffectTarget &target)
{
    const bool isFirst = request.isFirstVisit(object.node->getCore());
    qxEffect effect{object, qxAspect::Choice, -1, qxReason::Named};
    if (request.step) {
        const auto choice = osg::Int32(target.value(object, qxAspect::Choice));
        effect.reason = qxReason::Stepped;
        effect.value =
            qxSwitchStepping::stepSwitch(*request.step, choice, object.node->getNChildren());
    } else if (request.state == variantAll) {
        effect.value = osg::Switch::ALL;
    } else if (request.state != variantNone) {
        effect.value = target.placeOf(object, qxAspect::Choice, request.name);
        if (effect.value < 0)
            return refuse(object, qxAspect::Choice, qxReason::NoSuchChild, target);
    }
    takeChoice(effect, isFirst, target);
    if (request.state != variantNone && request.recurses)
        qxStateRules::recurse(object.node, target);
    target.finish(object);
}

/// A switch that is shown or hidden looks for a child of that name as well.
template <bool KnowsTransformSwitches>
void decideShownOrChosen(const qxSceneObject &object, qxStateRequest &request,
                         qxEffectTarget &target)
{
    const bool isShownOrHidden = decideShown(object, qxAspect::Visibility, request, target);
    if (switchOf(object) != osg::NullFC)
        decideSwitch(object, request, target);
    else if (KnowsTransformSwitches && transformSwitchOf(object) != osg::NullFC)
        decideTransformSwitch(object, request, target);
    else if (!isShownOrHidden)
        refuse(object, qxAspect::Choice, qxReason::NoSwitch, target);
}

/// Materials are chosen by name: a step to the second of two namesakes ends at the first.
void decideMaterial(const qxSceneObject &object, qxStateRequest &request, qxEffectTarget &target)
{
    const osg::SwitchMaterialPtr &material = object.switchMaterial;
    if (material == osg::NullFC || material->getMaterials().empty())
        return refuse(object, qxAspect::Choice,
                      material == osg::NullFC ? qxReason::NoSwitchMaterial
                                              : qxReason::EmptySwitchMaterial,
                      target);
    int place = -1;
    if (request.step) {
        const osg::UInt32 next = qxSwitchStepping::stepMaterial(
            *request.step, osg::Int32(target.value(object, qxAspect::Choice)),
            osg::UInt32(material->getMaterials().size()));
        place = target.placeOf(object, qxAspect::Choice,
                               qxMaterials::getName(material->getMaterials(next)));
    } else {
        place = target.placeOf(object, qxAspect::Choice, request.name);
    }
    if (place < 0)
        return refuse(object, qxAspect::Choice, qxReason::NoSuchMaterial, target);
    target.take(
        {object, qxAspect::Choice, place, request.step ? qxReason::Stepped : qxReason::Named});
    target.finish(object);
}

void decideLight(const qxSceneObject &object, qxStateRequest &request, qxEffectTarget &target)
{
    if (!qxLights::isLight(object.node))
        refuse(object, qxAspect::Light, qxReason::NoLight, target);
    else if (!decideShown(object, qxAspect::Light, request, target))
        refuse(object, qxAspect::Light, qxReason::NoLightState, target);
}

/// Steps from a place out of range may lead to another one, which the host is asked for all the
/// same.
void decideTransform(const qxSceneObject &object, qxStateRequest &request, qxEffectTarget &target)
{
    if (!qxNodeUtils::hasTransformVariants(object.node))
        return refuse(object, qxAspect::Pose, qxReason::NoTransforms, target);
    const int count = qxStateRules::countOf(object, qxAspect::Pose);
    qxEffect effect{object, qxAspect::Pose, -1, qxReason::Named};
    if (request.step) {
        const int current = int(target.value(object, qxAspect::Pose));
        effect.value = qxSwitchStepping::stepTransformState(*request.step, current, count);
        effect.reason = qxReason::Stepped;
    } else {
        effect.value = target.placeOf(object, qxAspect::Pose, request.name);
    }
    if (effect.value < 0 || effect.value >= count)
        effect.reason = qxReason::NoSuchTransform;
    target.take(effect);
}

} // namespace

namespace qxStateRules {

const qxStateRule node{visitNodes, decideShownOrChosen<true>, true};
const qxStateRule material{visitMaterials, decideMaterial};
const qxStateRule light{visitNodes, decideLight};
const qxStateRule overlay{visitOverlays, decideShownOrChosen<false>};
const qxStateRule transform{visitNodes, decideTransform};

} // namespace qxStateRules

qxSceneObject::qxSceneObject(const osg::NodePtr &object) : node(object) {}

qxSceneObject::qxSceneObject(const osg::MaterialPtr &object)
    : material(object), switchMaterial(osg::SwitchMaterialPtr::dcast(object))
{
}

bool qxEffect::isMisfit() const
{
    return reason == qxReason::NoSwitchMaterial || reason == qxReason::EmptySwitchMaterial
        || reason == qxReason::NoLight || reason == qxReason::NoTransforms;
}

std::vector<qxSceneObject> qxStateRule::objects(const QString &name) const
{
    std::vector<qxSceneObject> objects;
    visit(qxText::toUtf8(name), [&](const qxSceneObject &each) { objects.push_back(each); });
    return objects;
}

qxStateRequest::qxStateRequest(const QString &wanted)
    : state(wanted), name(qxText::toUtf8(wanted)), step(qxSwitchStepping::stepOf(wanted))
{
}

bool qxStateRequest::isFirstVisit(const osg::NodeCorePtr &core)
{
    const bool isShared = core->getParents().size() > 1;
    return !isShared || m_visited.insert(core).second;
}

qxEffectTarget::~qxEffectTarget() {}

osg::Int64 qxEffectTarget::value(const qxSceneObject &object, qxAspect aspect) const
{
    return qxStateRules::valueOf(object, aspect);
}

int qxEffectTarget::placeOf(const qxSceneObject &object, qxAspect aspect, const std::string &name)
{
    if (aspect == qxAspect::Pose)
        return qxNodeUtils::getTransformVariantIndex(object.node, name);
    if (object.material != osg::NullFC)
        return firstNamed(object.switchMaterial->getMaterials(), name, qxMaterials::getName);
    return firstNamed(*object.node->getMFChildren(), name, qxNodeUtils::getName);
}

void qxEffectTarget::finish(const qxSceneObject &) {}

void qxStateRules::recurse(const osg::NodePtr &start, qxEffectTarget &target)
{
    const auto show = [&target](const osg::NodePtr &each) {
        target.take({qxSceneObject(each), qxAspect::Visibility, 1, qxReason::Recursion});
    };
    for (const qxNodePtr &each : qxNodeUtils::getSubTreeNodes(start))
        show(each);
    osg::NodePtr above = start == osg::NullFC ? osg::NodePtr() : start->getParent();
    while (above != osg::NullFC && !target.value(qxSceneObject(above), qxAspect::Visibility)) {
        show(above);
        above = above->getParent();
    }
}

osg::Int64 qxStateRules::valueOf(const qxSceneObject &object, qxAspect aspect)
{
    switch (aspect) {
    case qxAspect::Visibility:
        return object.node->getTravMask() == qxSceneEdits::Visible;
    case qxAspect::Light:
        return qxLights::getOn(object.node);
    case qxAspect::Pose:
        return qxNodeUtils::getTransformVariantCurrentIndex(object.node);
    case qxAspect::Choice:
        break;
    }
    if (object.material != osg::NullFC)
        return object.switchMaterial->getChoice();
    const auto choices = switchOf(object);
    return choices != osg::NullFC ? osg::Int64(choices->getChoice())
                                  : osg::Int64(transformSwitchOf(object)->getChoice());
}

void qxStateRules::setValue(const qxSceneObject &object, qxAspect aspect, osg::Int64 value)
{
    switch (aspect) {
    case qxAspect::Visibility:
        return qxSceneEdits::setTraversalMask(object.node,
                                              value ? qxSceneEdits::Visible : qxSceneEdits::Hidden);
    case qxAspect::Light:
        return qxLights::setOn(object.node, value != 0);
    case qxAspect::Pose:
        return requestPose(object.node, int(value));
    case qxAspect::Choice:
        return setChoice(object, value);
    }
}

int qxStateRules::countOf(const qxSceneObject &object, qxAspect aspect)
{
    if (aspect == qxAspect::Pose)
        return qxNodeUtils::getTransformVariantCount(object.node);
    return object.material != osg::NullFC ? int(object.switchMaterial->getMaterials().size())
                                          : int(object.node->getNChildren());
}

std::string qxStateRules::nameAt(const qxSceneObject &object, qxAspect aspect, osg::Int64 place)
{
    if (place < 0 || place >= countOf(object, aspect))
        return std::string();
    if (aspect == qxAspect::Pose)
        return qxNodeUtils::getTransformVariantName(object.node, int(place));
    const auto index = osg::UInt32(place);
    return object.material != osg::NullFC
        ? qxMaterials::getName(object.switchMaterial->getMaterials(index))
        : qxNodeUtils::getName(object.node->getChild(index));
}

QString qxStateRules::stateFor(const qxSceneObject &object, qxAspect aspect, osg::Int64 value)
{
    if (aspect == qxAspect::Visibility || aspect == qxAspect::Light)
        return value ? variantEnable : variantDisable;
    const bool isNodeChoice = aspect == qxAspect::Choice && object.material == osg::NullFC;
    if (isNodeChoice && transformSwitchOf(object) != osg::NullFC)
        return transformName(osg::UInt32(value));
    if (isNodeChoice && value == osg::Switch::ALL)
        return variantAll;
    if (isNodeChoice && value == osg::Switch::NONE)
        return variantNone;
    return qxText::fromUtf8(nameAt(object, aspect, value));
}

QString qxStateRules::stateOf(const qxSceneObject &object, qxAspect aspect)
{
    return stateFor(object, aspect, valueOf(object, aspect));
}

QString qxStateRules::transformName(osg::UInt32 place)
{
    return QString::asprintf(TransformName, place);
}

std::optional<osg::UInt32> qxStateRules::transformPlace(const QString &state)
{
    osg::UInt32 place = 0;
    const bool isOne = std::sscanf(qxText::toUtf8(state).c_str(), TransformName, &place) == 1;
    return isOne ? std::optional<osg::UInt32>(place) : std::nullopt;
}
