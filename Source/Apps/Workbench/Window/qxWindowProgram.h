#pragma once

/// The program as a window: "workbench FILE".
namespace qxWindowProgram {

/// Whether the only argument is a scene file.
bool isAskedFor(int argc, char *argv[]);
/// Shows the scene in a window until that is closed. Ends at once, saying why on standard error,
/// when there is no such file or no display.
int run(int argc, char *argv[]);

} // namespace qxWindowProgram
