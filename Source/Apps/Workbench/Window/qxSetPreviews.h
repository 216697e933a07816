#pragma once

#include <QByteArray>
#include <QMap>
#include <QStringList>

class QWidget;

/// Makes pictures of sets, each as it looks when selected.
namespace qxSetPreviews {

/// Selects these sets one after the other, makes a picture of each and restores the scene; other
/// effects of the sets' scripts stay. Shows the progress; the user can cancel. Returns the finished
/// pictures by names of sets.
QMap<QString, QByteArray> make(const QStringList &sets, QWidget *window);

} // namespace qxSetPreviews
