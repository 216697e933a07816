#include "qxCameraService.h"

#include "Cameras/qxMainCameraService.h"
#include "Cameras/qxMainView.h"
#include "qxController.h"

qxCameraService::~qxCameraService() = default;

qxMainView &qxMainView::the()
{
    static qxMainView view;
    return view;
}

int qxMainCameraService::findViewpoint(const std::string &name) const
{
    return qxUberCameraPool::the()->findViewpoint(name);
}

void qxMainCameraService::moveToViewpoint(int id, int, int home, int redraw)
{
    const qxUberCamera *camera = qxUberCameraPool::the()->get(id);
    if (!camera)
        return;
    qxMainView &view = qxMainView::the();
    view.camera = *camera;
    view.viewpoint = id;
    if (home == 1) {
        view.home = *camera;
        view.hasHome = true;
    }
    if (redraw == 1)
        qxController::updateRender(false);
}
