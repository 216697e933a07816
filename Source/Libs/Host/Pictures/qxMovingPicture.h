#pragma once

#include "Render/qxRenderer.h"

#include <memory>

/// The picture of a view while its camera moves: each next one is made in the time that a fluent
/// movement allows, of as many pixels as this machine can draw in it; the others are those of the
/// pictures before, seen from the new place (qxReprojection).
class qxMovingPicture {
public:
    qxMovingPicture();
    qxMovingPicture(const qxMovingPicture &) = delete;
    ~qxMovingPicture();

    /// Empty as that of qxRenderer::render.
    qxPicture next(qxRenderer &renderer, const qxPictureSettings &settings);
    /// The next one in full, to be drawn in any thread; meanwhile no other one is asked for.
    qxRenderer::Drawing whole(qxRenderer &renderer, const qxPictureSettings &settings);
    /// The share of its pixels that was drawn for the last one, from 0 to 1.
    float share() const { return m_share; }

private:
    int affordable(int pixels) const;

    std::unique_ptr<qxReprojection> m_memory;
    float m_share = 1;
    double m_pixelTime = 0; ///< of a drawn pixel, in seconds; 0 before the first picture
    double m_otherTime = 0; ///< of a picture, without drawing
};
