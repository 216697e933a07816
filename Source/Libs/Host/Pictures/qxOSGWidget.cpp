#include "qxOSGWidget.h"

#include "Pictures/qxMainGlView.h"

namespace {

bool &isRaytracing()
{
    static bool on = false;
    return on;
}

} // namespace

qxOSGWidget::~qxOSGWidget() = default;

qxOSGWidget *qxOSGWidget::getMGLW(int number)
{
    return number == -1 || number == 0 ? qxMainGlView::the() : nullptr;
}

bool qxOSGWidget::getRaytracing()
{
    return isRaytracing();
}

void qxOSGWidget::setRaytracing(bool on)
{
    isRaytracing() = on;
}

void qxOSGWidget::cancelAntialiasing()
{
    if (qxMainGlView *view = qxMainGlView::the())
        view->cancelRefining();
}
