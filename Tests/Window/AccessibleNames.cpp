#include "AccessibleNames.h"

#include <QtWidgets>

/// Parts of other controls, which speak for them.
static bool isPart(const QWidget &widget)
{
    const QWidget *const parent = widget.parentWidget();
    return widget.objectName().startsWith("qt_") || qobject_cast<const QScrollBar *>(&widget)
        || qobject_cast<const QHeaderView *>(&widget) || qobject_cast<const QMenuBar *>(&widget)
        || qobject_cast<const QTabBar *>(&widget) || qobject_cast<const QSplitterHandle *>(&widget)
        || qobject_cast<const QComboBox *>(parent) || qobject_cast<const QAbstractSpinBox *>(parent)
        || qobject_cast<const QKeySequenceEdit *>(parent)
        || qobject_cast<const QAbstractItemView *>(parent)
        || widget.inherits("QComboBoxPrivateContainer") || widget.inherits("QComboBoxListView")
        || widget.inherits("QToolBarExtension") || qobject_cast<const QLineEdit *>(parent);
}

QStringList namelessIn(const QWidget &widget)
{
    QStringList found;
    for (QWidget *each : widget.findChildren<QWidget *>()) {
        const bool isControl =
            each->focusPolicy() != Qt::NoFocus || qobject_cast<QAbstractButton *>(each);
        const bool isSilent = qobject_cast<QScrollArea *>(each) || qobject_cast<QLabel *>(each);
        if (!isControl || isSilent || isPart(*each) || each->focusProxy())
            continue;
        if (QAccessible::queryAccessibleInterface(each)->text(QAccessible::Name).isEmpty())
            found << QString::fromLatin1(each->metaObject()->className()) + ' ' + each->objectName()
                    + " in " + each->parentWidget()->metaObject()->className();
    }
    return found;
}
