#include "Pictures/qxPictureProgress.h"

namespace {

qxPictureProgress::Display &currentDisplay()
{
    static qxPictureProgress::Display display;
    return display;
}

} // namespace

void qxPictureProgress::setDisplay(const Display &display)
{
    currentDisplay() = display;
}

const qxPictureProgress::Display &qxPictureProgress::display()
{
    return currentDisplay();
}
