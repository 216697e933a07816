#include "Pictures/qxPictureProgress.h"

namespace {

qxPictureProgress::Display &current()
{
    static qxPictureProgress::Display display;
    return display;
}

} // namespace

void qxPictureProgress::setDisplay(const Display &display)
{
    current() = display;
}

const qxPictureProgress::Display &qxPictureProgress::display()
{
    return current();
}
