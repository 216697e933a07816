#include "Internal/Scene/qxSceneNames.h"

#include "Internal/Registry/qxText.h"

#include "qxAnimManager.h"
#include "qxLights.h"
#include "qxNodeUtils.h"

#include <set>
#include <string>

std::weak_ptr<qxSceneNames::Gathered> qxSceneNames::s_shared;

qxSceneNames::qxSceneNames() : m_gathered(s_shared.lock())
{
    if (!m_gathered)
        s_shared = m_gathered = std::make_shared<Gathered>();
}

bool qxSceneNames::hasLight(const QString &name) const
{
    if (!m_gathered->lights) {
        m_gathered->lights.emplace();
        for (const qxNodePtr &light : qxLights::getLights())
            m_gathered->lights->insert(qxText::fromUtf8(qxNodeUtils::getName(light)));
    }
    return m_gathered->lights->contains(name);
}

bool qxSceneNames::hasClip(const QString &name) const
{
    if (!m_gathered->clips) {
        m_gathered->clips.emplace();
        std::set<std::string> clips;
        qxAnimManager::the()->getBlockAndClipNames(clips);
        for (const std::string &clip : clips)
            m_gathered->clips->insert(qxText::fromUtf8(clip));
    }
    return m_gathered->clips->contains(name);
}
