#pragma once

#include <OpenSG/OSGNode.h>

#include <QString>

class qxOptionRebuild;
class qxVariant;

/// Options and states of a node that is shown through a switch core or through its traversal mask.
///
/// Transform switches are no concern of this file; here they are nodes like any other. The node
/// must not be null.
namespace qxSwitchOptions {

/// Adds the four stepping actions, flagged as such.
void addSteps(qxVariant &variant);
/// Adds the options for the node and sets the default state to what the node shows.
void build(qxVariant &variant, const osg::NodePtr &node);
/// Adds the options for the node again and sets the default state anew. An action that was no
/// option before comes back as a plain option.
void rebuild(qxVariant &variant, qxOptionRebuild &options, const osg::NodePtr &node);
/// What the node shows: "!All", "!None" or a child's name for a switch, empty when its choice is
/// out of range; "!Enable" or "!Disable" for other nodes.
QString currentState(const osg::NodePtr &node);
/// "!Enable" or "!Disable" after the traversal mask.
QString visibility(const osg::NodePtr &node);

} // namespace qxSwitchOptions
