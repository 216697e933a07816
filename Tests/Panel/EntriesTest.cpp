#include "qxVariantKinds.h"

#include "DockFixture.h"
#include "Entries/qxSetEntriesView.h"
#include "Problems/qxProblems.h"
#include "Undo/qxSetMemento.h"
#include "qxDragData.h"
#include "qxPanelEvents.h"
#include "qxStateWords.h"

/// What a set holds, in the table of the form.
class EntriesTest : public DockFixture {
protected:
    EntriesTest() { click("Red"); }

    QTreeView &table() { return *sets.findChild<qxSetEntriesView *>(); }
    /// The texts of the table, such as "Wheels node Steel ≠ Alloy;".
    QString shown()
    {
        QString text;
        const QAbstractItemModel &model = *table().model();
        for (int row = 0; row < model.rowCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < 4; ++column)
                cells << model.index(row, column).data().toString();
            text += cells.join(' ').trimmed() + ';';
        }
        return text;
    }
    QModelIndex cell(const QString &name, int column = 0)
    {
        const QModelIndex first = table().model()->index(0, 0);
        const QModelIndexList found =
            table().model()->match(first, Qt::DisplayRole, name, 1, Qt::MatchExactly);
        return found.isEmpty() ? QModelIndex() : found.first().sibling(found.first().row(), column);
    }
    void selectRow(const QString &name, bool too = false)
    {
        const auto how = too ? QItemSelectionModel::Select : QItemSelectionModel::ClearAndSelect;
        table().selectionModel()->setCurrentIndex(cell(name), how | QItemSelectionModel::Rows);
        table().setFocus();
    }
    /// The context menu of the selection.
    QMenu &menu()
    {
        Q_EMIT table().customContextMenuRequested(QPoint());
        return *sets.findChildren<QMenu *>("entries").last();
    }
    static QAction *actionIn(const QMenu &menu, const QString &text)
    {
        for (QAction *action : menu.actions()) {
            if (action->text().remove('&') == text)
                return action;
        }
        return nullptr;
    }
    void choose(const QString &text)
    {
        QMenu &opened = menu();
        QAction *const action = actionIn(opened, text); // which outlives the menu
        opened.close();
        action->trigger();
        settle();
    }
    void drop(const QMimeData &data)
    {
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(table().viewport(), &enter);
        EXPECT_TRUE(enter.isAccepted());
        QDropEvent event(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(table().viewport(), &event);
        settle();
    }
    void type(const char *text)
    {
        auto &line = *sets.findChild<QLineEdit *>("addEntry");
        line.setFocus();
        QTest::keyClicks(&line, text);
        press(line, Qt::Key_Return);
    }
    QString note() { return sets.findChild<QLabel *>("entriesNote")->text(); }

    QUndoStack &steps = *sets.undoStack();
};

TEST_F(EntriesTest, StatesAreWords)
{
    scene.addTransformSwitch("Door", 3);
    scene.addSwitch("Numbered", {"Transform 1"});
    scene.addPoses("Lid", {"Transform 1", "!Next"});
    qxVariant &door = *qxVariants::createNodeVariant(qxScenegraph::findNode("Door"), false);
    qxVariant &numbered = *qxVariants::createNodeVariant(qxScenegraph::findNode("Numbered"), false);
    struct Row {
        const qxVariantKind &kind;
        const qxVariant *variant;
        const char *state;
        const char *word;
        bool isAction = false;
    };
    using namespace qxVariantKinds;
    const Row rows[] = {{node, nullptr, "!Enable", "shown"},
                        {overlay, nullptr, "!Disable", "hidden"},
                        {light, nullptr, "!Enable", "on"},
                        {light, nullptr, "!Disable", "off"},
                        {light, nullptr, "!Toggle", "toggle", true},
                        {light, nullptr, "!Next", "!Next"}, // which lights do not know
                        {material, nullptr, "!Toggle", "!Toggle"},
                        {material, nullptr, "!Previous", "previous", true},
                        {transform, nullptr, "!Next (Loop)", "next (loop)", true},
                        {node, nullptr, "!All", "all"},
                        {node, nullptr, "!None", "none"},
                        {node, nullptr, "Steel", "Steel"},
                        {node, nullptr, "Transform 2", "Place 3"},
                        {node, &door, "Transform 2", "Place 3 of 3"},
                        {node, &door, "Transform 02", "Transform 02"},
                        {node, &numbered, "Transform 1", "Transform 1"},
                        {transform, nullptr, "Transform 1", "Transform 1"}};
    for (const Row &row : rows) {
        EXPECT_EQ(qxStateWords::shown(row.kind, row.variant, row.state), row.word) << row.state;
        EXPECT_EQ(qxStateWords::isAction(row.kind, row.state), row.isAction) << row.state;
    }
    const auto choices = qxStateWords::choicesOf(node, door);
    EXPECT_EQ(choices.front(), "Transform 0") << "actions stand first in the variant";
    EXPECT_EQ(choices.back(), "!Previous (Loop)");
}

TEST_F(EntriesTest, AllThatASetHoldsHasARow)
{
    scene.addLight("Lamp");
    scene.addViewpoint("Home");
    qxVariantSet &held = set("Red");
    held.add(qxVariants::createLightVariant(qxScenegraph::findNode("Lamp"), false), "!Disable");
    held.addMaterialVariant("Gone", "Green");
    held.addNodeVariant("Wheels", "!Next");
    held.addViewpoint("Home");
    held.addViewpoint("Away");
    held.addAnimation("Spin");
    held.addTargetNodeName("Wheels");
    held.addGeometry("Body");
    held.setClippingState(qxAnalyzerVariant::Disable);
    held.addMaterialSnapshot("Car/Body", "Paint");
    held.setInclInfo(true, false, true, false, false);
    announce();
    EXPECT_EQ(shown(),
              "Wheels node next Steel;Gone material Green \u2260 (no such variant);"
              "Lamp light off \u2260 on;Home viewpoint camera goes there;"
              "Away viewpoint not used: not the first;Spin animation starts;"
              "Wheels target node shown before all else;Body geometry left to scripts;"
              "Clipping plane clipping off;Car/Body snapshot Paint;"
              "What was captured capture nodes, lights;");
    EXPECT_EQ(cell("Lamp", 2).data(Qt::ToolTipRole).toString().contains("!Disable"), true);
    EXPECT_EQ(cell("Lamp", 3).data(Qt::AccessibleTextRole), "differs: on");

    const qxSetMemento before = qxSetMemento::of(held);
    table().selectAll();
    table().setFocus();
    press(table(), Qt::Key_Delete);
    EXPECT_EQ(shown(), "");
    EXPECT_TRUE(held.isEmpty() && !held.inclNodes && held.materialSnapshots.isEmpty());
    EXPECT_EQ(steps.undoText(), "Remove 11 entries from \"Red\"");
    undo();
    EXPECT_FALSE(qxSetMemento::differ(before, qxSetMemento::of(held)));
}

TEST_F(EntriesTest, AStateIsChosenByKeys)
{
    set("Red").addNodeVariant("Gone", "Old");
    set("Red").addAnimation("Spin");
    set("Red").addAnimation("Turn");
    announce();
    const auto chooseBy = [&](const char *row, std::initializer_list<Qt::Key> keys) {
        selectRow(row);
        press(table(), Qt::Key_F2);
        auto *const list = table().findChild<QComboBox *>();
        if (!list)
            return false;
        EXPECT_TRUE(QTest::qWaitFor([&] { return list->view()->isVisible(); }));
        for (const Qt::Key key : keys)
            QTest::keyClick(list->view(), key);
        settle();
        return true;
    };
    EXPECT_TRUE(chooseBy("Wheels", {Qt::Key_Down, Qt::Key_Return}));
    EXPECT_EQ(set("Red").findNodeVariant("Wheels")->state, "Alloy");
    EXPECT_EQ(steps.undoText(), "State of \"Wheels\" in \"Red\"");
    EXPECT_TRUE(shown().startsWith("Wheels node Alloy \u2260 Steel;")) << shown().toStdString();
    EXPECT_TRUE(table().hasFocus());
    EXPECT_FALSE(chooseBy("Gone", {})) << "nothing is known to choose from";
    EXPECT_TRUE(chooseBy("Turn", {Qt::Key_Down, Qt::Key_Return}));
    EXPECT_TRUE(set("Red").sequentialAnimation);
    undo();
    undo();
    EXPECT_EQ(set("Red").findNodeVariant("Wheels")->state, "Steel");
}

TEST_F(EntriesTest, AChoiceForSeveralIsOneStep)
{
    const TestNode more = scene.addSwitch("More", {"Steel", "Alloy", "Wood"});
    more.choose(2);
    set("Red").add(qxVariants::createNodeVariant(more, true), "Steel");
    qxVariants::findNodeVariant("Wheels")->add("Spare", "");
    set("Red").addViewpoint("Home");
    announce();
    selectRow("Wheels");
    selectRow("More", true);
    QMenu &states = *actionIn(menu(), "State")->menu();
    for (const char *ofOne : {"Wood", "Spare"})
        EXPECT_EQ(actionIn(states, ofOne), nullptr) << ofOne;
    EXPECT_TRUE(actionIn(states, "Steel")->isChecked());
    actionIn(states, "Alloy")->trigger();
    settle();
    EXPECT_TRUE(shown().startsWith("Wheels node Alloy \u2260 Steel;More node Alloy \u2260 Wood;"));
    choose("Take the State Shown");
    EXPECT_TRUE(shown().startsWith("Wheels node Steel Steel;More node Wood Wood;"));
    EXPECT_EQ(steps.count(), 2);
    selectRow("Home");
    EXPECT_FALSE(actionIn(menu(), "Take the State Shown")->isEnabled());
}

TEST_F(EntriesTest, WhatIsFoundIsAddedAsTheSceneShowsIt)
{
    const TestNode lamp = scene.addLight("Lamp");
    qxVariants::createLightVariant(lamp, true);
    qxVariants::createNodeVariant("Nothing", true);
    scene.addViewpoint("Lamp View");
    settle();
    type("lamp");
    type("view");
    type("wheels");
    type("nothing");
    type("unknown");
    EXPECT_EQ(shown(),
              "Wheels node Steel Steel;Lamp light on on;"
              "Lamp View viewpoint camera goes there;");
    EXPECT_EQ(steps.count(), 2) << "the wheels were there already";
    EXPECT_EQ(table().currentIndex().row(), 0) << "they are shown all the same";
    EXPECT_TRUE(note().contains("Nothing"));
}

TEST_F(EntriesTest, WhatIsDroppedIsAddedInOneStep)
{
    const TestNode hood = scene.addSwitch("Hood", {"Open", "Shut"}).choose(1);
    const TestNode gone = scene.add("Gone");
    QMimeData data;
    qxDragData::setStates(data, {{&qxVariantKinds::node, "Wheels", "Alloy"}});
    qxDragData::setNodes(data, {hood.node(), gone.node(), wheels.node()});
    gone.remove();
    click("Leather");
    drop(data);
    EXPECT_EQ(shown(), "Wheels node Steel Steel;Hood node Shut Shut;");
    EXPECT_TRUE(note().contains("1 variants were made")) << note().toStdString();
    undo();
    EXPECT_EQ(shown(), "Wheels node Alloy \u2260 Steel;");
    EXPECT_EQ(qxVariants::findNodeVariant("Hood"), nullptr);
    undo();
    EXPECT_EQ(shown(), "");

    QMimeData nameless;
    qxDragData::setNodes(nameless, {scene.add("").node()});
    drop(nameless);
    EXPECT_FALSE(note().isEmpty());
    EXPECT_FALSE(steps.canUndo()) << "nothing came of it";
}

TEST_F(EntriesTest, CopiedEntriesArePastedIntoAnotherSet)
{
    selectRow("Wheels");
    press(table(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "Wheels: Steel");
    click("Leather");
    table().setFocus();
    press(table(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(shown(), "Wheels node Steel Steel;");
}

TEST_F(EntriesTest, WhatIsBrokenIsMarkedAndRepaired)
{
    qxPanelEvents events;
    qxProblems problems(&events, {});
    sets.setProblems(&problems);
    set("Red").addNodeVariant("Wheel", "Steel");
    announce();
    problems.update();
    EXPECT_EQ(cell("Wheels", 4).data().toString(), "");
    EXPECT_EQ(cell("Wheel", 4).data().toString(), "QX301");
    EXPECT_TRUE(cell("Wheel", 4).data(Qt::ToolTipRole).toString().contains("QX301"));
    EXPECT_FALSE(table().isColumnHidden(4));
    set("Red").removeNodeVariant("Wheels");
    announce();
    selectRow("Wheel");
    QMenu &repairs = *actionIn(menu(), "Repair")->menu();
    Q_EMIT repairs.aboutToShow();
    ASSERT_NE(actionIn(repairs, "Wheels"), nullptr);
    actionIn(repairs, "Wheels")->trigger();
    settle();
    problems.update();
    EXPECT_EQ(shown(), "Wheels node Steel Steel;");
    EXPECT_TRUE(table().isColumnHidden(4)) << "nothing is broken any more";
    undo();
    EXPECT_TRUE(shown().startsWith("Wheel node"));
}

TEST_F(EntriesTest, AVariantIsRenamedWithAllThatRefersToIt)
{
    QTimer::singleShot(0, &sets, [] {
        auto &dialog = *static_cast<QInputDialog *>(QApplication::activeModalWidget());
        dialog.setTextValue("Rims");
        dialog.accept();
    });
    selectRow("Wheels");
    choose("Rename Variant...");
    EXPECT_EQ(shown(), "Rims node Steel Steel;");
    EXPECT_NE(set("Blue").findNodeVariant("Rims"), nullptr);
    choose("Show in the Variants Dock");
    EXPECT_EQ(tree().selectionModel()->selectedRows().value(0).data().toString(), "Rims");
    undo();
    EXPECT_EQ(shown(), "Wheels node Steel Steel;");
}

/// A variant that counts how often it is asked what the scene shows.
class CountingVariant : public qxNodeVariant {
public:
    explicit CountingVariant(int number) { name = QString::number(number); }
    qxShownState shown() const override
    {
        ++asked;
        return {"Steel", QString()};
    }
    static int asked;
};
int CountingVariant::asked = 0;

TEST_F(EntriesTest, OnlyWhatIsInViewIsLookedUpAndAnEditMovesNothing)
{
    wheels.choose(1); // The set is not what the scene shows, which is all that its list asks for.
    for (int i = 1000; i < 3000; ++i) {
        qxVariantKinds::node.adopt(std::make_unique<CountingVariant>(i), false);
        set("Red").addNodeVariant(QString::number(i), "Steel");
    }
    announce();
    window.repaint();
    EXPECT_GT(CountingVariant::asked, 0);
    EXPECT_LT(CountingVariant::asked, 200);
    selectRow("2000");
    table().scrollTo(table().currentIndex(), QAbstractItemView::PositionAtTop);
    const QRect place = table().visualRect(cell("2000"));
    set("Red").addNodeVariant("3000", "Steel");
    set("Red").removeNodeVariant("2990");
    set("Red").findNodeVariant("2000")->state = "Wood";
    announce();
    EXPECT_EQ(table().visualRect(cell("2000")), place);
    EXPECT_EQ(table().currentIndex(), cell("2000"));
    EXPECT_EQ(cell("2000", 2).data(), "Wood");
    EXPECT_EQ(table().model()->rowCount(), 2001);
    press(table(), Qt::Key_Delete);
    EXPECT_EQ(table().currentIndex().data().toString(), "2001") << "to go on with";
    EXPECT_TRUE(table().selectionModel()->isSelected(table().currentIndex()));
}

TEST_F(EntriesTest, NamesComeBeforeStatesInANarrowDock)
{
    sets.setFloating(true);
    const auto nameBeforeState = [&](int width) {
        sets.resize(width, 700);
        settle();
        return table().columnWidth(0) - table().columnWidth(2);
    };
    nameBeforeState(700);
    EXPECT_FALSE(table().isColumnHidden(1));
    EXPECT_GT(nameBeforeState(250), 0);
    EXPECT_TRUE(table().isColumnHidden(1));
    EXPECT_TRUE(table().horizontalScrollBar()->maximum() == 0);
}
