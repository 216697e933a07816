#include "qxScript.h"

#include "Core/qxCallList.h"
#include "Script/qxInterpreter.h"
#include "Script/qxScriptError.h"
#include "Script/qxScriptInterrupt.h"
#include "Script/qxScriptNesting.h"
#include "Script/qxScriptRunner.h"
#include "Script/qxScriptScene.h"
#include "Script/qxScriptSession.h"
#include "Script/qxScriptWatchdog.h"

#include <optional>
#include <utility>

namespace {

qxScriptRunner::Allowed allowedOnes = qxScriptRunner::Trusted;
bool failed = false;

std::set<std::string> &distrusted()
{
    static std::set<std::string> texts;
    return texts;
}

bool isAllowed(const std::string &text)
{
    return allowedOnes == qxScriptRunner::Everything
        || (allowedOnes == qxScriptRunner::Trusted && distrusted().count(text) == 0);
}

qxCallList<qxScriptRunner::Listener> &listeners()
{
    static qxCallList<qxScriptRunner::Listener> listeners;
    return listeners;
}

/// What goes with a script that is not inside another one.
struct Outermost {
    Outermost() = default;
    Outermost(const Outermost &) = delete;
    ~Outermost() { qxScriptScene::forgetPaths(); }

    qxScriptInterrupt interruptible;
    qxScriptWatchdog::Run watched;
};

/// Calls `run()` inside all that goes with running a script; its result, or one made without
/// arguments when no script may run.
template <class Run>
auto runInLevel(bool leaf, const Run &run) -> decltype(run())
{
    if (!qxScriptSession::begin())
        return {};
    std::optional<Outermost> outermost;
    const qxScriptNesting level(leaf);
    if (!level.mayRun())
        return {};
    if (!qxScriptNesting::isNested())
        outermost.emplace();
    return run();
}

bool run(const std::string &text, const std::string &fileName, bool leaf)
{
    const bool ended = runInLevel(leaf, [&] { return qxInterpreter::run(text, fileName); });
    failed = failed || !ended;
    return ended;
}

/// The numbers tell the texts apart where errors are reported.
std::string newName()
{
    static long last = 0;
    return "<script " + std::to_string(++last) + ">";
}

void announceAndRun(const qxScriptText &script)
{
    listeners().run([&](const qxScriptRunner::Listener &listener) { listener(script); });
    if (!script.isBlocked)
        run(script.text, newName(), script.origin == qxScriptText::Application);
}

} // namespace

void qxScript::run(const char *script)
{
    if (!script)
        return;
    if (qxScriptSession::isBeginning())
        ::run(script, newName(), false);
    else
        announceAndRun({script, qxScriptText::User, false, !isAllowed(script)});
}

void qxScript::executeNUS(const char *script, bool synchronise)
{
    if (script)
        announceAndRun({script, qxScriptText::Application, synchronise, false});
}

std::string qxScript::executeNUSR(const char *expression)
{
    if (!expression)
        return std::string();
    return runInLevel(true, [&] { return qxInterpreter::print(expression); });
}

bool qxScriptRunner::run(const std::string &text, const std::string &fileName)
{
    return ::run(text, fileName, false);
}

bool qxScriptRunner::haveFailed()
{
    return failed;
}

bool qxScriptRunner::wereInterrupted()
{
    return qxScriptError::wereInterrupted();
}

qxScriptRunner::Allowed qxScriptRunner::setAllowed(Allowed allowed)
{
    return std::exchange(allowedOnes, allowed);
}

qxScriptRunner::Allowed qxScriptRunner::allowed()
{
    return allowedOnes;
}

void qxScriptRunner::setDistrusted(const std::set<std::string> &texts)
{
    distrusted() = texts;
}

int qxScriptRunner::addListener(const Listener &listener)
{
    return listeners().add(listener);
}

void qxScriptRunner::removeListener(int id)
{
    listeners().remove(id);
}
