#pragma once

#include "Light/qxLightPicture.h"

/// Random directions, brighter ones more often: a piecewise-constant distribution over the
/// picture's pixels, as in Pharr, Jakob, Humphreys: Physically Based Rendering, section "Infinite
/// area lights".
class qxLightSampler {
public:
    explicit qxLightSampler(const qxLightPicture &picture);

    struct Sample {
        osg::Vec2f place; ///< in the picture, from 0 to 1
        float density; ///< probability per solid angle
    };
    /// `random` are two numbers from 0 to below 1.
    Sample sample(const osg::Vec2f &random) const;
    /// The density at a place; positive wherever there is light.
    float density(const osg::Vec2f &place) const;

private:
    std::size_t cell(int x, int y) const
    {
        return std::size_t(y) * std::size_t(m_width) + std::size_t(x);
    }

    int m_width;
    int m_height;
    std::vector<float> m_rows; ///< probability of the rows up to each one
    std::vector<float> m_columns; ///< for each row the probability of its cells up to each one
    std::vector<float> m_density; ///< of the cells
};
