#pragma once

#include "Render/qxRenderMath.h"

#include <OpenSG/OSGLight.h>
#include <OpenSG/OSGMatrix.h>

#include <vector>

/// A light in world coordinates.
struct qxRenderLight {
    enum Kind { Point, Spot, Directional };

    /// What arrives at a place of a surface.
    struct Arrival {
        osg::Vec3f toLight; ///< of length 1
        float distance; ///< infinite for directional lights
        osg::Vec3f light; ///< were it to face the light; null where the light does not shine,
                          ///< behind it too
    };
    Arrival arrivalAt(const osg::Vec3f &place, const osg::Vec3f &normal) const;

    Kind kind = Directional;
    osg::Vec3f position;
    osg::Vec3f direction = osg::Vec3f(0, 0, -1); ///< in which it shines, of length 1
    osg::Vec3f light; ///< candela for point and spot lights, else lux
    float range = 0; ///< 0 for no limit
    float innerCosine = 1; ///< of a spot's half angles
    float outerCosine = -1;
    float exponent = 0; ///< how a spot fades towards its edge, beside the angles
    /// By distance: 1 / (constant + linear * d + quadratic * d * d).
    osg::Vec3f attenuation = osg::Vec3f(0, 0, 1);
    bool shadow = true;

private:
    bool isOutOfReach(const osg::Vec3f &way) const;
};

/// The lights of a scene.
struct qxRenderLights {
    std::vector<qxRenderLight> on;
    std::vector<qxRenderLight> off;
    bool isEmpty() const { return on.empty() && off.empty(); }

    /// Takes a light over, the host's own and those of the scene graph; each lights everything.
    void add(const osg::LightPtr &core, const osg::Matrix &toWorld);
    /// Makes all lights together as strong as a picture can show in the middle of what they light,
    /// as a photographer sets the exposure: with all lights on, whether they are or not. Lights
    /// that are within the range already stay as they are.
    void expose(const qxBox &scene);
};
