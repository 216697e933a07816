#include "Animation/qxAnimationPlayer.h"

#include "qxController.h"

#include <algorithm>
#include <cmath>

qxAnimationPlayer &qxAnimationPlayer::the()
{
    static qxAnimationPlayer player;
    return player;
}

void qxAnimationPlayer::setClips(std::vector<qxAnimationClip> clips)
{
    m_clips = std::move(clips);
    m_tracks.assign(m_clips.size(), Track());
    m_state = Stopped;
    qxPose::the() = qxPose();
    tell();
}

void qxAnimationPlayer::choose(std::size_t clip, bool on)
{
    m_tracks[clip] = {on, 0.0f};
    if (m_state != Stopped)
        show();
    tell();
}

void qxAnimationPlayer::chooseAll()
{
    for (std::size_t clip = 0; clip < m_tracks.size(); ++clip) {
        if (!isChosen(clip))
            choose(clip, true);
    }
}

void qxAnimationPlayer::start(const std::string &name)
{
    const bool isAlone = m_state == Stopped;
    bool isFound = false;
    for (std::size_t clip = 0; clip < m_clips.size(); ++clip) {
        const bool isMeant = m_clips[clip].name == name;
        isFound = isFound || isMeant;
        if (isMeant)
            m_tracks[clip] = {true, 0.0f};
    }
    if (!isFound)
        return;
    for (std::size_t clip = 0; clip < m_clips.size() && isAlone; ++clip)
        m_tracks[clip].isChosen = m_clips[clip].name == name;
    change(Playing);
}

void qxAnimationPlayer::play()
{
    const bool isAtEnd = !m_isLooping && time() >= duration();
    for (Track &track : m_tracks) {
        if (m_state == Stopped || isAtEnd)
            track.time = 0.0f;
    }
    change(Playing);
    show();
}

void qxAnimationPlayer::pause()
{
    if (m_state == Playing)
        change(Paused);
}

void qxAnimationPlayer::stop()
{
    const bool wasShown = !qxPose::the().isEmpty();
    qxPose::the() = qxPose();
    for (Track &track : m_tracks)
        track.time = 0.0f;
    change(Stopped);
    if (wasShown)
        qxController::updateRender(false);
}

void qxAnimationPlayer::seek(float time)
{
    for (std::size_t clip = 0; clip < m_clips.size(); ++clip)
        m_tracks[clip].time = std::clamp(time, 0.0f, m_clips[clip].duration());
    if (m_state == Stopped)
        change(Paused);
    show();
}

void qxAnimationPlayer::advance(float seconds)
{
    if (m_state != Playing)
        return;
    bool goesOn = false;
    for (std::size_t clip = 0; clip < m_clips.size(); ++clip) {
        const float end = m_clips[clip].duration();
        float &time = m_tracks[clip].time;
        time += seconds * m_speed;
        if (time > end)
            time = m_isLooping && end > 0.0f ? std::fmod(time, end) : end;
        goesOn = goesOn || (isChosen(clip) && (m_isLooping ? end > 0.0f : time < end));
    }
    show();
    if (!goesOn)
        change(Paused);
}

std::size_t qxAnimationPlayer::longest() const
{
    std::size_t found = m_clips.size();
    for (std::size_t clip = 0; clip < m_clips.size(); ++clip) {
        if (isChosen(clip)
            && (found == m_clips.size() || m_clips[clip].duration() > m_clips[found].duration()))
            found = clip;
    }
    return found;
}

float qxAnimationPlayer::duration() const
{
    const std::size_t clip = longest();
    return clip < m_clips.size() ? m_clips[clip].duration() : 0.0f;
}

float qxAnimationPlayer::time() const
{
    const std::size_t clip = longest();
    return clip < m_clips.size() ? m_tracks[clip].time : 0.0f;
}

void qxAnimationPlayer::show()
{
    std::vector<qxClipTime> shown;
    for (std::size_t clip = 0; clip < m_clips.size(); ++clip) {
        if (isChosen(clip))
            shown.push_back({&m_clips[clip], m_tracks[clip].time});
    }
    qxPose::the() = qxPoseOf(shown);
    qxController::updateRender(false);
}

void qxAnimationPlayer::change(State state)
{
    m_state = state;
    tell();
}

void qxAnimationPlayer::tell() const
{
    if (m_listener)
        m_listener();
}

qxAnimationRest::qxAnimationRest()
    : m_tracks(qxAnimationPlayer::the().m_tracks), m_state(qxAnimationPlayer::the().m_state),
      m_pose(qxPose::the())
{
    qxAnimationPlayer::the().stop();
    qxAnimationPlayer::the().chooseAll();
}

qxAnimationRest::~qxAnimationRest()
{
    qxAnimationPlayer &player = qxAnimationPlayer::the();
    if (player.m_tracks.size() != m_tracks.size())
        return; // There is another scene.
    player.m_tracks = m_tracks;
    qxPose::the() = m_pose;
    player.change(m_state);
}
