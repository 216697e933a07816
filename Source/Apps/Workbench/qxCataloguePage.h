#pragma once

#include <QByteArray>
#include <QString>

/// One page that shows all groups, sets and variants of the registry: HTML that is XML as well,
/// with style and pictures in it, without scripts and links to elsewhere.
namespace qxCataloguePage {

/// The page in UTF-8; the same bytes for the same registry.
QByteArray html(const QString &title);

} // namespace qxCataloguePage
