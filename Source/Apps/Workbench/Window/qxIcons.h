#pragma once

#include <QIcon>

/// The icons of the program. They are drawn in the colours of the palette at any size and scale, so
/// they are readable in every theme; those of desktops stay dark when a dark theme is chosen here.
namespace qxIcons {

/// One of "open", "save", "undo", "redo", "back", "capture", "newSet", "everything",
/// "rayTracing", "gallery", "presentation", "play", "pause", "stop" and "loop"; a null icon for
/// any other name.
QIcon of(const char *name);

} // namespace qxIcons
