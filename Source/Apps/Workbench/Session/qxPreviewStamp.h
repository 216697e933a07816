#pragma once

#include <QByteArray>

/// What a preview was made from, written into the picture: its fingerprint
/// (qxSetPreviews::previewFingerprint) as a text of the PNG.
namespace qxPreviewStamp {

/// The same picture with that stamp; empty for an empty one. The same bytes give the same ones.
QByteArray stamped(const QByteArray &png, const QByteArray &fingerprint);
/// The stamp of a picture, whose pixels are not decoded; empty without.
QByteArray of(const QByteArray &png);

} // namespace qxPreviewStamp
