#pragma once

#include "HostFixture.h"
#include "qxScript.h"

/// A host whose scripts may fail.
class ScriptFixture : public HostFixture {
protected:
    /// What printing the expression gives.
    static std::string value(const std::string &expression)
    {
        return qxScript::executeNUSR(expression.c_str());
    }
    /// Runs a user's script; the errors that it logged, each ended by a line break.
    std::string errorsOf(const std::string &script)
    {
        newErrors();
        qxScript::run(script.c_str());
        return newErrors();
    }
    /// The errors since the last call, each ended by a line break; the test expects them.
    std::string newErrors()
    {
        std::string errors;
        for (const std::string &line : takeErrors())
            errors += line + "\n";
        return errors;
    }
};
