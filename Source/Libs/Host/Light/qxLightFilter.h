#pragma once

#include "Light/qxLightPicture.h"

/// Computes what rough surfaces show of a picture: mirrors by filtered importance sampling
/// (Krivanek, Colbert: Real-time Shading with Filtered Importance Sampling, 2008), with the normal
/// as the direction of the eye (Karis: Real Shading in Unreal Engine 4, 2013, "Image-Based
/// Lighting").
class qxLightFilter {
public:
    /// `smaller` are the picture halved again and again. Both must live as long as the filter.
    qxLightFilter(const qxLightPicture &picture, const std::vector<qxLightPicture> &smaller);

    /// By the reflected direction, at equal steps of roughness up to 1.
    std::vector<qxLightPicture> mirrored() const;
    /// By the normal: what a white diffuse surface reflects.
    qxLightPicture scattered() const;

private:
    /// A place of the picture or of a smaller one, relative to a direction.
    struct Tap {
        osg::Vec2f place;
        const qxLightPicture *picture;
        float weight;
    };
    typedef std::vector<Tap> Taps;

    Taps tapsOf(float alpha, float down) const;
    qxLightPicture filtered(float roughness, int height) const;
    const qxLightPicture &levelFor(float solidAngle) const;

    const qxLightPicture &m_picture;
    const std::vector<qxLightPicture> &m_smaller;
};
