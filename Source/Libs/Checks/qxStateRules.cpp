#include "qxStateRules.h"

#include "qxVariant.h"

#include "OSGSwitchComponentTransform.h"
#include "OSGUberLight.h"
#include "qxLights.h"
#include "qxMaterials.h"
#include "qxNodeUtils.h"

#include <OpenSG/OSGSwitch.h>
#include <OpenSG/OSGSwitchMaterial.h>

#include <cstdio>

namespace {

const osg::UInt32 shown = 0xFFFFFFFF;

osg::SwitchMaterialPtr switchMaterialOf(const qxSceneObject &object)
{
    return osg::SwitchMaterialPtr::dcast(object.material);
}

osg::SwitchPtr switchOf(const qxSceneObject &object)
{
    return osg::SwitchPtr::dcast(object.node->getCore());
}

osg::SwitchComponentTransformPtr transformSwitchOf(const qxSceneObject &object)
{
    return osg::SwitchComponentTransformPtr::dcast(object.node->getCore());
}

/// How many things there are to choose from.
int countOf(const qxSceneObject &object, qxAspect aspect)
{
    if (aspect == qxAspect::Pose)
        return qxNodeUtils::getTransformVariantCount(object.node);
    if (object.kind == &qxVariantKinds::material)
        return int(switchMaterialOf(object)->getMaterials().size());
    const auto transforms = transformSwitchOf(object);
    return transforms != osg::NullFC ? int(transforms->getCount())
                                     : int(object.node->getNChildren());
}

/// The name of the child or material at `index`.
std::string choiceName(const qxSceneObject &object, int index)
{
    if (object.kind == &qxVariantKinds::material)
        return qxMaterials::getName(switchMaterialOf(object)->getMaterials(osg::UInt32(index)));
    return qxNodeUtils::getName(object.node->getChild(osg::UInt32(index)));
}

/// The position of the first child or material of that name, -1 for none.
int positionOf(const qxSceneObject &object, const std::string &name)
{
    const int count = countOf(object, qxAspect::Choice);
    for (int i = 0; i < count; ++i) {
        if (choiceName(object, i) == name)
            return i;
    }
    return -1;
}

qxEffect step(qxAspect aspect, const QString &state)
{
    qxEffect effect;
    const bool next = state == variantNext || state == variantNextLoop;
    if (!next && state != variantPrevious && state != variantPreviousLoop)
        return effect;
    effect.operation = qxEffect::Step;
    effect.aspect = aspect;
    effect.forward = next;
    effect.loop = state == variantNextLoop || state == variantPreviousLoop;
    return effect;
}

qxEffect showOrHide(qxAspect aspect, const QString &state)
{
    qxEffect effect;
    if (state != variantEnable && state != variantDisable && state != variantToggle)
        return effect;
    effect.operation = state == variantToggle ? qxEffect::Toggle : qxEffect::Put;
    effect.aspect = aspect;
    effect.value = state == variantEnable;
    return effect;
}

qxEffect choose(const qxSceneObject &object, const QString &state, qxCode otherwise)
{
    const qxEffect stepped = step(qxAspect::Choice, state);
    if (stepped.operation != qxEffect::Nothing)
        return stepped;
    const int position = positionOf(object, state.toStdString());
    return position < 0 ? qxEffect::none(otherwise) : qxEffect::put(qxAspect::Choice, position);
}

qxEffect ofTransformSwitch(const qxSceneObject &object, const QString &state)
{
    const qxEffect stepped = step(qxAspect::Choice, state);
    if (stepped.operation != qxEffect::Nothing)
        return stepped;
    unsigned int number = 0;
    if (std::sscanf(state.toUtf8().constData(), "Transform %u", &number) != 1)
        return qxEffect::none(qxCode::SkippedNoTransformNumber);
    if (number >= unsigned(countOf(object, qxAspect::Choice)))
        return qxEffect::none(qxCode::SkippedTransformOutOfRange);
    return qxEffect::put(qxAspect::Choice, int(number));
}

/// Nodes of the scene and of the overlay tree, which differ in nothing but transform switches.
qxEffect ofNode(const qxSceneObject &object, const QString &state)
{
    const bool isOverlay = object.kind == &qxVariantKinds::overlay;
    const bool hasTransforms = !isOverlay && transformSwitchOf(object) != osg::NullFC;
    qxEffect visibility = showOrHide(qxAspect::Visibility, state);
    if (visibility.operation != qxEffect::Nothing) {
        visibility.resetsChoice = hasTransforms;
        return visibility;
    }
    if (hasTransforms)
        return ofTransformSwitch(object, state);
    const qxCode unknown = isOverlay ? qxCode::SkippedNoOverlayState : qxCode::SkippedNoSuchChild;
    if (switchOf(object) == osg::NullFC)
        return qxEffect::none(isOverlay ? unknown : qxCode::SkippedNoSwitch);
    if (state == variantAll)
        return qxEffect::put(qxAspect::Choice, osg::Switch::ALL);
    if (state == variantNone)
        return qxEffect::put(qxAspect::Choice, osg::Switch::NONE);
    return choose(object, state, unknown);
}

qxEffect ofLight(const QString &state)
{
    const qxEffect effect = showOrHide(qxAspect::Light, state);
    return effect.operation != qxEffect::Nothing ? effect
                                                 : qxEffect::none(qxCode::SkippedNoLightState);
}

qxEffect ofTransform(const qxSceneObject &object, const QString &state)
{
    const qxEffect stepped = step(qxAspect::Pose, state);
    if (stepped.operation != qxEffect::Nothing)
        return stepped;
    const int index = qxNodeUtils::getTransformVariantIndex(object.node, state.toStdString());
    return index < 0 ? qxEffect::none(qxCode::SkippedNoSuchTransform)
                     : qxEffect::put(qxAspect::Pose, index);
}

/// Where a step leads from `value`, of `count` things to choose from.
int afterStep(const qxEffect &effect, int value, int count)
{
    // The kinds differ only in what they make of choices beyond all there is to choose from.
    const auto isBeyond = [count](int index) { return index < 0 || index >= count; };
    int index = value;
    if (effect.forward) {
        index = isBeyond(index + 1) ? (effect.loop ? 0 : count - 1) : index + 1;
        return index < 0 ? 0 : index;
    }
    index = effect.loop ? (index < 1 ? count : index) - 1 : (index > 1 ? index - 1 : 0);
    return isBeyond(index) ? count - 1 : index;
}

} // namespace

qxEffect qxEffect::none(qxCode why)
{
    qxEffect effect;
    effect.reason = why;
    return effect;
}

qxEffect qxEffect::put(qxAspect aspect, int value)
{
    qxEffect effect;
    effect.operation = Put;
    effect.aspect = aspect;
    effect.value = value;
    return effect;
}

std::vector<qxSceneObject> qxStateRules::objectsOf(const qxSceneLookup &scene,
                                                   const qxVariantKind *kind, const QString &base)
{
    std::vector<qxSceneObject> found;
    if (kind == &qxVariantKinds::material) {
        for (const osg::MaterialPtr &each : scene.materials(base))
            found.push_back({kind, osg::NullFC, each});
        return found;
    }
    for (const qxNodePtr &each :
         kind == &qxVariantKinds::overlay ? scene.overlays(base) : scene.nodes(base))
        found.push_back({kind, each, osg::NullFC});
    return found;
}

std::optional<qxCode> qxStateRules::flawOf(const qxSceneObject &object)
{
    if (object.kind == &qxVariantKinds::light && !qxLights::isLight(object.node))
        return qxCode::SkippedNoLight;
    if (object.kind == &qxVariantKinds::transform
        && !qxNodeUtils::hasTransformVariants(object.node))
        return qxCode::SkippedNoTransforms;
    if (object.kind != &qxVariantKinds::material)
        return std::nullopt;
    const auto switchMaterial = switchMaterialOf(object);
    if (switchMaterial == osg::NullFC)
        return qxCode::SkippedNoSwitchMaterial;
    if (switchMaterial->getMaterials().empty())
        return qxCode::SkippedEmptySwitchMaterial;
    return std::nullopt;
}

qxEffect qxStateRules::effectOf(const qxSceneObject &object, const QString &state)
{
    if (const auto flaw = flawOf(object))
        return qxEffect::none(*flaw);
    if (object.kind == &qxVariantKinds::material)
        return choose(object, state, qxCode::SkippedNoSuchMaterial);
    if (object.kind == &qxVariantKinds::light)
        return ofLight(state);
    if (object.kind == &qxVariantKinds::transform)
        return ofTransform(object, state);
    return ofNode(object, state);
}

qxAspectKey qxStateRules::keyOf(const qxSceneObject &object, qxAspect aspect)
{
    quint64 container = 0;
    if (object.kind == &qxVariantKinds::material)
        container = object.material.getFieldContainerId();
    else if (aspect == qxAspect::Visibility || aspect == qxAspect::Pose)
        container = object.node.getFieldContainerId();
    else
        container = object.node->getCore().getFieldContainerId();
    return container << 2 | quint64(aspect);
}

int qxStateRules::current(const qxSceneObject &object, qxAspect aspect)
{
    switch (aspect) {
    case qxAspect::Visibility:
        return object.node->getTravMask() == shown;
    case qxAspect::Light:
        return qxLights::getOn(object.node);
    case qxAspect::Pose:
        return qxNodeUtils::getTransformVariantCurrentIndex(object.node);
    case qxAspect::Choice:
        break;
    }
    if (object.kind == &qxVariantKinds::material)
        return int(switchMaterialOf(object)->getChoice());
    const auto transforms = transformSwitchOf(object);
    return transforms != osg::NullFC ? int(transforms->getChoice())
                                     : int(switchOf(object)->getChoice());
}

int qxStateRules::after(const qxSceneObject &object, const qxEffect &effect, int value)
{
    if (effect.operation == qxEffect::Put)
        return effect.value;
    if (effect.operation == qxEffect::Toggle)
        return !value;
    if (effect.operation == qxEffect::Nothing)
        return value;
    const int index = afterStep(effect, value, countOf(object, effect.aspect));
    // Materials are chosen by name: a step to the second of two twins ends at the first.
    return object.kind == &qxVariantKinds::material ? positionOf(object, choiceName(object, index))
                                                    : index;
}

QString qxStateRules::nameOf(const qxSceneObject &object, qxAspect aspect, int value)
{
    if (aspect == qxAspect::Visibility || aspect == qxAspect::Light)
        return value ? variantEnable : variantDisable;
    if (aspect == qxAspect::Pose)
        return QString::fromStdString(qxNodeUtils::getTransformVariantName(object.node, value));
    const bool isNode = object.kind != &qxVariantKinds::material;
    if (isNode && transformSwitchOf(object) != osg::NullFC)
        return QString::asprintf("Transform %u", unsigned(value));
    if (isNode && value == osg::Switch::ALL)
        return variantAll;
    if (isNode && value == osg::Switch::NONE)
        return variantNone;
    return value >= 0 && value < countOf(object, aspect)
        ? QString::fromStdString(choiceName(object, value))
        : QString();
}
