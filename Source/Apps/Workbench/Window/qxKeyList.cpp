#include "qxKeyList.h"

#include "qxVariant.h"
#include "qxVariantKinds.h"
#include "qxVariantSet.h"
#include "qxVariants.h"

#include "qxKeyHints.h"
#include "qxKeyText.h"

#include <QAction>
#include <QCoreApplication>
#include <QDockWidget>
#include <QKeySequence>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>

#include <algorithm>

namespace {

QString shownText(QString text)
{
    text.replace(QLatin1String("&&"), QLatin1String("\n"));
    text.remove(QLatin1Char('&'));
    return text.replace(QLatin1Char('\n'), QLatin1Char('&'));
}

/// It is on no keyboard: Shift makes it of Tab.
bool isBackwardTab(const QKeySequence &keys)
{
    return keys.count() == 1 && (keys[0] & ~int(Qt::KeyboardModifierMask)) == Qt::Key_Backtab;
}

QString translated(const char *text)
{
    return QCoreApplication::translate("qxKeyList", text);
}

} // namespace

qxKeyList::qxKeyList(const QMainWindow &window)
{
    const auto *const bar = qobject_cast<const QMenuBar *>(window.menuWidget());
    for (const QAction *action : bar ? bar->actions() : QList<QAction *>()) {
        if (!action->menu())
            continue;
        Section section{shownText(action->text()), {}};
        takeMenu(*action->menu(), section);
        add(section);
    }
    takeWidgets(window);
    takeHotkeys();
}

void qxKeyList::add(const Section &section)
{
    if (section.entries.isEmpty())
        return;
    for (Section &known : m_sections) {
        if (known.title != section.title)
            continue;
        known.entries += section.entries;
        return;
    }
    m_sections.append(section);
}

void qxKeyList::takeMenu(const QMenu &menu, Section &section)
{
    for (const QAction *action : menu.actions()) {
        if (action->menu())
            takeMenu(*action->menu(), section);
        else
            takeAction(*action, section);
    }
}

void qxKeyList::takeAction(const QAction &action, Section &section)
{
    if (m_seen.contains(&action))
        return;
    m_seen.insert(&action);
    QList<QKeySequence> known = action.shortcuts();
    known.erase(std::remove_if(known.begin(), known.end(), isBackwardTab), known.end());
    const QString keys = QKeySequence::listToString(known, QKeySequence::NativeText);
    if (!keys.isEmpty())
        section.entries.append({shownText(action.text()), keys});
}

/// The dock that the widget is in, or else the widget itself.
QString qxKeyList::paneOf(const QWidget &widget)
{
    const QWidget *dock = &widget;
    while (dock && !qobject_cast<const QDockWidget *>(dock))
        dock = dock->parentWidget();
    const QString title = dock ? dock->windowTitle() : widget.accessibleName();
    return title.isEmpty() ? translated(QT_TRANSLATE_NOOP("qxKeyList", "Everywhere")) : title;
}

void qxKeyList::takeWidgets(const QMainWindow &window)
{
    for (const QWidget *widget : window.findChildren<const QWidget *>()) {
        if (widget->window() != &window && !qobject_cast<const QDockWidget *>(widget->window()))
            continue; // Dialogs show their own.
        Section section{paneOf(*widget), {}};
        for (const QAction *action : widget->actions())
            takeAction(*action, section);
        for (const qxKeyHints::Hint &hint : qxKeyHints::of(*widget))
            section.entries.append({hint.effect, hint.keys});
        add(section);
    }
}

void qxKeyList::takeHotkeys()
{
    Section sets{translated(QT_TRANSLATE_NOOP("qxKeyList", "Sets that keys select")), {}};
    for (const qxVariantSet *set : qxVariants::_variantSets) {
        if (set->key > 0)
            sets.entries.append({set->name, qxKeyText::shown(set->hotkey)});
    }
    add(sets);
    Section options{translated(QT_TRANSLATE_NOOP("qxKeyList", "Options that keys select")), {}};
    qxVariantKinds::visit([&options](const qxVariantKind &, const qxVariant &variant) {
        for (const qxVariantOption &option : variant.options) {
            if (option.key > 0)
                options.entries.append({variant.name + QStringLiteral(": ") + option.name,
                                        qxKeyText::shown(option.shortcut)});
        }
    });
    add(options);
}
