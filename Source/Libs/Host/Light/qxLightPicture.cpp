#include "Light/qxLightPicture.h"

osg::Vec3f qxLightPicture::at(const osg::Vec2f &place) const
{
    const float x = (place[0] - std::floor(place[0])) * float(width) - 0.5f;
    const float y = std::clamp(place[1] * float(height) - 0.5f, 0.0f, float(height - 1));
    const float left = std::floor(x);
    const int low = int(y);
    const int first = left < 0.0f ? width - 1 : std::min(int(left), width - 1);
    const int second = first + 1 < width ? first + 1 : 0;
    const int next = std::min(low + 1, height - 1);
    return qxMixed(qxMixed(at(first, low), at(second, low), x - left),
                   qxMixed(at(first, next), at(second, next), x - left), y - float(low));
}

qxLightPicture qxLightPicture::halved() const
{
    qxLightPicture result(std::max(1, width / 2), std::max(1, height / 2));
    for (int y = 0; y < result.height; ++y) {
        const int low = y * height / result.height;
        const int high = (y + 1) * height / result.height;
        for (int x = 0; x < result.width; ++x) {
            const int left = x * width / result.width;
            const int right = (x + 1) * width / result.width;
            osg::Vec3f sum;
            float all = 0.0f;
            for (int j = low; j < high; ++j) {
                const float share = solidAngle(j);
                for (int i = left; i < right; ++i)
                    sum += at(i, j) * share;
                all += share * float(right - left);
            }
            result.at(x, y) = sum * (1.0f / all);
        }
    }
    return result;
}

float qxLightPicture::solidAngle(int row) const
{
    const float step = qxPi / float(height);
    // As a product: the difference of two cosines has few digits near the poles.
    const float zone = 2.0f * std::sin((float(row) + 0.5f) * step) * std::sin(0.5f * step);
    return zone * 2.0f * qxPi / float(width);
}

osg::Vec3f qxLightPicture::directionOf(const osg::Vec2f &place)
{
    const float around = (place[0] - 0.5f) * 2.0f * qxPi;
    const float down = place[1] * qxPi;
    const float radius = std::sin(down);
    return osg::Vec3f(radius * std::cos(around), std::cos(down), radius * std::sin(around));
}

osg::Vec2f qxLightPicture::placeOf(const osg::Vec3f &direction)
{
    const float around = std::atan2(direction[2], direction[0]);
    return osg::Vec2f(0.5f + around * (0.5f / qxPi),
                      std::acos(std::clamp(direction[1], -1.0f, 1.0f)) / qxPi);
}
