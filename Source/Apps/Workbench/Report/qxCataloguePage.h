#pragma once

#include <QByteArray>
#include <QMap>

/// One page that shows all groups, sets and variants of the registry: HTML that is XML as well,
/// with style and pictures in it, without scripts and links to elsewhere.
namespace qxCataloguePage {

/// The same picture twice.
struct Picture {
    QByteArray large;
    QByteArray small; ///< for a card of the page on a screen of coarse pixels
};
typedef QMap<QString, Picture> Pictures; ///< by the names of sets

/// The page in UTF-8; the same bytes for the same registry. A set without a picture is shown with
/// its preview.
QByteArray html(const QString &title, const Pictures &pictures);

} // namespace qxCataloguePage
