#pragma once

/// Looks at scripts while they run.
namespace qxScriptPause {

/// From the next start of the interpreter on, has `look` called again and again between the lines
/// of scripts; when that answers false the script ends with KeyboardInterrupt. Null for nothing.
/// Python 3.11 does not stop in a loop without any statement but "pass".
void setLook(bool (*look)());

} // namespace qxScriptPause
