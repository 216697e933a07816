// Viewpoints, clips and poses: the pools, and the services that the module looks up.
#include "Services/services.h"
#include "qxAnimManager.h"
#include "qxCameraService.h"
#include "qxController.h"
#include "qxMessage.h"
#include "qxNodeUtils.h"
#include "qxNodeWalk.h"
#include "qxTransformService.h"
#include "scene.h"

#include <OpenSG/OSGTransform.h>

#include <iostream>

namespace {

/// Those of the node, none for a node without.
const Scene::Poses &posesOf(const osg::NodePtr &node)
{
    static const Scene::Poses none;
    const auto &all = Scene::the().poses;
    const auto found = all.find(qxNodePtr(node).getID());
    return found == all.end() ? none : found->second;
}

/// There is one camera, which has the id 1. It is stored before anything moves it, so it is its own
/// copy. Nobody can press "home" here.
class CameraService : public qxCameraService {
public:
    int findViewpoint(const std::string &name) const override
    {
        return qxUberCameraPool::the()->findViewpoint(name);
    }
    void moveToViewpoint(int id, int, int, int) override // at once: a console shows no flight
    {
        if (const qxUberCamera *viewpoint = qxUberCameraPool::the()->get(id))
            Scene::the().camera = *viewpoint;
    }
    int getActiveCamera() const override { return 1; }
    int getCopyOf(int camera) const override { return camera == 1; }
    int getSourceOf(int camera) const override { return camera == 1; }
    int createViewpoint(const std::string &name, int source) override
    {
        qxUberCamera viewpoint = Scene::the().camera;
        viewpoint.name = numbered(name, [this](auto &each) { return findViewpoint(each) >= 0; });
        return source == 1 ? qxUberCameraPool::the()->add(viewpoint) : -1;
    }
    void setHomeViewpoint(int, int) override {}
};

class TransformService : public qxTransformService {
public:
    void selectTransformVariants(const QList<QRPC::NodeTrafoId> &requests, int, int) override
    {
        for (const QRPC::NodeTrafoId &request : requests) {
            const osg::NodePtr node = qxNodeWithId(request.first);
            if (request.second < 0 || request.second >= qxNodeUtils::getTransformVariantCount(node))
                continue;
            Scene::Poses &poses = Scene::the().poses[request.first];
            poses.selected = request.second;
            const auto transform = coreOf<osg::Transform>(node);
            beginEditCP(transform, osg::Transform::MatrixFieldMask);
            transform->setMatrix(poses.all[std::size_t(poses.selected)].second);
            endEditCP(transform, osg::Transform::MatrixFieldMask);
        }
    }
};

/// "animationStart": a console has nothing that moves, so it says what would.
void startClip(qxMessage &message)
{
    std::set<std::string> clips;
    qxAnimManager::the()->getBlockAndClipNames(clips);
    const std::string *name = message.get<std::string>("animation-name");
    if (name && clips.count(*name))
        std::cout << "  The clip " << *name << " plays.\n";
}

/// "MaterialGetUniqueName": "Switch" is the wanted name, "newname" the reply.
void replyName(qxMessage &message)
{
    if (const std::string *wanted = message.get<std::string>("Switch"))
        message.set("newname", uniqueMaterialName(*wanted));
}

} // namespace

void registerServices()
{
    static CameraService cameras;
    static TransformService transforms;
    qxKernelServiceFactory::the()->registerService<qxCameraService>(&cameras);
    qxKernelServiceFactory::the()->registerService<qxTransformService>(&transforms);
    qxController::addCB("animationStart", startClip);
    qxController::addCB("MaterialGetUniqueName", replyName);
}

qxBaseService::~qxBaseService() = default;
qxCameraService::~qxCameraService() = default;
qxTransformService::~qxTransformService() = default;

qxKernelServiceFactory *qxKernelServiceFactory::the() { return single<qxKernelServiceFactory>(); }

qxBaseService *qxKernelServiceFactory::lookUp(const char *typeName) const
{
    if (!m_services.value(typeName))
        std::cerr << "There is no service " << typeName << '\n';
    return m_services.value(typeName);
}

qxUberCameraPool *qxUberCameraPool::the() { return single<qxUberCameraPool>(); }

int qxUberCameraPool::findViewpoint(const std::string &name) const
{
    const auto found = m_ids.find(name);
    return found == m_ids.end() ? -1 : found->second;
}

const qxUberCamera *qxUberCameraPool::get(int id) const
{
    return id < 0 || id >= count() ? nullptr : &m_cameras[std::size_t(id)];
}

int qxUberCameraPool::add(const qxUberCamera &camera)
{
    m_ids.emplace(camera.name, count());
    m_cameras.push_back(camera);
    return count() - 1;
}

std::string qxUberCameraUtils::getName(const qxUberCamera *camera)
{
    return camera ? camera->name : std::string();
}

qxAnimManager *qxAnimManager::the() { return single<qxAnimManager>(); }
void qxAnimManager::setClips(const std::vector<std::string> &names) { m_clips = names; }
void qxAnimManager::getBlockAndClipNames(std::set<std::string> &names) const
{
    names.insert(m_clips.begin(), m_clips.end());
}

bool qxNodeUtils::hasTransformVariants(const osg::NodePtr &node)
{
    return posesOf(node).all.size();
}
int qxNodeUtils::getTransformVariantCount(const osg::NodePtr &node)
{
    return int(posesOf(node).all.size());
}
int qxNodeUtils::getTransformVariantCurrentIndex(const osg::NodePtr &node)
{
    return posesOf(node).selected;
}
std::string qxNodeUtils::getSelectedTransformVariantName(const osg::NodePtr &node)
{
    return getTransformVariantName(node, posesOf(node).selected);
}

std::string qxNodeUtils::getTransformVariantName(const osg::NodePtr &node, int index)
{
    const auto &all = posesOf(node).all;
    return std::size_t(index) < all.size() ? all[std::size_t(index)].first : std::string();
}

int qxNodeUtils::getTransformVariantIndex(const osg::NodePtr &node, const std::string &name)
{
    int index = 0;
    while (index < getTransformVariantCount(node) && getTransformVariantName(node, index) != name)
        ++index;
    return index < getTransformVariantCount(node) ? index : -1;
}

bool qxNodeUtils::isTransformVariantInState(const osg::NodePtr &node)
{
    const Scene::Poses &poses = posesOf(node);
    return poses.selected >= 0
        && poses.all[std::size_t(poses.selected)].second
        == coreOf<osg::Transform>(node)->getMatrix();
}
