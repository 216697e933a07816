#pragma once

#include <OpenSG/OSGVector.h>

#include <cmath>
#include <cstdint>

/// Numbers from 0 to below 1 for one sample of a pixel, evenly spread over the samples of that
/// pixel. They depend on the place in the picture and on nothing else.
class qxSampler {
public:
    qxSampler(std::uint32_t pixel, std::uint32_t sample) : m_pixel(pixel), m_sample(sample) {}

    float next() { return shifted(0.6180339887498949); }
    /// Two that belong together, spread evenly over the square.
    osg::Vec2f nextPair()
    {
        const float x = shifted(0.7548776662466927);
        return osg::Vec2f(x, shifted(0.5698402909980532));
    }

private:
    /// A step sequence that starts somewhere else in each pixel and for each use.
    float shifted(double step)
    {
        const double value = hashed(m_pixel, m_use++) + m_sample * step;
        return float(value - std::floor(value)) * 0.99999994f;
    }

    /// From 0 to below 1; a finaliser of integer hashes.
    static double hashed(std::uint32_t a, std::uint32_t b)
    {
        std::uint32_t x = a * 0x9E3779B1u + b * 0x85EBCA77u + 0x165667B1u;
        x = (x ^ (x >> 16)) * 0x7FEB352Du;
        x = (x ^ (x >> 15)) * 0x846CA68Bu;
        return double(x ^ (x >> 16)) / 4294967296.0;
    }

    std::uint32_t m_pixel;
    std::uint32_t m_sample;
    std::uint32_t m_use = 0;
};
