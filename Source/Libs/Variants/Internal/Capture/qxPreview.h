#pragma once

#include <QByteArray>

class QImage;
class qxVariantSet;

/// The small pictures that sets carry: PNG of 264 by 256 pixels.
namespace qxPreview {

/// Renders what the scene shows now. With `fullQuality` a view that traces rays does so as well as
/// it can for this one picture. Empty when the picture was not made.
QByteArray fromScene(bool showProgress, bool fullQuality);
/// What the main view shows now; empty when there is no view or it shows nothing.
QByteArray fromFrameBuffer();
/// Gives the set one of these, see qxVariants::renderVariantSetPreview.
void render(qxVariantSet &set, bool fromView, bool showProgress, bool fullQuality);
/// The centred square of the picture, stretched to the size of a preview.
QImage fromFrame(const QImage &frame);

} // namespace qxPreview
