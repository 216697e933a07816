#pragma once

#include <QStringList>

class QWidget;

/// What a screen reader would have to call by its kind alone: the controls in the widget, shown or
/// not, that have no name.
QStringList namelessIn(const QWidget &widget);
