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
    const std::vector<std::string> lines = logged(qxLog::Error);
    for (; m_errors < lines.size(); ++m_errors) {
        expectError(lines[m_errors]);
        errors += lines[m_errors] + "\n";
    }
    return errors;
}
