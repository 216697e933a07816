#include "qxInterrupt.h"

#include "Script/qxScriptRunner.h"

namespace {

const int signals[] = {SIGINT, SIGTERM};

volatile std::sig_atomic_t asked = 0;

void ask(int signal)
{
    asked = 1;
    std::signal(signal, SIG_DFL);
}

} // namespace

qxInterrupt::qxInterrupt()
{
    for (int i = 0; i < 2; ++i) {
        sigaction(signals[i], nullptr, &m_before[i]);
        if (m_before[i].sa_handler != SIG_IGN)
            std::signal(signals[i], ask);
    }
}

qxInterrupt::~qxInterrupt()
{
    for (int i = 0; i < 2; ++i)
        sigaction(signals[i], &m_before[i], nullptr);
}

bool qxInterrupt::isAsked()
{
    return asked != 0 || qxScriptRunner::wereInterrupted();
}
