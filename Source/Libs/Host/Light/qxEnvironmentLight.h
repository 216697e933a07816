#pragma once

#include "Light/qxLightPicture.h"

#include <memory>

class qxDigest;

/// The light that surrounds a scene. A small value: copies share what was computed once. Many
/// threads may ask at once. Directions have length 1.
class qxEnvironmentLight {
public:
    /// The default: a photographer's studio with soft boxes.
    static qxEnvironmentLight studio();
    /// Light that is not finite, or negative, counts as none. The first question takes some
    /// 50 ms.
    explicit qxEnvironmentLight(qxLightPicture picture);

    /// The same light, brighter or darker.
    qxEnvironmentLight scaled(float factor) const;
    /// The same light, turned around the y axis: to the left, as seen from the middle.
    qxEnvironmentLight turned(float degrees) const;

    /// The light from a direction.
    osg::Vec3f light(const osg::Vec3f &direction) const;
    /// The light from around a direction, as a mirror of that roughness would show it.
    osg::Vec3f mirrored(const osg::Vec3f &direction, float roughness) const;
    /// The light that a white diffuse surface with that normal reflects.
    osg::Vec3f scattered(const osg::Vec3f &normal) const;

    /// A direction and the light from there.
    struct Sample {
        osg::Vec3f direction;
        osg::Vec3f light;
        float density; ///< probability per solid angle that sample() gives this direction
    };
    /// A random direction; bright ones come more often. `place` are random numbers.
    Sample sample(const osg::Vec2f &place) const;
    /// The probability per solid angle of sample().
    float density(const osg::Vec3f &direction) const;

    /// The strongest single light, which would cast the clearest shadow.
    struct Key {
        osg::Vec3f direction; ///< towards it
        osg::Vec3f light; ///< that a white diffuse surface reflects of it, facing it; part of
                          ///< scattered(), null without such a light
    };
    Key key() const;

    /// Its picture, and how bright and how far turned it is. The first call is the slowest.
    void addTo(qxDigest &digest) const;

private:
    struct Map;

    /// A direction of the picture instead of the scene, and the other way round.
    osg::Vec3f inPicture(const osg::Vec3f &direction) const;
    osg::Vec3f inScene(const osg::Vec3f &direction) const;

    std::shared_ptr<const Map> m_map;
    float m_factor = 1;
    float m_cosine = 1; ///< of the angle by which it is turned
    float m_sine = 0;
};
