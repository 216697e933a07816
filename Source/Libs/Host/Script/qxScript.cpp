#include "qxScript.h"

#include "Core/qxCallList.h"
#include "Script/qxInterpreter.h"
#include "Script/qxScriptInterrupt.h"
#include "Script/qxScriptLevel.h"
#include "Script/qxScriptRunner.h"
#include "Script/qxScriptSession.h"

#include <optional>

namespace {

bool enabled = true;

qxCallList<qxScriptRunner::Listener> &listeners()
{
    static qxCallList<qxScriptRunner::Listener> listeners;
    return listeners;
}

/// Calls `run()` inside all that goes with running a script; its result, or one made without
/// arguments when no script may run.
template <class Run>
auto runInLevel(bool leaf, const Run &run) -> decltype(run())
{
    if (!qxScriptSession::begin())
        return {};
    std::optional<qxScriptInterrupt> interruptible;
    const qxScriptLevel level(leaf);
    if (!level.mayRun())
        return {};
    if (!qxScriptLevel::isNested())
        interruptible.emplace();
    return run();
}

bool run(const std::string &text, const std::string &fileName, bool leaf)
{
    return runInLevel(leaf, [&] { return qxInterpreter::run(text, fileName); });
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
    if (!script.leftOut)
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
        announceAndRun({script, qxScriptText::User, false, !enabled});
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

void qxScriptRunner::setEnabled(bool enable)
{
    enabled = enable;
}

int qxScriptRunner::addListener(const Listener &listener)
{
    return listeners().add(listener);
}

void qxScriptRunner::removeListener(int id)
{
    listeners().remove(id);
}
