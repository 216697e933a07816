#pragma once

#include "qxNodeVariant.h"

#include "PanelFixture.h"
#include "Sets/qxSetsView.h"
#include "Sets/qxVariantSetsDock.h"
#include "Variants/qxVariantsDock.h"

#include <QtTest>
#include <QtWidgets>

/// The docks in a window, used by hand.
class DockFixture : public PanelFixture {
protected:
    DockFixture()
    {
        wheels.choose(0);
        qxNodeVariant *const variant = qxVariants::createNodeVariant(wheels, true);
        set("Red").add(variant, "Steel");
        set("Blue").add(variant, "Alloy");
        giveKey(set("Blue"), "Ctrl+B");
        qxVariantOption &alloy = *variant->find("Alloy");
        alloy.shortcut = "Ctrl+K";
        alloy.updateShortcut();
        window.addDockWidget(Qt::RightDockWidgetArea, &sets);
        window.addDockWidget(Qt::LeftDockWidgetArea, &variants);
        window.resize(900, 700);
        window.show();
        QApplication::setActiveWindow(&window);
        settle();
    }

    static void giveKey(qxVariantSet &set, const char *key)
    {
        set.hotkey = key;
        set.updateShortcut();
    }
    /// Presses a key in the widget, and lets what that announces reach the views.
    static void press(QWidget &widget, Qt::Key key,
                      Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(&widget, key, modifiers);
        settle();
    }
    void undo()
    {
        sets.undoStack()->undo();
        settle();
    }
    static void announce()
    {
        Q_EMIT qxPanelChanges::the().setsEdited();
        settle();
    }
    void showGallery(bool isShown = true)
    {
        auto &button = *sets.findChild<QToolButton *>("gallery");
        if (button.isChecked() != isShown)
            button.click();
    }
    QTreeView &list() { return *sets.view()->findChild<QTreeView *>(); }
    QTreeView &tree() { return *variants.findChild<QTreeView *>(); }
    QLineEdit &search() { return *sets.findChild<QLineEdit *>("search"); }
    /// Puts the cursor on a set as a click does.
    void click(const char *name)
    {
        sets.view()->showSet(name);
        const QRect place = list().visualRect(list().currentIndex());
        QTest::mouseClick(list().viewport(), Qt::LeftButton, Qt::NoModifier, place.center());
    }

    TestNode wheels = scene.addSwitch("Wheels", {"Steel", "Alloy"});
    QMainWindow window;
    qxVariantSetsDock sets{nullptr};
    qxVariantsDock variants{sets.undoStack()};
};
