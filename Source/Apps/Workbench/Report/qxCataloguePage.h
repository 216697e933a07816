#pragma once

#include "Files/qxOutputFile.h"

#include <QByteArray>
#include <QMap>

#include <functional>

/// One page that shows all groups, sets and variants of the registry: HTML that is also XML,
/// self-contained, without scripts and external links.
namespace qxCataloguePage {

/// A picture in two sizes.
struct Picture {
    QByteArray large;
    QByteArray small; ///< for a card of the page on a low-resolution screen
};
typedef QMap<QString, Picture> Pictures; ///< by the names of sets
/// Gives the picture of the set of that name, or an empty one.
typedef std::function<Picture(const QString &set)> PictureOf;

/// The page in UTF-8; the same bytes for the same registry. A set without a picture is shown with
/// its preview. Each picture is asked for when its place on the page is written.
qxOutputFile::Content html(const QString &title, const PictureOf &pictureOf);
/// The same with pictures that are there.
qxOutputFile::Content html(const QString &title, const Pictures &pictures);

} // namespace qxCataloguePage
