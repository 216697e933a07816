#include "qxFileComparison.h"

#include "Report/qxOutput.h"
#include "Session/qxEditedDocument.h"

#include <QJsonArray>
#include <QJsonObject>

namespace {

bool load(qxDocumentFile &file, const QString &path, qxDocument &document)
{
    if (file.load(path))
        return qxEditedDocument::read(path, file.document(), document);
    qxOutput::error(file.errorString());
    return false;
}

/// Whether the data are the same as far as the scene files themselves tell.
bool haveSameBuffers(const qxDocumentFile &one, const qxDocumentFile &other)
{
    const QLatin1String buffers("buffers");
    return one.binaryChunk() == other.binaryChunk()
        && one.sceneJson()[buffers] == other.sceneJson()[buffers];
}

} // namespace

bool qxFileComparison::compare(const QString &fileBefore, const QString &fileAfter)
{
    nameBefore = fileBefore;
    nameAfter = fileAfter;
    qxDocumentFile files[2];
    // Both, so that all that is wrong is told at once.
    const bool isRead = load(files[0], fileBefore, before);
    if (!load(files[1], fileAfter, after) || !isRead)
        return false;
    variants = qxDocumentDiff::of(before, after);
    scene.clear();
    if (!files[0].isScene() || !files[1].isScene())
        return true;
    scene = qxSceneDiff::of(files[0].sceneJson(), files[1].sceneJson());
    if (!haveSameBuffers(files[0], files[1]))
        scene.push_back({QStringLiteral("buffers"), qxDifferenceSort::Changed, {QString()}});
    return true;
}
