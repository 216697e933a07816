#pragma once

#include <QByteArray>
#include <QMap>
#include <QStringList>

class QWidget;

/// Pictures sets as each looks when it is selected.
namespace qxSetPreviews {

/// Selects these sets one after the other, pictures each and puts the scene back; what scripts of
/// the sets do beyond that stays. The progress is shown, and the user can end it: the pictures made
/// until then, by the names of sets, are answered.
QMap<QString, QByteArray> make(const QStringList &sets, QWidget *window);

} // namespace qxSetPreviews
