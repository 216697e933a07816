#include "Script/qxScriptWatchdog.h"

#include "Script/qxPython.h"
#include "Script/qxScriptNesting.h"

namespace {

qxScriptWatchdog *current = nullptr;

} // namespace

qxScriptWatchdog::qxScriptWatchdog(Time timeout, const std::function<bool()> &onTimeout)
    : m_timeout(timeout), m_onTimeout(onTimeout), m_thread([this] { watch(); })
{
    current = this;
}

qxScriptWatchdog::~qxScriptWatchdog()
{
    current = nullptr;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_isOver = true;
    }
    m_turned.notify_one();
    m_thread.join();
}

qxScriptWatchdog::Run::Run()
{
    if (!current)
        return;
    qxPythonEnablePendingCalls();
    current->m_isRunning = true;
    current->setWatching(true);
}

qxScriptWatchdog::Run::~Run()
{
    if (!current)
        return;
    current->m_isRunning = false;
    current->m_isEnding = false;
    current->setWatching(false);
}

void qxScriptWatchdog::setWatching(bool isWatching)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_isWatching = isWatching;
        ++m_turn;
    }
    m_turned.notify_one();
}

/// The thread of the watchdog. It leaves all but waiting to the script's own.
void qxScriptWatchdog::watch()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    while (!m_isOver) {
        const auto hasTurned = [this, turn = m_turn] { return m_isOver || m_turn != turn; };
        if (!m_isWatching)
            m_turned.wait(lock, hasTurned);
        else if (!m_turned.wait_for(lock, m_timeout, hasTurned))
            m_isWatching = !qxPythonAddPendingCall(interrupt);
    }
}

/// Python calls it between two steps of a script.
int qxScriptWatchdog::interrupt(void *)
{
    return current && current->endsScript() ? -1 : 0;
}

bool qxScriptWatchdog::endsScript()
{
    if (!m_isRunning)
        return false; // came too late for the script
    m_isEnding = m_isEnding || !m_onTimeout();
    setWatching(true);
    if (m_isEnding)
        qxScriptNesting::raiseInterrupt();
    return m_isEnding;
}
