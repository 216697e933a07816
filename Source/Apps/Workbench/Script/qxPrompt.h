#pragma once

/// A prompt of the host's interpreter in a terminal, until the end of the input or exit(): with
/// line editing, a history and completion of names by the tab key.
namespace qxPrompt {

/// Returns false if exit() was called with a failure.
bool run();

} // namespace qxPrompt
