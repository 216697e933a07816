#pragma once

#include <functional>

/// Where the progress of a rendering is shown. A program that has a place for it says so here.
class qxPictureProgress {
public:
    /// Told which share of a picture is done, from 0 to 1, which comes at the end even when the
    /// picture failed; false ends the rendering.
    typedef std::function<bool(double share)> Display;

    /// The display from now on; an empty one shows nothing.
    static void setDisplay(const Display &display);
    static const Display &display();
};
