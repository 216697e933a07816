#include "qxOSGWidget.h"

// The host's pictures are complete as soon as they are shown: there is no refining to end.
void qxOSGWidget::cancelAntialiasing() {}
