#include "Internal/qxSceneNames.h"

#include "Internal/qxText.h"

#include "qxAnimManager.h"
#include "qxLights.h"
#include "qxNodeUtils.h"
#include "qxOverlays.h"
#include "qxUberCameraPool.h"

#include <set>
#include <string>

bool qxSceneNames::hasLight(const QString &name)
{
    if (!m_lights) {
        m_lights.emplace();
        for (const qxNodePtr &light : qxLights::getLights())
            m_lights->insert(qxText::fromUtf8(qxNodeUtils::getName(light)));
    }
    return m_lights->contains(name);
}

bool qxSceneNames::hasClip(const QString &name)
{
    if (!m_clips) {
        m_clips.emplace();
        std::set<std::string> clips;
        qxAnimManager::the()->getBlockAndClipNames(clips);
        for (const std::string &clip : clips)
            m_clips->insert(qxText::fromUtf8(clip));
    }
    return m_clips->contains(name);
}

bool qxSceneNames::hasViewpoint(const QString &name)
{
    if (!m_viewpoints) {
        m_viewpoints.emplace();
        const qxUberCameraPool &pool = *qxUberCameraPool::the();
        for (int id = 0; id < pool.count(); ++id)
            m_viewpoints->insert(qxText::fromUtf8(qxUberCameraUtils::getName(pool.get(id))));
        m_viewpoints->remove(QString()); // no viewpoint at all is found by it
    }
    return m_viewpoints->contains(name);
}

std::vector<qxNodePtr> qxSceneNames::overlays(const QString &name)
{
    if (!m_overlays) {
        m_overlays.emplace();
        const qxNodePtr root = qxOverlays::getPoolRoot();
        for (const qxNodePtr &node : qxNodeUtils::getSubTreeNodes(root)) {
            const QString own = qxText::fromUtf8(qxNodeUtils::getName(node));
            if (node != root && !own.isEmpty())
                (*m_overlays)[own].push_back(node);
        }
    }
    return m_overlays->value(name);
}
