#pragma once

#include "Animation/qxAnimationClip.h"

#include <functional>

/// Plays clips of the running host's scene: chooses them, keeps their times, and makes qxPose. The
/// scene graph does not change.
///
/// Time passes only when somebody lets it pass (advance). Until somebody does, or seeks, also a
/// clip that was started shows nothing: a picture that is made without a window shows the scene at
/// rest. Every change that shows asks for a new picture.
class qxAnimationPlayer {
public:
    /// What the scene shows.
    enum State {
        Stopped, ///< the scene is at rest
        Paused, ///< the scene is as the chosen clips have it at their times
        Playing
    };

    /// The one of the running host.
    static qxAnimationPlayer &the();

    /// Replaces the clips; all are chosen, nothing plays.
    void setClips(std::vector<qxAnimationClip> clips);
    const std::vector<qxAnimationClip> &clips() const { return m_clips; } ///< in their order

    ///@{
    /// Whether a clip plays when something plays, by its place in the list. What is no longer
    /// chosen stops, what is chosen while others play begins.
    bool isChosen(std::size_t clip) const { return m_tracks[clip].isChosen; }
    void choose(std::size_t clip, bool on);
    void chooseAll();
    ///@}
    /// Begins the clips of that name anew. Others that play go on; if nothing plays, these are the
    /// only ones chosen.
    void start(const std::string &name);

    State state() const { return m_state; } ///< Stopped at first
    /// Goes on where it was paused; from the beginning when it was stopped, or is at its end.
    void play();
    void pause(); ///< nothing if nothing plays
    /// The scene is at rest again.
    void stop();
    /// Shows the chosen clips at that time, in seconds, each at most at its end. Paused if it was
    /// stopped.
    void seek(float time);
    /// Lets so many seconds pass for what plays, times the speed. At its end a clip begins anew,
    /// or stays there without loop; when all are there, playing ends with a pause.
    void advance(float seconds);

    /// The longest of the chosen clips, in seconds.
    float duration() const;
    /// Where that one is.
    float time() const;
    float speed() const { return m_speed; } ///< 1 at first
    void setSpeed(float speed) { m_speed = speed; } ///< 1 is the clips' own; above 0
    bool isLooping() const { return m_isLooping; } ///< at first it is
    void setLooping(bool on) { m_isLooping = on; } ///< holds from the next end on

    /// Is called when state, choice or clips have changed. One at a time; an empty one for none.
    void setListener(const std::function<void()> &listener) { m_listener = listener; }

private:
    friend class qxAnimationRest;
    struct Track {
        bool isChosen = true;
        float time = 0;
    };

    std::size_t longest() const;
    void show();
    void change(State state);
    void tell() const;

    std::vector<qxAnimationClip> m_clips;
    std::vector<Track> m_tracks; ///< as many
    State m_state = Stopped;
    float m_speed = 1;
    bool m_isLooping = true;
    std::function<void()> m_listener;
};

/// The scene at rest, with all clips chosen, as long as it lives; then what played before goes on.
class qxAnimationRest {
public:
    qxAnimationRest();
    qxAnimationRest(const qxAnimationRest &) = delete;
    ~qxAnimationRest();

private:
    std::vector<qxAnimationPlayer::Track> m_tracks;
    qxAnimationPlayer::State m_state;
    qxPose m_pose;
};
