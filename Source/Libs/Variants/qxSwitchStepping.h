#pragma once

#include <OpenSG/OSGBaseTypes.h>

#include <QString>

#include <array>
#include <optional>

/// The four actions that go from one state to a neighbouring one.
enum class qxStep { Next, NextLoop, Previous, PreviousLoop };

/// What each step makes of a choice among `count` things, per kind of thing. The kinds treat
/// choices out of range differently, and an empty list, so each has its own rule.
namespace qxSwitchStepping {

/// The names of the four actions, in the order of qxStep.
const std::array<QString, 4> &actions();
/// The step that an action name stands for; none for any other text.
std::optional<qxStep> stepOf(const QString &state);

/// The child that a switch node's choice shows, -1 when it is no single one (none, all, out of
/// range).
osg::Int32 shownChild(osg::Int32 choice, osg::UInt32 count);

/// For a switch node; -1 when there are no children to step back to.
osg::Int32 stepSwitch(qxStep step, osg::Int32 choice, osg::UInt32 count);
/// For a transform switch; without states the result is out of range.
osg::UInt32 stepTransformSwitch(qxStep step, osg::UInt32 choice, osg::UInt32 count);
/// For a switch material with at least one material; always in range.
osg::UInt32 stepMaterial(qxStep step, osg::Int32 choice, osg::UInt32 count);
/// For the named transform states of a node; negative when there are none to step to.
int stepTransformState(qxStep step, int current, int count);

} // namespace qxSwitchStepping
