#include "Internal/qxSceneNames.h"

#include "Internal/qxText.h"

#include "qxAnimManager.h"
#include "qxLights.h"
#include "qxNodeUtils.h"

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
