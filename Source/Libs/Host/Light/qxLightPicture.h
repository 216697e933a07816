#pragma once

#include "Render/qxRenderMath.h"

#include <vector>

/// A picture of the light from all directions. Its width covers the full turn around the y axis,
/// with the direction of the x axis in the middle and that of the z axis right of it; its height
/// goes from straight above, the first row, to straight below.
struct qxLightPicture {
    static constexpr int largest = 16384; ///< pixels of a side, in files

    qxLightPicture() = default;
    /// Without light.
    qxLightPicture(int newWidth, int newHeight)
        : width(newWidth), height(newHeight), light(std::size_t(newWidth) * std::size_t(newHeight))
    {
    }

    bool isEmpty() const { return light.empty(); }
    const osg::Vec3f &at(int x, int y) const { return light[place(x, y)]; }
    osg::Vec3f &at(int x, int y) { return light[place(x, y)]; }
    /// Interpolated between the pixels; `place` goes from 0 to 1, `x` goes around.
    osg::Vec3f at(const osg::Vec2f &place) const;
    /// Half as wide and high, with the same light in all.
    qxLightPicture halved() const;
    /// How much of all directions a pixel of a row shows, in steradians.
    float solidAngle(int row) const;
    /// The direction of a place, and the other way round.
    static osg::Vec3f directionOf(const osg::Vec2f &place);
    static osg::Vec2f placeOf(const osg::Vec3f &direction);

    int width = 0; ///< in pixels
    int height = 0; ///< in pixels
    std::vector<osg::Vec3f> light; ///< by rows

private:
    std::size_t place(int x, int y) const
    {
        return std::size_t(y) * std::size_t(width) + std::size_t(x);
    }
};
