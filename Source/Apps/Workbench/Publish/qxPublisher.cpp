#include "Publish/qxPublisher.h"

#include "qxVariantSet.h"
#include "qxVariants.h"

#include "Files/qxSceneFile.h"
#include "Publish/qxPublishedLight.h"
#include "Session/qxSetPictures.h"
#include "qxScenegraph.h"

#include <QCoreApplication>

namespace {

constexpr QSize posterSize(1280, 720);
/// Of pictures of all directions that are seen behind the scene, and how wide in compressed pages.
constexpr int widestLight = 2048;
constexpr int widestCompressedLight = 1024;

QByteArray jpegOf(const QByteArray &picture)
{
    return qxSetPictures::jpeg(QImage::fromData(picture));
}

} // namespace

QString qxPublisher::describe(const qxSceneFile &file, const Wishes &wishes)
{
    m_publication.title = wishes.title;
    m_publication.language = wishes.states.language;
    const QString flaw = addScene(file, wishes.compress);
    if (!flaw.isEmpty())
        return flaw;
    addStates(file, wishes);
    addHead();
    return QString();
}

QString qxPublisher::addScene(const qxSceneFile &file, bool compress)
{
    qxExportOptions options;
    options.extent = qxExportOptions::Everything;
    options.compress = compress;
    qxExport scene;
    const QString flaw = file.makeExport(options, scene);
    m_publication.scene = scene.glb;
    for (const qxExport::Loss &loss : scene.losses)
        m_losses.add({QString(), loss.kind, loss.name, QString(),
                      loss.isGone ? qxLoss::Dropped : qxLoss::Approximated, loss.reason});
    return flaw;
}

void qxPublisher::addStates(const qxSceneFile &file, const Wishes &wishes)
{
    const qxPublishedStates states(file, wishes.states, m_losses);
    m_publication.published = states.json();
    for (const QString &name : states.sets()) {
        const QByteArray jpeg = jpegOf(qxVariants::findVariantSet(name)->getPreview());
        if (jpeg.isEmpty())
            m_withoutPreview += name;
        else
            m_publication.previews[name] = jpeg;
    }
    const qxPublishedLight light(states, wishes.compress ? widestCompressedLight : widestLight);
    for (auto member = light.members.begin(); member != light.members.end(); ++member)
        m_publication.published[member.key()] = member.value();
    m_publication.lights = light.pictures;
}

void qxPublisher::addHead()
{
    QJsonObject &object = m_publication.published;
    object[QStringLiteral("format")] = 1;
    object[QStringLiteral("generator")] =
        QStringLiteral("Workbench ") + QCoreApplication::applicationVersion();
    object[QStringLiteral("title")] = m_publication.title;
    object[QStringLiteral("language")] = m_publication.language;
}

qxSetPreviews::Take qxPublisher::takePreview()
{
    return [this](const QString &name, const QByteArray &png) {
        m_publication.previews[name] = jpegOf(png);
        return true;
    };
}

bool qxPublisher::makePoster()
{
    m_publication.poster = jpegOf(qxSetPreviews::render(posterSize));
    return !m_publication.poster.isEmpty();
}
