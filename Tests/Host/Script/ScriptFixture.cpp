#include "ScriptFixture.h"

#include "qxScript.h"

std::string ScriptFixture::value(const std::string &expression)
{
    return qxScript::executeNUSR(expression.c_str());
}

std::string ScriptFixture::errorsOf(const std::string &script)
{
    newErrors();
    qxScript::run(script.c_str());
    return newErrors();
}

std::string ScriptFixture::newErrors()
{
    std::string errors;
    for (const std::string &line : takeErrors())
        errors += line + "\n";
    return errors;
}
