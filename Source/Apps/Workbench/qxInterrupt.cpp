#include "qxInterrupt.h"

#include "Script/qxScriptRunner.h"

#include <csignal>

namespace {

volatile std::sig_atomic_t asked = 0;

void ask(int signal)
{
    asked = 1;
    std::signal(signal, SIG_DFL);
}

} // namespace

qxInterrupt::qxInterrupt()
{
    std::signal(SIGINT, ask);
    std::signal(SIGTERM, ask);
}

qxInterrupt::~qxInterrupt()
{
    std::signal(SIGINT, SIG_DFL);
    std::signal(SIGTERM, SIG_DFL);
}

bool qxInterrupt::isAsked()
{
    return asked != 0 || qxScriptRunner::wereInterrupted();
}
