#pragma once

#include <QByteArray>
#include <QMap>

/// One page that shows all groups, sets and variants of the registry: HTML that is also XML,
/// self-contained, without scripts and external links.
namespace qxCataloguePage {

/// A picture in two sizes.
struct Picture {
    QByteArray large;
    QByteArray small; ///< for a card of the page on a low-resolution screen
};
typedef QMap<QString, Picture> Pictures; ///< by the names of sets

/// The page in UTF-8; the same bytes for the same registry. A set without a picture is shown with
/// its preview.
QByteArray html(const QString &title, const Pictures &pictures);

} // namespace qxCataloguePage
