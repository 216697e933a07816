#pragma once

#include "qxSceneLookup.h"
#include "qxSyntaxTree.h"

#include <optional>

/// Something that a variant of some kind drives, or would if it were of the right sort.
struct qxSceneObject {
    const qxVariantKind *kind = &qxVariantKinds::node;
    osg::NodePtr node = osg::NullFC; ///< null for a material
    osg::MaterialPtr material = osg::NullFC;
};

/// What a state changes of a scene object.
enum class qxAspect { Visibility, Choice, Light, Pose };

/// Names one aspect of one thing in the scene. Clones share their core, and so its choice.
typedef quint64 qxAspectKey;

/// What selecting a state does to a scene object.
struct qxEffect {
    enum Operation { Nothing, Put, Toggle, Step };

    Operation operation = Nothing;
    qxAspect aspect = qxAspect::Visibility;
    int value = 0; ///< what is put: shown or on 1, hidden or off 0, a position, -1 none, -2 all
    bool forward = false; ///< of a step
    bool loop = false; ///< of a step
    /// The transform switch goes to its first state as well, whatever was asked for.
    bool resetsChoice = false;
    qxCode reason = qxCode::SkippedNoObject; ///< why nothing happens

    static qxEffect none(qxCode why);
    static qxEffect put(qxAspect aspect, int value);
};

/// What the kinds of variants make of a state, without doing it.
namespace qxStateRules {

/// What bears the name `base` among the objects of that kind, in scene order.
std::vector<qxSceneObject> objectsOf(const qxSceneLookup &scene, const qxVariantKind *kind,
                                     const QString &base);
/// Why no state at all reaches the object: it is of the wrong sort.
std::optional<qxCode> flawOf(const qxSceneObject &object);
qxEffect effectOf(const qxSceneObject &object, const QString &state);

qxAspectKey keyOf(const qxSceneObject &object, qxAspect aspect);
/// What the scene shows now, in the numbers of qxEffect::value.
int current(const qxSceneObject &object, qxAspect aspect);
/// `value` after the effect.
int after(const qxSceneObject &object, const qxEffect &effect, int value);
/// The state that stands for a value, such as "!Enable" or a child's name; empty for none.
QString nameOf(const qxSceneObject &object, qxAspect aspect, int value);

} // namespace qxStateRules
