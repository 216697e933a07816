#pragma once

#include "Publish/qxPageFiles.h"

#include <QJsonObject>
#include <QMap>

/// Everything that a published page consists of, but for the viewer.
struct qxPublication {
    QString title;
    QString language; ///< "en" or "de"
    QJsonObject published; ///< Source/Web/published.ts, without what refers to files
    QByteArray scene; ///< the GLB
    QByteArray poster; ///< JPEG; empty for none
    QMap<QString, QByteArray> previews; ///< JPEG, by the names of sets
    QList<QByteArray> lights; ///< Radiance pictures, one for each of the lightings
};

/// Makes web pages of a publication and the viewer that was built with this program.
namespace qxPublishedPage {

/// What stops the program from making pages, to be shown; empty if nothing does.
QString flaw();

/// The files of a folder, the page itself last.
QList<qxPageFiles::File> folder(const qxPublication &publication);
/// One page in UTF-8 that needs no other file.
QByteArray single(const qxPublication &publication);

} // namespace qxPublishedPage
