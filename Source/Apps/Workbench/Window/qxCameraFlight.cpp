#include "qxCameraFlight.h"

#include "Cameras/qxMainView.h"
#include "Render/qxSceneBox.h"
#include "qxCameraService.h"
#include "qxController.h"
#include "qxOrbit.h"
#include "qxScenegraph.h"

#include <OpenSG/OSGQuaternion.h>

#include <algorithm>
#include <cmath>

namespace {

const int flightTime = 450; ///< milliseconds
const int flightStep = 15;

bool isSame(const qxUberCamera &one, const qxUberCamera &other)
{
    return one.toWorld == other.toWorld && one.fieldOfView == other.fieldOfView
        && one.height == other.height;
}

osg::Vec3f axis(const qxUberCamera &camera, osg::UInt32 number)
{
    const osg::Vec4f values = camera.toWorld[number];
    return osg::Vec3f(values[0], values[1], values[2]);
}

float mixed(float from, float to, float share)
{
    return from + (to - from) * share;
}

/// Where a camera looks, as far away as the middle of the scene.
struct Look {
    explicit Look(const qxUberCamera &camera)
    {
        osg::Pnt3f low, high;
        const osg::DynamicVolume box = qxSceneBox(qxScenegraph::getRoot());
        osg::Pnt3f middle(0, 0, 0);
        if (!box.isEmpty()) {
            box.getBounds(low, high);
            middle = low + (high - low) * 0.5f;
        }
        distance = qxOrbit::depth(camera, middle);
        point = axis(camera, 3) - axis(camera, 2) * distance;
    }

    osg::Vec3f point;
    float distance;
};

/// The camera on its way around what both of them look at.
qxUberCamera between(const qxUberCamera &from, const qxUberCamera &to, float share)
{
    const Look start(from);
    const Look end(to);
    qxUberCamera camera = to;
    osg::Quaternion::slerp(osg::Quaternion(from.toWorld), osg::Quaternion(to.toWorld), share)
        .getValue(camera.toWorld);
    const float distance = start.distance * std::pow(end.distance / start.distance, share);
    const osg::Vec3f eye =
        start.point * (1 - share) + end.point * share + axis(camera, 2) * distance;
    camera.toWorld.setTranslate(eye[0], eye[1], eye[2]);
    camera.fieldOfView = mixed(from.fieldOfView, to.fieldOfView, share);
    camera.height = mixed(from.height, to.height, share);
    return camera;
}

} // namespace

qxCameraFlight::qxCameraFlight(QObject *parent) : QObject(parent)
{
    m_timer.setInterval(flightStep);
    m_timer.callOnTimeout(this, &qxCameraFlight::step);
}

void qxCameraFlight::flyTo(int viewpoint, bool isSmooth)
{
    const qxUberCamera *const to = qxUberCameraPool::the()->get(viewpoint);
    if (!to)
        return;
    m_target = viewpoint;
    m_from = m_last = qxMainView::the().camera;
    // A perspective does not become a parallel projection step by step.
    if (!isSmooth || (to->fieldOfView > 0) != (m_from.fieldOfView > 0))
        return arrive();
    m_time.start();
    m_timer.start();
}

int qxCameraFlight::target() const
{
    if (m_timer.isActive() && isSame(qxMainView::the().camera, m_last))
        return m_target;
    const qxUberCameraPool &pool = *qxUberCameraPool::the();
    const qxMainView &view = qxMainView::the();
    const qxUberCamera *const known = pool.get(view.viewpoint);
    if (known && isSame(*known, view.camera))
        return view.viewpoint;
    for (int id = 0; id < pool.count(); ++id) {
        if (isSame(*pool.get(id), view.camera))
            return id;
    }
    return -1;
}

void qxCameraFlight::step()
{
    qxMainView &view = qxMainView::the();
    const qxUberCamera *const to = qxUberCameraPool::the()->get(m_target);
    if (!to || !isSame(view.camera, m_last))
        return m_timer.stop();
    const float time = float(m_time.elapsed()) / flightTime;
    if (time >= 1)
        return arrive();
    const float share = time * time * (3 - 2 * time); // It starts and stops gently.
    view.camera = m_last = between(m_from, *to, share);
    view.viewpoint = -1;
    qxController::updateRender(false);
}

void qxCameraFlight::arrive()
{
    m_timer.stop();
    if (auto *const service = qxKernelServiceFactory::the()->getService<qxCameraService>())
        service->moveToViewpoint(m_target, 0, 0, 1);
}
