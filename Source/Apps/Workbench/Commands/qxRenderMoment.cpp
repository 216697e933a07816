#include "qxRenderMoment.h"

#include "Animation/qxAnimationPlayer.h"
#include "qxCommand.h"
#include "qxText.h"
#include "qxUnknownName.h"

#include <QCommandLineParser>

#include <cmath>

QList<QCommandLineOption> qxRenderMoment::options()
{
    return {{QStringLiteral("time"),
             QStringLiteral("Shows the animations at this time: those that the set starts, else "
                            "all. Without it the scene is at rest."),
             QStringLiteral("SECONDS")},
            {QStringLiteral("clip"),
             QStringLiteral("With --time: shows this animation; may be given several times."),
             QStringLiteral("ANIMATION")}};
}

int qxRenderMoment::read(const QCommandLineParser &parser)
{
    m_clips = parser.values(QStringLiteral("clip"));
    if (!parser.isSet(QStringLiteral("time")))
        return m_clips.isEmpty()
            ? Success
            : qxCommands::fail(QStringLiteral("--clip needs --time SECONDS"), WrongUse);
    bool isNumber = false;
    const QString text = parser.value(QStringLiteral("time"));
    m_time = text.toDouble(&isNumber);
    if (isNumber && std::isfinite(m_time) && m_time >= 0)
        return Success;
    return qxCommands::fail(
        QStringLiteral("--time is a number of seconds from 0, not \"%1\"").arg(text), WrongUse);
}

QString qxRenderMoment::flaw() const
{
    if (m_time < 0)
        return QString();
    QStringList names;
    for (const qxAnimationClip &clip : qxAnimationPlayer::the().clips())
        names << qxText::fromUtf8(clip.name);
    if (names.isEmpty())
        return QStringLiteral("the scene has no animations");
    for (const QString &clip : m_clips) {
        if (!names.contains(clip))
            return qxUnknownName::animation(clip, names);
    }
    return QString();
}

void qxRenderMoment::show() const
{
    if (m_time < 0)
        return;
    qxAnimationPlayer &player = qxAnimationPlayer::the();
    for (std::size_t clip = 0; clip < player.clips().size() && !m_clips.isEmpty(); ++clip)
        player.choose(clip, m_clips.contains(qxText::fromUtf8(player.clips()[clip].name)));
    player.seek(float(m_time));
}
