#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>

/// Sees to it that no script keeps the program's thread for good. At most one exists.
class qxScriptWatchdog {
public:
    typedef std::chrono::milliseconds Time; ///< how long a script may run

    /// A script that has run for `timeout` is interrupted by a call of `onTimeout`, between two of
    /// its steps and on its own thread, and so again and again. When that answers false the script
    /// ends with KeyboardInterrupt; one that catches it is ended all the same `timeout` later. With
    /// Python 2.7 a step that takes long, such as a sleep, is waited for.
    qxScriptWatchdog(Time timeout, const std::function<bool()> &onTimeout);
    qxScriptWatchdog(const qxScriptWatchdog &) = delete;
    ~qxScriptWatchdog();

    /// A script that is not inside another one, while it runs.
    struct Run {
        Run();
        Run(const Run &) = delete;
        ~Run();
    };

private:
    static int interrupt(void *);
    bool endsScript();
    void setWatching(bool isWatching);
    void watch();

    const Time m_timeout;
    const std::function<bool()> m_onTimeout;
    bool m_isRunning = false;
    bool m_isEnding = false; ///< the script that runs

    std::mutex m_mutex; ///< of what follows
    std::condition_variable m_turned;
    bool m_isOver = false;
    bool m_isWatching = false; ///< for `timeout` from the last turn on
    unsigned int m_turn = 0;
    std::thread m_thread;
};
