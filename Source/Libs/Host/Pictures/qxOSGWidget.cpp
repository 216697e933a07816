#include "qxOSGWidget.h"

namespace {

bool &isRaytracing()
{
    static bool on = false;
    return on;
}

} // namespace

qxOSGWidget::~qxOSGWidget() = default;

bool qxOSGWidget::getRaytracing()
{
    return isRaytracing();
}

void qxOSGWidget::setRaytracing(bool on)
{
    isRaytracing() = on;
}
