#include "qxAnimManager.h"

#include "Animation/qxAnimationPlayer.h"
#include "Cameras/qxRunningClips.h"
#include "qxController.h"
#include "qxMessage.h"

#include <algorithm>

namespace {

std::vector<std::string> &running()
{
    static std::vector<std::string> names;
    return names;
}

void start(qxMessage &message)
{
    const std::string *name = message.get<std::string>("animation-name");
    std::set<std::string> known;
    qxAnimManager::the()->getBlockAndClipNames(known);
    if (!name || known.count(*name) == 0)
        return;
    running().erase(std::remove(running().begin(), running().end(), *name), running().end());
    running().push_back(*name);
    qxAnimationPlayer::the().start(*name);
}

} // namespace

qxAnimManager *qxAnimManager::the()
{
    static qxAnimManager manager;
    return &manager;
}

void qxAnimManager::getBlockAndClipNames(std::set<std::string> &names) const
{
    for (const std::string &name : m_clips) {
        if (!name.empty())
            names.insert(name);
    }
}

void qxAnimManager::setClips(const std::vector<std::string> &names)
{
    m_clips = names;
}

qxRunningClips::qxRunningClips()
{
    qxController::addCB("animationStart", &start);
}

qxRunningClips::~qxRunningClips()
{
    qxController::subCB("animationStart", &start);
}

const std::vector<std::string> &qxRunningClips::names()
{
    return running();
}

void qxRunningClips::clear()
{
    running().clear();
}
