#pragma once

#include "Light/qxEnvironmentLight.h"
#include "Render/qxRenderMath.h"
#include "Render/qxViewSettings.h"

class qxRenderScene;

/// What lights the scene in pictures, and what is seen around it: for those who draw it by other
/// means.
struct qxSceneLighting {
    /// Of the scene as it is now.
    static qxSceneLighting of(const qxRenderScene &scene, const qxViewSettings &view);

    qxEnvironmentLight sky = qxEnvironmentLight::studio(); ///< the light from all around
    bool showsSky = false; ///< it is what is seen behind the scene and the environment's nodes
    ///@{
    /// Otherwise this gradient is; sRGB.
    osg::Color3f top;
    osg::Color3f bottom;
    ///@}
    float lightFactor = 1; ///< by which all lights of the scene are multiplied
    bool hasGround = false; ///< an invisible ground below the scene shows shadows
    qxBox bounds; ///< around what is shown; empty when nothing is
};
