#pragma once

#include <QString>

/// The demo scene that comes with the program.
namespace qxDemo {

/// The path of the scene file; empty when it was not installed.
QString scene();

} // namespace qxDemo
