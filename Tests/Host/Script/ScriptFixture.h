#pragma once

#include "HostFixture.h"

/// A host whose scripts may fail.
class ScriptFixture : public HostFixture {
protected:
    /// What printing the expression gives.
    std::string value(const std::string &expression);
    /// Runs a user's script; the errors that it logged, each ended by a line break.
    std::string errorsOf(const std::string &script);
    /// The errors since the last call, each ended by a line break; the test expects them.
    std::string newErrors();
};
