#pragma once

#include "qxNodeWalk.h"
#include "qxScenegraph.h"

/// qxWalkNodes for the whole scene: the root and what is below it, then the environment.
template <class Visit>
void qxWalkScene(const Visit &visit)
{
    if (qxWalkNodes(qxScenegraph::getRoot(), visit))
        qxWalkNodes(qxScenegraph::environmentGeometrySwitch(), visit);
}
