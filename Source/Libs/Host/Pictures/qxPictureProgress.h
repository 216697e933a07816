#pragma once

#include <functional>

/// The display for the progress of a rendering, set by the program.
class qxPictureProgress {
public:
    /// Gets the share of a picture that is done, from 0 to 1; 1 comes at the end even if the
    /// picture failed. Returns false to cancel the rendering.
    typedef std::function<bool(double share)> Display;

    ///@{
    /// The display of all renderings; an empty one shows nothing. None at start.
    static void setDisplay(const Display &display);
    static const Display &display();
    ///@}
};
