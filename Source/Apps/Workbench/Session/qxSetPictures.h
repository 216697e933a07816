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
/// On a card of a page; fine screens and phones show the pictures twice as large.
constexpr QSize cardSize(330, 220);
constexpr QSize pageSize = cardSize * 2;
/// Of a pixel on a page (qxPictureSettings::quality). Few, because the pixels are many, and smaller
/// than those of most screens.
constexpr int pageSamples = 4;

/// The picture as pages have it; empty for a null one.
QByteArray jpeg(const QImage &picture);
/// Makes pictures of that size.
qxSetPreviews::Make ofSize(const QSize &size);
/// The picture of pageSize as a page has it; empty for what is none.
qxCataloguePage::Picture onPage(const QByteArray &png);
///@{
/// Adds pictures to a sheet of their size, and pictures of pageSize to those of a page.
qxSetPreviews::Take onSheet(qxContactSheet &sheet);
qxSetPreviews::Take onPage(qxCataloguePage::Pictures &pictures);
///@}

} // namespace qxSetPictures
