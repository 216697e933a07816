#pragma once

/// The program as a window: "workbench" and "workbench FILE".
namespace qxWindowProgram {

/// Whether there is no argument, or a scene file alone.
bool isAskedFor(int argc, char *argv[]);
/// Shows the scene, or an empty one, in a window until it is closed. Returns at once, with an error
/// line on standard error, if there is no such file or no display.
int run(int argc, char *argv[]);

} // namespace qxWindowProgram
