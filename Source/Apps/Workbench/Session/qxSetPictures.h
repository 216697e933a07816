#pragma once

#include "Report/qxCataloguePage.h"
#include "Session/qxSetPreviews.h"

#include <QImage>
#include <QSize>

class qxContactSheet;

/// Pictures of sets as files have them, made while qxSetPreviews::visit shows the sets.
namespace qxSetPictures {

/// Pixels of a side, at most.
constexpr int longestSide = 8192;
/// Of one picture in a file of its own, and on a sheet.
constexpr QSize pictureSize(1280, 720);
constexpr QSize sheetSize(384, 256);
/// Of a pixel on a page (qxPictureSettings::quality). Few, because the pixels are many, and smaller
/// than those of most screens.
constexpr int pageSamples = 4;

/// The picture as pages have it; empty for a null one.
QByteArray jpeg(const QImage &picture);
/// Adds a picture of that size to the sheet, after `look`, which may change the view.
qxSetPreviews::Work onSheet(qxContactSheet &sheet, const QSize &size,
                            const std::function<void()> &look = {});
/// Adds the picture to those of a page.
qxSetPreviews::Work onPage(qxCataloguePage::Pictures &pictures);

} // namespace qxSetPictures
