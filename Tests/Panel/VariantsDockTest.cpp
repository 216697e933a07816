#include "qxVariantKinds.h"
#include "qxVariantWriter.h"

#include "DockFixture.h"
#include "Variants/qxVariantsView.h"

/// The dock of the variants, used by hand.
class VariantsDockTest : public DockFixture {
protected:
    typedef std::pair<const char *, const char *> Pair;

    qxVariantsView &view() { return static_cast<qxVariantsView &>(tree()); }
    /// Puts the cursor on the variant "Wheels", or on an option of it.
    void go(const QString &option = QString())
    {
        settle();
        QApplication::setActiveWindow(&window); // which a dialog without a window system leaves
        tree().setFocus();
        tree().expandAll();
        view().showOption({&qxVariantKinds::node, "Wheels"}, option);
        settle();
    }
    template <class Widget>
    Widget &part(const char *name)
    {
        return *variants.findChild<Widget *>(name);
    }
    /// What the dock says, empty when nothing.
    QString note()
    {
        const auto &label = part<QLabel>("note");
        return label.isHidden() ? QString() : label.text();
    }
    void trigger(const char *text)
    {
        for (QAction *action : variants.variantActions()) {
            if (action->text().remove('&').startsWith(text) && action->isEnabled())
                action->trigger();
        }
        settle();
    }
    /// Types a new name over that of the current row.
    void rename(const char *name)
    {
        QTest::keyClick(&tree(), Qt::Key_F2);
        auto *const editor = tree().findChild<QLineEdit *>();
        ASSERT_NE(editor, nullptr);
        editor->selectAll();
        QTest::keyClicks(editor, name);
        Q_EMIT qxPanelChanges::the().sceneRestored(); // Rows that are shown anew leave it.
        settle();
        QTest::keyClick(editor, Qt::Key_Return);
        QTest::qWait(0);
        settle();
    }
    /// Lets `answer` answer the next dialog.
    template <class Answer>
    static void answerDialog(Answer answer)
    {
        QTimer::singleShot(0, [answer] {
            auto *const dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            answer(*dialog);
        });
    }
    static void click(QDialog &dialog, const QString &text)
    {
        for (auto *button : dialog.findChildren<QAbstractButton *>()) {
            if (button->text().remove('&') == text)
                return button->click();
        }
        ADD_FAILURE() << "no button " << text.toStdString();
        dialog.reject();
    }
    static std::string document() { return qxVariantWriter().write().toStdString(); }
    static QString stateIn(const char *name)
    {
        const qxVariantState *const entry = set(name).findNodeVariant("Wheels");
        return entry ? entry->state : QString();
    }
    QStringList optionNames()
    {
        QStringList names;
        for (const qxVariantOption &option : qxVariants::findNodeVariant("Wheels")->options)
            names << option.name;
        return names;
    }
    QStringList rowsShown() { return rows(*tree().model()).split(','); }
};

TEST_F(VariantsDockTest, StatesAreWordsAndActionsAreFoldedBelow)
{
    EXPECT_EQ(rowsShown().mid(0, 8).join(','),
              "0 Nodes (1),1 Wheels,2 all,2 none,2 Steel,2 Alloy,2 Actions,3 next");
    go("!Next");
    EXPECT_FALSE(tree().model()->flags(tree().currentIndex()) & Qt::ItemIsEditable);
    EXPECT_EQ(tree().currentIndex().parent().data(), "Actions");
    EXPECT_TRUE(tree().currentIndex().data(Qt::ToolTipRole).toString().contains("!Next"));
    EXPECT_TRUE(tree().isRowHidden(2, QModelIndex())) << "there are no lights";

    wheels.choose(-1);
    scene.addLight("Lamp");
    qxVariants::createLightVariant(scene.root().child(1), true);
    settle();
    EXPECT_FALSE(tree().isRowHidden(2, QModelIndex()));
    go();
    EXPECT_EQ(tree().currentIndex().siblingAtColumn(1).data(), "none");
}

TEST_F(VariantsDockTest, TheSearchLooksAtNamesOfVariantsAndOptions)
{
    scene.add("Door");
    qxVariants::createNodeVariant(scene.root().child(1), true);
    settle();
    for (const Pair &each : {Pair("oo", "Door"), Pair("ALLOY whe", "Wheels")}) {
        part<QLineEdit>("variantSearch").setText(each.first);
        EXPECT_EQ(rowsShown().filter(QRegularExpression("^1 ")).join(','),
                  QString("1 ") + each.second);
    }
    variants.showVariant(qxVariantKinds::node, "Door");
    EXPECT_EQ(tree().currentIndex().data(), "Door") << "the search ends";
}

TEST_F(VariantsDockTest, NamesHaveTheirRoomBeforeStates)
{
    for (const int chars : {15, 28, 60}) {
        tree().resize(chars * tree().fontMetrics().averageCharWidth(), tree().height());
        EXPECT_EQ(tree().isColumnHidden(1), chars == 15);
        EXPECT_GE(tree().columnWidth(0),
                  qMin(chars - 3, 19) * tree().fontMetrics().averageCharWidth());
    }
}

TEST_F(VariantsDockTest, WithoutVariantsItOffersWhatTheSceneHas)
{
    const auto button = [&](const char *text) -> QPushButton * {
        for (auto *each : variants.findChildren<QPushButton *>()) {
            if (each->isVisible() && each->text() == text)
                return each;
        }
        return nullptr;
    };
    EXPECT_EQ(button("Make Variants of 1 switches"), nullptr);
    qxVariants::clearNodeVariants();
    settle();
    EXPECT_FALSE(tree().isVisible());
    ASSERT_NE(button("Make Variants of 1 switches"), nullptr);
    EXPECT_EQ(button("Choose Materials to Switch..."), nullptr);
    QTest::mouseClick(button("Make Variants of 1 switches"), Qt::LeftButton);
    settle();
    EXPECT_TRUE(tree().isVisible());
    EXPECT_EQ(view().currentVariant().name, "Wheels");
    EXPECT_EQ(sets.undoStack()->undoText(), "Make variant \"Wheels\"");
    undo();
    EXPECT_FALSE(tree().isVisible());
}

TEST_F(VariantsDockTest, VariantsAreMadeOfWhatIsChosenOrSelected)
{
    scene.addGeometry("Body", scene.addMaterial("Red"));
    const TestNode hood = scene.add("Hood");
    variants.setSelectedNodes([&] { return std::vector<osg::NodePtr>{hood}; });
    const auto choose = [&](const char *text) {
        QMenu &menu = *part<QToolButton>("new").menu();
        menu.aboutToShow();
        for (QAction *action : menu.actions()) {
            if (action->text() == text)
                return action->trigger();
        }
        ADD_FAILURE() << text;
    };
    answerDialog([](QDialog &dialog) {
        dialog.findChild<QLineEdit *>()->setText("ed");
        click(dialog, "Make Variants");
    });
    choose("Choose Materials...");
    EXPECT_EQ(view().currentVariant().name, "Red Switch");
    choose("Nodes of 1 selected nodes");
    EXPECT_EQ(view().currentVariant().name, "Hood");
    undo();
    undo();
    EXPECT_EQ(qxVariantKinds::count(), 1U);
}

TEST_F(VariantsDockTest, AVariantIsRenamedInPlaceWithItsReferences)
{
    const std::string before = document();
    go();
    rename("Rims");
    EXPECT_EQ(view().currentVariant().name, "Rims");
    EXPECT_EQ(set("Red").nodeVariants.front().variant, "Rims");
    EXPECT_EQ(note(), "");
    rename("  ");
    EXPECT_FALSE(note().isEmpty()) << "why not";
    undo();
    EXPECT_EQ(document(), before);
    EXPECT_EQ(note(), "");
}

TEST_F(VariantsDockTest, AnOptionIsRenamedTogetherWithWhatItNamesInTheScene)
{
    go("Alloy");
    rename("Magnesium");
    EXPECT_EQ(wheels.child(1).name(), "Magnesium");
    EXPECT_EQ(stateIn("Blue"), "Magnesium");
    EXPECT_EQ(view().currentOption(), "Magnesium");
    undo();
    EXPECT_EQ(wheels.child(1).name(), "Alloy");

    qxVariants::findNodeVariant("Wheels")->add("Wood", "");
    Q_EMIT qxPanelChanges::the().variantsEdited();
    settle();
    go("Wood");
    rename("Oak");
    EXPECT_TRUE(optionNames().contains("Oak")) << "it is not in the scene";
}

TEST_F(VariantsDockTest, DeletingAsksWhatHappensToTheEntriesOfSets)
{
    const std::string before = document();
    go();
    answerDialog([](QDialog &dialog) { click(dialog, "Cancel"); });
    press(tree(), Qt::Key_Delete);
    EXPECT_EQ(document(), before);
    for (const char *answer : {"Keep the Entries", "Delete the Entries, Too"}) {
        const bool isKept = answer[0] == 'K';
        go();
        answerDialog([&](QDialog &dialog) { click(dialog, answer); });
        press(tree(), Qt::Key_Delete);
        EXPECT_EQ(qxVariants::findNodeVariant("Wheels"), nullptr);
        EXPECT_EQ(stateIn("Red"), isKept ? "Steel" : "");
        EXPECT_TRUE(note().contains("2 sets")) << note().toStdString();
        undo();
        EXPECT_EQ(document(), before) << "one step";
    }
    scene.add("Unused");
    qxVariants::createNodeVariant(scene.root().child(1), true);
    settle();
    go();
    view().showVariants({{&qxVariantKinds::node, "Unused"}});
    press(tree(), Qt::Key_Delete);
    EXPECT_EQ(qxVariants::findNodeVariant("Unused"), nullptr) << "nobody is asked";
    EXPECT_EQ(view().currentVariant().name, "Wheels");
}

TEST_F(VariantsDockTest, OptionsAreOrderedByKeyAndByDropping)
{
    const QString start = optionNames().join(',');
    go("Steel");
    press(tree(), Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(optionNames().join(','),
              "!All,!None,!Next,!Next (Loop),!Previous,!Previous (Loop),Alloy,Steel");
    EXPECT_EQ(view().currentOption(), "Steel");
    press(tree(), Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(sets.undoStack()->count(), 1) << "it is the last one";
    press(tree(), Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(optionNames().join(','), start);

    QAbstractItemModel &model = *tree().model();
    const QModelIndex row = tree().currentIndex();
    const std::unique_ptr<QMimeData> data(model.mimeData({row}));
    EXPECT_FALSE(model.canDropMimeData(data.get(), Qt::MoveAction, 0, 0, QModelIndex()));
    ASSERT_TRUE(model.canDropMimeData(data.get(), Qt::MoveAction, 0, 0, row.parent()));
    model.dropMimeData(data.get(), Qt::MoveAction, 0, 0, row.parent());
    QTest::qWait(0);
    settle();
    EXPECT_EQ(rowsShown().mid(2, 4).join(','), "2 Steel,2 all,2 none,2 Alloy");
    for (int step = 0; step < 3; ++step)
        undo();
    EXPECT_EQ(optionNames().join(','), start);
}

TEST_F(VariantsDockTest, OptionsComeFromTheSceneOrByHandAndGo)
{
    go("Steel");
    press(tree(), Qt::Key_Delete);
    EXPECT_FALSE(optionNames().contains("Steel"));
    EXPECT_EQ(view().currentOption(), "Alloy") << "which was the next one";
    for (const bool byHand : {false, true}) {
        go();
        answerDialog([&](QDialog &dialog) {
            const auto fields = dialog.findChildren<QLineEdit *>();
            if (byHand)
                QTest::keyClicks(fields.last(), "Wood");
            else
                dialog.findChild<QListView *>()->selectAll();
            click(dialog, "Add");
        });
        press(tree(), Qt::Key_Insert);
        EXPECT_EQ(optionNames().last(), byHand ? "Wood" : "Steel");
        EXPECT_EQ(optionNames().size(), byHand ? 9 : 8);
    }
}

TEST_F(VariantsDockTest, KeyDefaultAndActionAreEditedBelow)
{
    const std::string before = document();
    go("Steel");
    auto &keyField = *variants.findChild<QKeySequenceEdit *>();
    const auto &keyNote = part<QLabel>("optionKeyNote");
    for (const Pair &each : {Pair("Ctrl+J", ""), Pair("Ctrl+K", "\"Alloy\""),
                             Pair("Ctrl+B", "\"Blue\""), Pair("F2", "\"Rename\"")}) {
        keyField.setKeySequence(QKeySequence(each.first));
        Q_EMIT keyField.editingFinished();
        settle();
        EXPECT_EQ(qxVariants::findNodeVariant("Wheels")->find("Steel")->shortcut, each.first);
        EXPECT_EQ(keyNote.isHidden(), !*each.second);
        EXPECT_TRUE(keyNote.text().contains(each.second)) << keyNote.text().toStdString();
    }
    auto &defaults = part<QComboBox>("default");
    EXPECT_EQ(defaults.currentText(), "Steel");
    defaults.setCurrentIndex(defaults.findText("none"));
    defaults.activated(defaults.currentIndex());
    EXPECT_EQ(qxVariants::findNodeVariant("Wheels")->defaultState, "!None");
    variants.findChild<QCheckBox *>()->click();
    settle();
    EXPECT_TRUE(qxVariants::findNodeVariant("Wheels")->isAction("Steel"));
    EXPECT_EQ(tree().currentIndex().parent().data(), "Actions") << "it goes there";
    while (sets.undoStack()->canUndo())
        undo();
    EXPECT_EQ(document(), before);
}

TEST_F(VariantsDockTest, StatesArePutIntoTheCurrentOrAnotherSet)
{
    go("Alloy");
    trigger("Add to \"");
    EXPECT_EQ(stateIn("Red"), "Steel") << "no set is current";
    variants.setCurrentSet("Red");
    trigger("Add to \"");
    EXPECT_EQ(stateIn("Red"), "Alloy");
    EXPECT_TRUE(note().contains("Red"));

    go(); // what is shown
    answerDialog([](QDialog &dialog) {
        dialog.findChild<QLineEdit *>()->setText("leath");
        click(dialog, "Add");
    });
    trigger("Add to Set...");
    EXPECT_EQ(stateIn("Leather"), "Steel");
    answerDialog([](QDialog &dialog) {
        QTest::keyClicks(dialog.findChildren<QLineEdit *>().last(), "Fresh");
        click(dialog, "Add");
    });
    trigger("Add to Set...");
    EXPECT_EQ(stateIn("Fresh"), "Steel");
    undo();
    EXPECT_EQ(qxVariants::findVariantSet("Fresh"), nullptr) << "one step";
}

TEST_F(VariantsDockTest, WhatUsesAVariantIsShownWhenAskedForAndLeadsThere)
{
    go();
    auto &uses = part<QTreeWidget>("uses");
    EXPECT_EQ(uses.topLevelItemCount(), 0);
    part<QTabWidget>("details").setCurrentWidget(&uses);
    EXPECT_EQ(rows(*uses.model()), "0 In 2 sets,1 Red,1 Blue,0 Moves 1 nodes,1 Wheels");
    QSignalSpy spy(&variants, &qxVariantsDock::setWanted);
    osg::NodePtr wanted = osg::NullFC;
    QObject::connect(&variants, &qxVariantsDock::nodeWanted,
                     [&](const osg::NodePtr &node) { wanted = node; });
    uses.itemActivated(uses.topLevelItem(0)->child(1), 0);
    uses.itemActivated(uses.topLevelItem(1)->child(0), 0);
    EXPECT_EQ(spy.value(0).value(0), "Blue");
    EXPECT_TRUE(wanted == wheels.node());
    set("Red").removeNodeVariant("Wheels");
    announce();
    EXPECT_EQ(rows(*uses.model()), "0 In 1 sets,1 Blue,0 Moves 1 nodes,1 Wheels");
}
