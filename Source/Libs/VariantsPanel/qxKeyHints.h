#pragma once

#include <QList>
#include <QString>

class QWidget;

/// What keys and the mouse do in a widget without being the key of an action, for whoever lists
/// all keys of a window. The widget tells it, in the language of the interface.
namespace qxKeyHints {

/// One of them.
struct Hint {
    QString keys; ///< as shown: "Up, Down", "Middle button"
    QString effect; ///< what they do
};

/// Replaces what the widget has told.
void tell(QWidget &widget, const QList<Hint> &hints);
/// What the widget has told; empty for most.
QList<Hint> of(const QWidget &widget);

} // namespace qxKeyHints
