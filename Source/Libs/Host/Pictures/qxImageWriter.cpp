#include "qxImageWriter.h"

#include "Pictures/qxPicturePng.h"
#include "Pictures/qxPictureProgress.h"
#include "Pictures/qxScenePicture.h"
#include "qxLog.h"

namespace {

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
    const qxPictureSettings settings = qxScenePicture::settings(m_width, m_height);
    const bool isOpaque = settings.view.background != qxViewSettings::None;
    const qxPicture::Progress progress = m_isSilent ? qxPicture::Progress() : shownProgress();
    const qxPicture picture = qxScenePicture::render(settings, progress);
    if (picture.isEmpty() && progress)
        progress(1, 1);
    return qxPicturePng::bytes(picture, isOpaque).toStdString();
}

void qxImageWriter::exportImageFastTerminate()
{
    m_view = -1;
}
