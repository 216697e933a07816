#pragma once

#include <OpenSG/OSGNode.h>

class qxVariantSet;

/// What a capture takes down of nodes and material groups that are off.
namespace qxNodeActivity {

/// See qxVariants::checkAndSetNodeActive.
bool goesOnBelow(const osg::NodePtr &node, qxVariantSet *set, bool captureNodes, bool notify);
/// Records in the set's script whether the material of that group is ignored.
void recordIgnored(const osg::NodePtr &node, qxVariantSet &set);

} // namespace qxNodeActivity
