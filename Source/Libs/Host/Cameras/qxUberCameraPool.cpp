#include "qxUberCameraPool.h"

qxUberCameraPool *qxUberCameraPool::the()
{
    static qxUberCameraPool pool;
    return &pool;
}

int qxUberCameraPool::findViewpoint(const std::string &name) const
{
    for (int id = 0; id < count(); ++id) {
        if (!name.empty() && m_cameras[std::size_t(id)].name == name)
            return id;
    }
    return -1;
}

const qxUberCamera *qxUberCameraPool::get(int id) const
{
    return id >= 0 && id < count() ? &m_cameras[std::size_t(id)] : nullptr;
}

int qxUberCameraPool::add(const qxUberCamera &camera)
{
    m_cameras.push_back(camera);
    return count() - 1;
}

void qxUberCameraPool::clear()
{
    m_cameras.clear();
}

std::string qxUberCameraUtils::getName(const qxUberCamera *camera)
{
    return camera ? camera->name : std::string();
}
