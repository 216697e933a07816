#pragma once

#include "Render/qxRenderer.h"

#include <memory>

/// The picture of a view while its camera moves: each next one is made in the time that a fluent
/// movement allows. This machine decides how large it is, and how many of its pixels are drawn
/// anew; the others are those of the pictures before, seen from the new place (qxReprojection).
class qxMovingPicture {
public:
    qxMovingPicture();
    qxMovingPicture(const qxMovingPicture &) = delete;
    ~qxMovingPicture();

    /// Of at most the size in the settings; empty as that of qxRenderer::render.
    qxPicture next(qxRenderer &renderer, const qxPictureSettings &settings);
    /// The next one in full, to be drawn in any thread; meanwhile no other one is asked for.
    qxRenderer::Drawing whole(qxRenderer &renderer, const qxPictureSettings &settings);
    /// The next one comes without those before it.
    void forget();
    /// The share of all pixels in that size that was drawn for the last one, from 0 to 1.
    float share() const { return m_share; }

private:
    float fittingScale(float pixels) const;
    void measure(int pixels);

    std::unique_ptr<qxReprojection> m_memory;
    float m_share = 1;
    float m_scale = 0; ///< of the last picture's width and height; 0 before the first one
    float m_drawTime; ///< of a pixel that is drawn, in seconds
    float m_otherTime; ///< of each pixel
};
