#include "qxTurntable.h"

#include "Cameras/qxMainView.h"
#include "Pictures/qxScenePicture.h"
#include "qxCommand.h"

#include <OpenSG/OSGQuaternion.h>

#include <QCommandLineParser>

namespace {

constexpr int MostPictures = 9999;
constexpr double FullTurn = 6.283185307179586;

} // namespace

QCommandLineOption qxTurntable::option()
{
    return {
        QStringLiteral("turntable"),
        QStringLiteral("Makes this many pictures of a full turn about the vertical axis through "
                       "the middle of what is shown, into the folder DIR: 001.png, 002.png ..."),
        QStringLiteral("COUNT")};
}

int qxTurntable::read(const QCommandLineParser &parser)
{
    const QString text = parser.value(QStringLiteral("turntable"));
    if (text.isEmpty())
        return Success;
    bool isNumber = false;
    m_count = text.toInt(&isNumber);
    if (isNumber && m_count >= 1 && m_count <= MostPictures)
        return Success;
    return qxCommands::fail(QStringLiteral("--turntable is a number of pictures from 1 to %1, not "
                                           "\"%2\"")
                                .arg(MostPictures)
                                .arg(text),
                            WrongUse);
}

QString qxTurntable::nameOf(int number) const
{
    const int digits = std::max(3, int(QString::number(m_count).size()));
    return QStringLiteral("%1.png").arg(number + 1, digits, 10, QLatin1Char('0'));
}

void qxTurntable::begin(const QSize &size)
{
    qxPictureSettings settings;
    settings.width = size.width();
    settings.height = size.height();
    m_first = qxScenePicture::view(settings);
}

/// The scene turns to the right, as on a plate that somebody pushes.
void qxTurntable::look(int number) const
{
    osg::Quaternion turn;
    turn.setValueAsAxisRad(0, 1, 0, osg::Real32(-FullTurn * number / m_count));
    osg::Matrix camera;
    camera.setTransform(m_first.middle);
    osg::Matrix part;
    part.setTransform(turn);
    camera.mult(part);
    part.setTransform(-m_first.middle);
    camera.mult(part);
    camera.mult(m_first.camera.toWorld);
    qxUberCamera &main = qxMainView::the().camera;
    main = m_first.camera;
    main.toWorld = camera;
}
