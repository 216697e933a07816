#pragma once

#include "Files/qxExport.h"
#include "qxLossReport.h"

class qxSceneFile;
class qxVariantSet;

/// How a scene is exported for other programs.
struct qxPlainExportWishes {
    const qxVariantSet *shown = nullptr; ///< null for the scene as it is
    bool isAlone = false; ///< without variants; the report tells of that set alone
    bool compress = false;
};

/// Exports the opened scene as plain glTF, its sets as variants of materials.
namespace qxPlainExport {

/// Selects the set that is to be shown, without its script, and makes the file and the report on
/// it. Why that failed; then both are unchanged.
QString make(const qxSceneFile &scene, const qxPlainExportWishes &wishes, qxExport &file,
             qxLossReport &report);

} // namespace qxPlainExport
