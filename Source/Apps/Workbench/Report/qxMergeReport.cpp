#include "qxMergeReport.h"

#include "Session/qxFileMerge.h"

#include <QJsonArray>
#include <QJsonObject>

namespace {

const int longestJson = 200; ///< characters for people

QString sceneValue(const QString &json)
{
    if (json.isNull())
        return QStringLiteral("(not there)");
    return json.size() > longestJson ? json.left(longestJson) + QStringLiteral(" ...") : json;
}

QString sceneText(const qxSceneConflict &conflict, qxMergePreference preference)
{
    const QString taken = preference == qxMergePreference::Theirs
        ? QStringLiteral("  -> theirs is taken\n")
        : QStringLiteral("  -> ours is taken\n");
    if (conflict.place.isEmpty())
        return QStringLiteral("the scene itself, all but its variants: %1\n").arg(conflict.reason)
            + taken;
    return QStringLiteral("scene, %1\n  base:   %2\n  ours:   %3\n  theirs: %4\n")
               .arg(conflict.place, sceneValue(conflict.base), sceneValue(conflict.ours),
                    sceneValue(conflict.theirs))
        + taken;
}

QJsonValue sceneJson(const QString &text)
{
    return text.isNull() ? QJsonValue() : QJsonValue(text);
}

} // namespace

QString qxMergeReport::text(const qxFileMerge &merge, const QString &name)
{
    const int count = merge.scene.size() + merge.variants.conflicts.size();
    QString text;
    if (count > 0)
        text = QStringLiteral("%1: %2\n")
                   .arg(name,
                        count == 1 ? QStringLiteral("1 conflict")
                                   : QStringLiteral("%1 conflicts").arg(count));
    for (const qxSceneConflict &each : merge.scene)
        text += sceneText(each, merge.preference);
    for (const qxMergeConflict &each : merge.variants.conflicts)
        text += each.text(merge.preference);
    for (const QString &note : merge.variants.notes)
        text += QStringLiteral("note: %1\n").arg(note);
    return text;
}

QJsonObject qxMergeReport::json(const qxFileMerge &merge)
{
    QJsonArray conflicts;
    for (const qxSceneConflict &each : merge.scene) {
        QJsonObject object{{QStringLiteral("thing"), QStringLiteral("scene")}};
        if (each.place.isEmpty()) {
            object[QStringLiteral("reason")] = each.reason;
        } else {
            object[QStringLiteral("place")] = each.place;
            object[QStringLiteral("base")] = sceneJson(each.base);
            object[QStringLiteral("ours")] = sceneJson(each.ours);
            object[QStringLiteral("theirs")] = sceneJson(each.theirs);
        }
        conflicts += object;
    }
    for (const qxMergeConflict &each : merge.variants.conflicts)
        conflicts += each.json();
    return {{QStringLiteral("clean"), merge.isClean()},
            {QStringLiteral("conflicts"), conflicts},
            {QStringLiteral("notes"), QJsonArray::fromStringList(merge.variants.notes)}};
}
