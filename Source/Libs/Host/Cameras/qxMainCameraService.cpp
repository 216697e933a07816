#include "Cameras/qxMainCameraService.h"

#include "Cameras/qxMainView.h"
#include "qxController.h"
#include "qxNodeUtils.h"

namespace {

/// The one camera of the main view.
constexpr int MainCamera = 1;

/// A camera that was never put anywhere shows nothing: no picture is seen through it.
bool showsSomething(const qxUberCamera &camera)
{
    return camera.fieldOfView > 0 || camera.height > 0;
}

std::string uniqueViewpointName(const std::string &name)
{
    const qxUberCameraPool &pool = *qxUberCameraPool::the();
    std::vector<std::string> existing;
    for (int id = 0; id < pool.count(); ++id)
        existing.push_back(pool.get(id)->name);
    return qxNodeUtils::getUniqueName(name, existing);
}

} // namespace

qxCameraService::~qxCameraService() = default;

qxMainView &qxMainView::the()
{
    static qxMainView view;
    return view;
}

std::string qxMainView::viewpointName() const
{
    const qxUberCamera *const found = qxUberCameraPool::the()->get(viewpoint);
    return found ? found->name : std::string();
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
    if (home == 1)
        setHomeViewpoint(id, home);
    if (redraw == 1)
        qxController::updateRender(false);
}

int qxMainCameraService::getActiveCamera() const
{
    return showsSomething(qxMainView::the().camera) ? MainCamera : 0;
}

int qxMainCameraService::getCopyOf(int camera) const
{
    return camera == getActiveCamera() ? camera : 0;
}

int qxMainCameraService::getSourceOf(int camera) const
{
    return camera == getActiveCamera() ? camera : 0;
}

int qxMainCameraService::createViewpoint(const std::string &name, int source)
{
    if (source == 0 || source != getActiveCamera())
        return -1;
    qxUberCamera camera = qxMainView::the().camera;
    camera.name = uniqueViewpointName(name);
    return qxUberCameraPool::the()->add(camera);
}

void qxMainCameraService::setHomeViewpoint(int id, int home)
{
    const qxUberCamera *camera = qxUberCameraPool::the()->get(id);
    if (!camera)
        return;
    qxMainView &view = qxMainView::the();
    view.home = *camera;
    view.hasHome = home == 1;
}
