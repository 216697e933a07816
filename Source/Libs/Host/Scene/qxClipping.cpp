#include "Scene/qxClipping.h"

#include <tuple>

qxClipping &qxClipping::the()
{
    static qxClipping clipping;
    return clipping;
}

bool qxClipping::operator==(const qxClipping &other) const
{
    const auto all = [](const qxClipping &each) {
        return std::tie(each.enabled, each.position, each.normal, each.invert, each.hideScene,
                        each.showPlane, each.planeColor, each.showGrid, each.gridColor,
                        each.showContour, each.contourColor, each.contourWidth);
    };
    return all(*this) == all(other);
}
