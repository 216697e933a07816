#pragma once

#include "Render/qxViewSettings.h"

#include <cstdint>
#include <functional>
#include <vector>

/// What a picture is made with.
struct qxPictureSettings {
    /// What `quality` may be besides a number of samples.
    enum Quality { Best = -1, Quick = 0 };

    static constexpr int largest = 16384; ///< pixels that a side may have

    int width = 264; ///< in pixels, from 1 to `largest`
    int height = 256; ///< as the width
    /// Quick: one sample per pixel in hard light. Above 0: ray tracing with so many samples per
    /// pixel, soft shadows and reflections. Best: ray tracing with as many samples as help.
    int quality = Quick;
    qxViewSettings view = qxViewSettings::the(); ///< light and background
    /// 0 for as many as the program uses; the picture is the same with any number.
    int threads = 0;
};

/// A finished picture.
struct qxPicture {
    /// What is to be seen of the scene, or why nothing is.
    enum Content {
        Shown, ///< something, if it be fully translucent; also when the scene is hidden on purpose
        Hidden, ///< there is nothing that is shown
        LookedPast, ///< the scene is outside of the view
        FromBehind, ///< surfaces that have only a front
        CutAway, ///< by the clipping plane or the planes of the camera
        TooSmall ///< the scene falls between the pixels
    };

    /// Hears how many of the `total` steps of making one are done, in the thread that renders;
    /// first with 0. Answers false to cancel. Whatever it does to the scene shows in the next
    /// picture only.
    typedef std::function<bool(int done, int total)> Progress;

    /// Whether there is no picture: it was cancelled or could not be made.
    bool isEmpty() const { return rgba.empty(); }

    int width = 0; ///< in pixels
    int height = 0; ///< in pixels
    std::vector<std::uint8_t> rgba; ///< four bytes per pixel, bottom row first: sRGB that
                                    ///< is not multiplied by alpha, and alpha, which is 255 but
                                    ///< for qxViewSettings::None
    Content content = Shown; ///< what `rgba` shows
};
