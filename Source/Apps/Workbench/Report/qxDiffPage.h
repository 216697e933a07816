#pragma once

#include <QByteArray>

struct qxFileComparison;

/// One page that shows what differs between two files, with the previews of sets side by side where
/// they differ: HTML that is also XML, self-contained, without scripts and external links.
namespace qxDiffPage {

/// The page in UTF-8.
QByteArray html(const qxFileComparison &comparison);

} // namespace qxDiffPage
