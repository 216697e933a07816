#include "qxImageWriter.h"

#include "Pictures/qxPictureProgress.h"
#include "Pictures/qxScenePicture.h"
#include "qxLog.h"

#include <QBuffer>
#include <QImage>

namespace {

constexpr int DotsPerMeter = 3780; ///< written down in the file; that of a screen would differ

std::string pngOf(const qxPicture &picture, bool isOpaque)
{
    const QImage bottomFirst(picture.rgba.data(), picture.width, picture.height, picture.width * 4,
                             QImage::Format_RGBA8888);
    QImage image = bottomFirst.mirrored();
    if (isOpaque)
        image = image.convertToFormat(QImage::Format_RGB888);
    image.setDotsPerMeterX(DotsPerMeter);
    image.setDotsPerMeterY(DotsPerMeter);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return buffer.data().toStdString();
}

qxPicture::Progress shownProgress()
{
    const qxPictureProgress::Display display = qxPictureProgress::display();
    if (!display)
        return {};
    return [display](int done, int total) { return display(total > 0 ? double(done) / total : 0); };
}

} // namespace

void qxImageWriter::exportImageFastInit(int width, int height, int view)
{
    m_width = width;
    m_height = height;
    m_view = view;
}

std::string qxImageWriter::exportImageFast()
{
    if (m_view != 0) {
        qxLog::error("No picture: the export is not prepared for the main view.");
        return std::string();
    }
    qxPictureSettings settings;
    settings.width = m_width;
    settings.height = m_height;
    settings.quality = qxScenePicture::quality();
    const bool isOpaque = settings.view.background != qxViewSettings::None;
    const qxPicture::Progress progress = m_isSilent ? qxPicture::Progress() : shownProgress();
    const qxPicture picture = qxScenePicture::render(settings, progress);
    if (picture.isEmpty() && progress)
        progress(1, 1);
    return picture.isEmpty() ? std::string() : pngOf(picture, isOpaque);
}

void qxImageWriter::exportImageFastTerminate()
{
    m_view = -1;
}
