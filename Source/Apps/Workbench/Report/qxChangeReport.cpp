#include "qxChangeReport.h"

#include "qxVariantSet.h"

#include "Cameras/qxMainView.h"
#include "Script/qxScriptRunner.h"
#include "qxController.h"
#include "qxExplanation.h"
#include "qxMessage.h"
#include "qxOutput.h"
#include "qxText.h"

#include <QJsonArray>

#include <cstring>

namespace {

QString clonesText(int others)
{
    if (others == 0)
        return QString();
    return others == 1 ? QStringLiteral(" (and its clone)")
                       : QStringLiteral(" (and %1 clones)").arg(others);
}

} // namespace

qxChangeReport::qxChangeReport(const qxSceneState &before)
    : m_before(before), m_viewpointBefore(qxMainView::the().viewpoint)
{
    m_notificationListener = listenForClips(m_animations);
    m_scriptListener = qxScriptRunner::addListener([this](const qxScriptText &script) {
        if (!script.isBlocked)
            m_scripts += qxText::fromUtf8(script.text).trimmed();
    });
}

qxChangeReport::~qxChangeReport()
{
    qxController::removeListener(m_notificationListener);
    qxScriptRunner::removeListener(m_scriptListener);
}

int qxChangeReport::listenForClips(QStringList &clips)
{
    return qxController::addListener([&clips](const char *name, qxMessage *message, int) {
        if (message && strcmp(name, "animationStart") == 0) {
            if (const auto *clip = message->get<std::string>("animation-name"))
                clips += qxText::fromUtf8(*clip);
        }
    });
}

void qxChangeReport::finish(const QString &title, const QStringList &skipped)
{
    m_title = title;
    m_skipped = skipped;
    m_changes = m_before.changesTo(qxSceneState::take());
    if (qxMainView::the().viewpoint != m_viewpointBefore)
        m_viewpoint = qxText::fromUtf8(qxMainView::the().viewpointName());
}

void qxChangeReport::foresee(const qxVariantSet &set, const qxExplanation &explanation,
                             const qxSceneState &after, const QString &viewpoint,
                             const QStringList &skipped)
{
    m_title = set.name;
    m_skipped = skipped;
    m_changes = m_before.changesTo(after);
    m_viewpoint = viewpoint;
    if (const std::string clipping = set.analyzer.script(); !clipping.empty())
        m_scripts += qxText::fromUtf8(clipping).trimmed();
    for (const qxExplainedEntry &entry : explanation.entries()) {
        if (entry.kind == QLatin1String("animation") && entry.code != qxCode::SkippedForLaterTurn)
            m_animations += entry.name;
        else if (entry.code == qxCode::SkippedScript)
            m_skipped += QStringLiteral("the script, which is not run");
    }
}

void qxChangeReport::print() const
{
    qxOutput::line(m_title);
    QList<QStringList> rows;
    for (const qxSceneChange &change : m_changes) {
        rows += QStringList{QLatin1String("  ") + change.object + clonesText(change.others),
                            QStringLiteral("%1 -> %2").arg(change.before, change.after)};
    }
    if (!m_viewpoint.isEmpty())
        rows += QStringList{QStringLiteral("  camera"), m_viewpoint};
    for (const QString &animation : m_animations)
        rows += QStringList{QStringLiteral("  animation"), animation};
    for (const QString &script : m_scripts) {
        for (const QString &line : script.split(QLatin1Char('\n')))
            rows += QStringList{QStringLiteral("  script"), line};
    }
    for (const QString &skipped : m_skipped)
        rows += QStringList{QStringLiteral("  skipped"), skipped};
    if (rows.isEmpty())
        rows += QStringList{QStringLiteral("  nothing changed")};
    qxOutput::table(rows);
}

QJsonObject qxChangeReport::toJson() const
{
    QJsonArray changes;
    for (const qxSceneChange &change : m_changes) {
        changes += QJsonObject{{QStringLiteral("object"), change.object},
                               {QStringLiteral("clones"), change.others},
                               {QStringLiteral("from"), change.before},
                               {QStringLiteral("to"), change.after}};
    }
    QJsonObject json{{QStringLiteral("name"), m_title},
                     {QStringLiteral("changes"), changes},
                     {QStringLiteral("viewpoint"),
                      m_viewpoint.isEmpty() ? QJsonValue() : QJsonValue(m_viewpoint)},
                     {QStringLiteral("animations"), QJsonArray::fromStringList(m_animations)},
                     {QStringLiteral("scripts"), QJsonArray::fromStringList(m_scripts)},
                     {QStringLiteral("skipped"), QJsonArray::fromStringList(m_skipped)}};
    if (!m_record.isEmpty())
        json[QStringLiteral("record")] = m_record;
    return json;
}
