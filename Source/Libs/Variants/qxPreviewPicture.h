#pragma once

#include <QByteArray>

/// The bytes of a preview as a picture.
namespace qxPreviewPicture {

/// Whether the bytes say at their beginning that they are a picture, and one that is not much
/// larger than a preview. Others are not to be decoded: few bytes can stand for gigabytes.
bool isDecodable(const QByteArray &bytes);

} // namespace qxPreviewPicture
