#pragma once

#include "Render/qxRenderMath.h"

#include <OpenSG/OSGLight.h>
#include <OpenSG/OSGMatrix.h>

#include <vector>

class qxDigest;

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

    bool operator==(const qxRenderLight &other) const;
    /// All that is known of it.
    void addTo(qxDigest &digest) const;

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
    bool operator==(const qxRenderLights &other) const
    {
        return on == other.on && off == other.off;
    }

    /// Adds a light, of the host's own or of the scene graph's kinds; each lights everything.
    void add(const osg::LightPtr &core, const osg::Matrix &toWorld);
    /// Scales all lights so that their sum in the middle of the scene fits into a picture, like the
    /// exposure of a camera. Lights that are off count as well. Does nothing if the sum is in range
    /// already.
    void expose(const qxBox &scene);
    /// The factor by which that scales them; 1 when it does nothing.
    float exposureFactor(const qxBox &scene) const;
};
