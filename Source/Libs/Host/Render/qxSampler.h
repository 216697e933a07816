#pragma once

#include <OpenSG/OSGVector.h>

#include <array>
#include <cstdint>

/// What a lower byte (0 to 255) and an upper one (256 to 511) add to the second dimension of
/// qxSampler's sequence.
constexpr std::array<std::uint32_t, 512> qxSecondOfBytes()
{
    std::array<std::uint32_t, 512> result = {};
    for (std::uint32_t i = 0; i < 512; ++i) {
        const std::uint32_t index = i < 256 ? i : (i - 256) << 8;
        for (std::uint32_t bit = 0, step = 1; bit < 16; ++bit, step ^= step << 1)
            result[i] ^= (index >> bit & 1u) ? step : 0u;
    }
    return result;
}

/// Random numbers from 0 to below 1 for one sample of a pixel. Over the samples of a pixel the
/// numbers of one use cover the square evenly; those of different uses are independent. They depend
/// only on the place in the picture.
class qxSampler {
public:
    qxSampler(std::uint32_t pixel, std::uint32_t sample) : m_pixel(pixel), m_sample(sample) {}

    float next() { return nextPair()[0]; }
    osg::Vec2f nextPair()
    {
        const std::uint32_t seed = hashed(m_pixel ^ hashed(m_use++));
        const std::uint32_t index = mirrored(shuffled(mirrored(m_sample), seed)) & 0xFFFFu;
        return osg::Vec2f(asNumber(mirrored(shuffled(index, hashed(seed + 1)))),
                          asNumber(mirrored(shuffled(second(index), hashed(seed + 2)))));
    }

    /// For a way that is followed besides: its numbers and those of this one are independent.
    qxSampler branch() const
    {
        qxSampler result = *this;
        result.m_use += 1u << 16;
        return result;
    }

private:
    static std::uint32_t hashed(std::uint32_t x)
    {
        x = (x ^ (x >> 16)) * 0x7FEB352Du;
        x = (x ^ (x >> 15)) * 0x846CA68Bu;
        return x ^ (x >> 16);
    }

    /// With its bits in the opposite order.
    static std::uint32_t mirrored(std::uint32_t x)
    {
        x = (x >> 16) | (x << 16);
        x = ((x & 0xFF00FF00u) >> 8) | ((x & 0x00FF00FFu) << 8);
        x = ((x & 0xF0F0F0F0u) >> 4) | ((x & 0x0F0F0F0Fu) << 4);
        x = ((x & 0xCCCCCCCCu) >> 2) | ((x & 0x33333333u) << 2);
        return ((x & 0xAAAAAAAAu) >> 1) | ((x & 0x55555555u) << 1);
    }

    /// A random permutation in which each bit depends only on the lower ones. On numbers with
    /// mirrored bits it swaps halves, halves of halves and so on, so an even distribution stays
    /// even.
    static std::uint32_t shuffled(std::uint32_t x, std::uint32_t seed)
    {
        x += seed;
        x ^= x * 0x6C50B47Cu;
        x ^= x * 0xB82F1E52u;
        x ^= x * 0xC7AFE638u;
        return x ^ (x * 0x8D22F6E6u);
    }

    /// The second dimension of the even sequence whose first one is the mirrored index, of 16 bits;
    /// with its bits mirrored in turn.
    static std::uint32_t second(std::uint32_t index)
    {
        static constexpr std::array<std::uint32_t, 512> parts = qxSecondOfBytes();
        return parts[index & 0xFFu] ^ parts[256 + (index >> 8)];
    }

    static float asNumber(std::uint32_t x) { return float(x >> 8) / 16777216.0f; }

    std::uint32_t m_pixel;
    std::uint32_t m_sample;
    std::uint32_t m_use = 0;
};
