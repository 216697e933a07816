#pragma once

#include <QString>

/// The viewer that published pages show their scene with.
namespace qxViewerFiles {

/// The folder with index.html, viewer.js and viewer.css; empty when the program was built without
/// them.
QString folder();

} // namespace qxViewerFiles
