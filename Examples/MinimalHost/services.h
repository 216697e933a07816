#pragma once

#include <string>

/// Starts the services that the module looks up, and what answers its notifications.
void registerServices();

/// The name, with a number behind it if a material has it already.
std::string uniqueMaterialName(const std::string &name);

/// Starts the interpreter, for the rest of the process; before that, scripts are not run.
void startScripts();
/// Tells the modules that it ends.
void endScripts();
