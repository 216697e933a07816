#pragma once

#include "qxSwitchStepping.h"

#include <OpenSG/OSGMaterialFields.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGSwitchMaterialFields.h>

#include <functional>
#include <set>
#include <string>
#include <vector>

/// Something of the scene that variants drive, or would if it were of the right sort.
struct qxSceneObject {
    ///@{
    /// A node or a material, which must live as long as this.
    explicit qxSceneObject(const osg::NodePtr &node);
    explicit qxSceneObject(const osg::MaterialPtr &material);
    ///@}

    osg::NodePtr node; ///< null for a material
    osg::MaterialPtr material; ///< null for a node
    osg::SwitchMaterialPtr switchMaterial; ///< the same; null for materials of another sort
};

/// What a state changes of a scene object.
enum class qxAspect {
    Visibility, ///< 1 shown, 0 hidden; all bits of the traversal mask make a node shown
    Choice, ///< the place of a switch (-1 none, -2 all), transform switch or switch material
    Light, ///< 1 on, 0 off
    Pose ///< the place among the named transform states of a node; -1 for none
};

/// Why a state has an effect, or none.
enum class qxReason {
    Named, ///< the state says where the object ends
    Numbered, ///< so does the number of a transform state
    Toggled, ///< by "!Toggle"
    Stepped, ///< by "!Next" and its like
    Recursion, ///< shown along with another node
    FirstTransform, ///< a transform switch goes to its first state for any text it does not know
    BeyondTransforms, ///< a transform switch takes a number that it has no state for

    // Nothing happens.
    NoSwitch, ///< a node that can only be shown and hidden
    NoSuchChild, ///< the switch has no child of that name
    NoSwitchMaterial, ///< a material of another sort
    EmptySwitchMaterial, ///< a switch material without materials
    NoSuchMaterial, ///< the switch material has none of that name
    NoLight, ///< a node that is no light
    NoLightState, ///< lights can only be switched on and off
    NoTransforms, ///< a node without named transform states
    NoSuchTransform ///< the node has no transform state of that name
};

/// What a state does to one aspect of an object, or why it does nothing to it.
struct qxEffect {
    qxSceneObject object; ///< whose aspect it is
    qxAspect aspect; ///< what changes
    osg::Int64 value; ///< afterwards; without meaning when nothing happens
    qxReason reason; ///< why it does, or why nothing happens
    /// The object shares its core with one that took the state: nothing is left to do.
    bool isDone = false;

    /// Whether the aspect takes the value.
    bool isChange() const { return reason < qxReason::NoSwitch; }
    /// Whether the object knows the state.
    bool isTaken() const { return reason < qxReason::Recursion; }
    /// Whether the object takes no state at all.
    bool isMisfit() const;
};

/// A state on its way to the objects of one name.
struct qxStateRequest {
    /// The state, an option's name or an action, as it is given to a variant.
    explicit qxStateRequest(const QString &state);

    const QString state; ///< as it was given
    const std::string name; ///< the state in UTF-8
    std::optional<qxStep> step; ///< none: the state is a name, whatever it looks like
    bool recurses = false; ///< showing a node shows what is below and above it as well

    /// False when the core was met before: clones share their core, which takes the state once.
    bool isFirstVisit(const osg::NodeCorePtr &core);

private:
    std::set<osg::NodeCorePtr> m_visited;
};

/// Where the rules look, and where what they decide goes: each effect as soon as it is decided, so
/// that the next decision sees it. This one looks at the scene.
class qxEffectTarget {
public:
    virtual ~qxEffectTarget();

    /// What the aspect of the object is now; see qxAspect for the numbers.
    virtual osg::Int64 value(const qxSceneObject &object, qxAspect aspect) const;
    /// The first place of that name (UTF-8) to choose, -1 for none.
    virtual int placeOf(const qxSceneObject &object, qxAspect aspect, const std::string &name);

    /// Receives an effect, also one that says why nothing happens.
    virtual void take(const qxEffect &effect) = 0;
    /// All effects of one change of the object were taken; for those who tell others of it.
    virtual void finish(const qxSceneObject &object);
};

/// What the variants of one kind make of states. There is one for each kind; nobody makes others.
struct qxStateRule {
    typedef std::function<void(const qxSceneObject &object)> Visit; ///< gets one after the other

    /// Goes over whatever bears the name (UTF-8) among what the kind looks at, in scene order.
    void (*visit)(const std::string &name, const Visit &visit);
    /// Decides what the state does to one of them: one effect at least.
    void (*decide)(const qxSceneObject &object, qxStateRequest &request, qxEffectTarget &target);
    bool recurses = false; ///< while qxVariants::_recurse is set

    /// All that the rule goes over.
    std::vector<qxSceneObject> objects(const QString &name) const;
};

/// The one place that knows what states do.
namespace qxStateRules {

///@{
/// The rules of the kinds of variants.
extern const qxStateRule node;
extern const qxStateRule material;
extern const qxStateRule light;
extern const qxStateRule overlay;
extern const qxStateRule transform;
///@}

/// Shows the node with all below it, and what is above it up to the first that is shown.
void recurse(const osg::NodePtr &node, qxEffectTarget &target);

/// What the scene shows now.
osg::Int64 valueOf(const qxSceneObject &object, qxAspect aspect);
/// Changes the scene in an edit of its own. Poses are asked of the host's transform service, which
/// must exist.
void setValue(const qxSceneObject &object, qxAspect aspect, osg::Int64 value);
/// How many things there are to choose from.
int countOf(const qxSceneObject &object, qxAspect aspect);
/// The name (UTF-8) of what stands at a place to choose; empty out of range.
std::string nameAt(const qxSceneObject &object, qxAspect aspect, osg::Int64 place);
/// The state that stands for a value, such as "!Enable" or a child's name; empty for none.
QString stateFor(const qxSceneObject &object, qxAspect aspect, osg::Int64 value);
/// The state that the scene shows now.
QString stateOf(const qxSceneObject &object, qxAspect aspect);
///@{
/// The name of a state of a transform switch, and the place that such a switch takes from a text,
/// be there a state or not; none for a text that is no such name.
QString transformName(osg::UInt32 place);
std::optional<osg::UInt32> transformPlace(const QString &state);
///@}

} // namespace qxStateRules
