#include "qxUberCameraPool.h"

qxUberCameraPool *qxUberCameraPool::the()
{
    static qxUberCameraPool pool;
    return &pool;
}

int qxUberCameraPool::findViewpoint(const std::string &name) const
{
    const auto found = m_ids.find(name);
    return found == m_ids.end() ? -1 : found->second;
}

const qxUberCamera *qxUberCameraPool::get(int id) const
{
    return id >= 0 && id < count() ? &m_cameras[std::size_t(id)] : nullptr;
}

int qxUberCameraPool::add(const qxUberCamera &camera)
{
    const int id = count();
    m_cameras.push_back(camera);
    if (!camera.name.empty())
        m_ids.emplace(camera.name, id);
    return id;
}

void qxUberCameraPool::rename(int id, const std::string &name)
{
    if (!get(id))
        return;
    m_cameras[std::size_t(id)].name = name;
    m_ids.clear();
    for (int each = 0; each < count(); ++each) {
        if (!get(each)->name.empty())
            m_ids.emplace(get(each)->name, each);
    }
}

void qxUberCameraPool::clear()
{
    m_cameras.clear();
    m_ids.clear();
}

std::string qxUberCameraUtils::getName(const qxUberCamera *camera)
{
    return camera ? camera->name : std::string();
}
