#include "qxScript.h"

#include "Core/qxCallList.h"
#include "Script/qxScriptRunner.h"
#include "qxLog.h"

#include <sstream>

namespace {

qxCallList<qxScriptRunner::Listener> &listeners()
{
    static qxCallList<qxScriptRunner::Listener> listeners;
    return listeners;
}

/// The host has no interpreter yet: it shows what would be run.
void execute(const qxScriptText &script)
{
    std::istringstream lines(script.text);
    for (std::string line; std::getline(lines, line);)
        qxLog::info("script: %s", line.c_str());
    listeners().run([&](const qxScriptRunner::Listener &listener) { listener(script); });
}

} // namespace

void qxScript::run(const char *script)
{
    if (script)
        execute({script, qxScriptText::User, false});
}

void qxScript::executeNUS(const char *script, bool synchronise)
{
    if (script)
        execute({script, qxScriptText::Application, synchronise});
}

int qxScriptRunner::addListener(const Listener &listener)
{
    return listeners().add(listener);
}

void qxScriptRunner::removeListener(int id)
{
    listeners().remove(id);
}
