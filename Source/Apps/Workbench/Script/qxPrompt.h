#pragma once

/// Lets a person in front of a terminal say statements to the host's interpreter, until the end of
/// the input or exit(): with line editing, a history and completion of names by the tab key.
namespace qxPrompt {

/// Answers what exit() was given: false for anything but success.
bool run();

} // namespace qxPrompt
