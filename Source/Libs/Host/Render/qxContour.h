#pragma once

#include "Render/qxRenderCamera.h"
#include "Render/qxRenderClipping.h"
#include "Render/qxRenderGroup.h"

/// The line along which the clipping plane cuts the surfaces, drawn for a picture.
class qxContour {
public:
    /// Empty without a contour to show.
    qxContour(const qxRenderGroup &group, const qxRenderClipping &clipping,
              const qxRenderCamera &camera, int width, int height);

    struct Pixel {
        float cover = 0; ///< share of the pixel that the line covers
        float distance = 0; ///< along the pixel's ray
    };
    Pixel at(int x, int y) const;

private:
    struct Sheet;

    int m_width;
    std::vector<Pixel> m_pixels;
};
