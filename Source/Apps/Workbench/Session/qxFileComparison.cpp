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

QVector<qxSceneDifference> compareScenes(const qxDocumentFile &before, const qxDocumentFile &after)
{
    const QJsonObject scenes[] = {before.sceneJson(), after.sceneJson()};
    QVector<qxSceneDifference> result = qxSceneDiff::of(scenes[0], scenes[1]);
    // Data are the same as far as the scene files themselves tell.
    const QLatin1String buffers("buffers");
    if (before.binaryChunk() != after.binaryChunk() || scenes[0][buffers] != scenes[1][buffers])
        result.push_back({buffers, qxDifferenceSort::Changed, {QString()}});
    return result;
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
    const bool areScenes = files[0].isScene() && files[1].isScene();
    scene = areScenes ? compareScenes(files[0], files[1]) : QVector<qxSceneDifference>();
    return true;
}
