#include "qxNodeVariant.h"
#include "qxVariantGroup.h"
#include "qxVariantSet.h"
#include "qxVariants.h"

#include "Entries/qxSetEntriesView.h"
#include "NotificationLog.h"
#include "Problems/qxProblemsDock.h"
#include "WindowFixture.h"
#include "qxLog.h"
#include "qxNames.h"

#include <OpenSG/OSGSimpleAttachments.h>

#include <thread>

/// Sets selected, captured and edited in the window, and what scripts do meanwhile.
class WindowSetsTest : public WindowFixture {
protected:
    static QString desktop() { return qxVariants::findNodeVariant("Desk")->onCurrent(); }
    static QString setsOf(const char *group)
    {
        return namesOf(qxVariants::findVariantGroup(group)->sets);
    }
    static QModelIndex rowOf(const QString &name, const QAbstractItemModel &model,
                             const QModelIndex &parent = QModelIndex())
    {
        const QModelIndex first = model.index(0, 0, parent);
        return model.match(first, Qt::DisplayRole, name, 1, Qt::MatchExactly).value(0);
    }
    QModelIndex groupRow(const QString &name) const { return rowOf(name, *list().model()); }
    QModelIndex nodeVariantRow(const QString &name) const
    {
        return rowOf(name, *variants().model(), variants().model()->index(0, 0));
    }
    /// What the dock of variants shows as the state of a node variant.
    QString shownState(const QString &variant) const
    {
        return nodeVariantRow(variant).siblingAtColumn(1).data().toString();
    }
};

TEST_F(WindowSetsTest, ADoubleClickAndTheKeySelectASetAndBackLeadsBack)
{
    openDesk();
    const QRect place = list().visualRect(goTo("Morning"));
    QTest::mouseClick(list().viewport(), Qt::LeftButton, Qt::NoModifier, place.center());
    QTest::mouseDClick(list().viewport(), Qt::LeftButton, Qt::NoModifier, place.center());
    settle();
    EXPECT_EQ(desktop(), "Glass");
    EXPECT_EQ(shownState("Desk"), "Glass");
    EXPECT_EQ(shownState("Lamp"), "hidden");
    select("Leer geräumt");
    window->sceneView()->setFocus();
    press(Qt::Key_1, Qt::ControlModifier);
    EXPECT_EQ(desktop(), "Glass");
    const NotificationLog notifications;
    press(Qt::Key_Left, Qt::AltModifier);
    settle();
    EXPECT_EQ(desktop(), "!None");
    EXPECT_EQ(shownState("Desk"), "none");
    EXPECT_EQ(notifications.names(), std::vector<std::string>()) << "nothing was selected";
    press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(desktop(), "Glass") << "Back again leads forward";
}

TEST_F(WindowSetsTest, BackLeadsToTheStateBeforeTheLastSelectionThatDidSomething)
{
    openDesk();
    select("Morning");
    const QModelIndex desk = nodeVariantRow("Desk");
    const auto activate = [this](const QModelIndex &row) {
        variants().setCurrentIndex(row);
        Q_EMIT variants().activated(row);
    };
    activate(rowOf("Oak", *desk.model(), desk));
    EXPECT_EQ(desktop(), "Oak");
    activate(desk); // opens it
    select("no such set");
    window->goBack();
    EXPECT_EQ(desktop(), "Glass");
    type("selectVariantSet('Leer geräumt')");
    EXPECT_EQ(desktop(), "!None");
    type("print(1 + 1)");
    window->goBack();
    EXPECT_EQ(desktop(), "Glass");
    openDesk();
    EXPECT_FALSE(action("Back to the State Before")->isEnabled()) << "it was another scene";
}

TEST_F(WindowSetsTest, ACaptureTakesWhatTheDialogSays)
{
    openDesk();
    select("Leer geräumt");
    QString announced;
    expectDialog([&announced](QDialog &dialog) {
        dialog.findChild<QLineEdit *>()->setText("Morning");
        announced = dialog.findChild<QLabel *>("taken")->text();
        dialog.findChild<QComboBox *>()->setCurrentText("Mine");
        for (QCheckBox *box : dialog.findChildren<QCheckBox *>())
            box->setChecked(box->text().contains("Nodes"));
        QTest::keyClick(dialog.findChild<QLineEdit *>(), Qt::Key_Return);
    });
    action("Capture...")->trigger();
    settle();
    const QString name = setsOf("Mine");
    ASSERT_NE(qxVariants::findVariantSet(name), nullptr);
    EXPECT_EQ(announced, "\"Morning\" exists; the new set will be \"" + name + "\".");
    const qxVariantSet &set = *qxVariants::findVariantSet(name);
    EXPECT_TRUE(set.nodeVariants.size() > 0 && set.lightVariants.size() == 0);
    EXPECT_TRUE(set.inclNodes && !set.inclMats && !set.inclLights && !set.inclEnv && !set.inclView);
    EXPECT_FALSE(set.preview.isEmpty());
    EXPECT_EQ(window->setsDock()->view()->currentSet(), name);
}

TEST_F(WindowSetsTest, NodesOfOneNameAreRenamedBeforeACaptureOnlyWhenTheUserAgrees)
{
    for (const bool isRenamed : {false, true}) {
        SCOPED_TRACE(isRenamed);
        openTwins();
        tree().collapseAll();
        tree().expand(tree().model()->index(1, 0));
        tree().setCurrentIndex(tree().model()->index(1, 0));
        expectClick("Capture");
        QStringList shown;
        expectDialog([&](QDialog &dialog) {
            const auto *const table = dialog.findChild<QTableWidget *>();
            for (int column = 0; column < table->columnCount(); ++column)
                shown << table->item(0, column)->text();
            for (QPushButton *button : dialog.findChildren<QPushButton *>()) {
                if (button->text() == (isRenamed ? "Rename" : "Cancel"))
                    return button->click();
            }
        });
        action("Capture...")->trigger();
        EXPECT_EQ(shown, QStringList({"Wheels", "Wheels 2", "Wheels"}));
        const auto &log = *window->findChild<QDockWidget *>("log")->findChild<QPlainTextEdit *>();
        EXPECT_EQ(log.toPlainText().contains("renamed Wheels to \"Wheels 2\""), isRenamed);
        EXPECT_EQ(dialogTexts().filter("Some nodes have the same name").size(), isRenamed ? 2 : 1);
        EXPECT_EQ(int(qxVariants::_variantSets.size()), isRenamed ? 1 : 0);
        EXPECT_EQ(isUnsaved(), isRenamed);
        const QModelIndex second = tree().model()->index(1, 0);
        EXPECT_EQ(second.data() != "Wheels", isRenamed);
        EXPECT_EQ(tree().currentIndex(), second);
        EXPECT_TRUE(tree().isExpanded(second));
        EXPECT_FALSE(tree().isExpanded(tree().model()->index(0, 0)));
        window->setsDock()->undoStack()->undo();
        EXPECT_FALSE(isUnsaved());
        EXPECT_EQ(tree().model()->index(1, 0).data(), "Wheels");
    }
}

TEST_F(WindowSetsTest, ProblemsFollowTheSceneAndLeadToTheirPlaces)
{
    openDesk();
    auto *const dock = window->findChild<qxProblemsDock *>();
    const auto has = [dock](const char *row) {
        const QAbstractItemModel *const model = dock->view()->model();
        return !model->match(model->index(0, 1), Qt::DisplayRole, row).isEmpty();
    };
    EXPECT_TRUE(QTest::qWaitFor([dock] { return dock->windowTitle() != "Problems"; })); // hints
    EXPECT_FALSE(has("Variant Desk"));
    osg::setName(qxNames::findNode("Desk"), "Table");
    type("pass"); // Scripts may have done that.
    EXPECT_TRUE(QTest::qWaitFor([&] { return has("Variant Desk"); }));
    dock->findChild<QLineEdit *>("problemSearch")->setText("Variant Desk");
    dock->view()->setCurrentIndex(dock->view()->model()->index(0, 0));
    Q_EMIT dock->view()->activated(dock->view()->currentIndex());
    EXPECT_EQ(variants().currentIndex().data().toString(), "Desk");
    qxVariants::findVariantSet("Evening")->addViewpoint("Nowhere");
    type("pass");
    EXPECT_TRUE(QTest::qWaitFor([&] {
        dock->findChild<QLineEdit *>("problemSearch")->setText("Nowhere");
        return has("Set Evening: Nowhere");
    }));
    dock->view()->setCurrentIndex(dock->view()->model()->index(0, 0));
    Q_EMIT dock->view()->activated(dock->view()->currentIndex());
    EXPECT_EQ(window->setsDock()->view()->currentSet(), "Evening");
    const auto *const entries = window->setsDock()->findChild<qxSetEntriesView *>();
    EXPECT_EQ(entries->currentIndex().data().toString(), "Nowhere");
}

TEST_F(WindowSetsTest, WhatAScriptMakesShowsAtOnceAndInOneStep)
{
    openDesk();
    goTo("Evening");
    int refreshed = 0;
    QObject::connect(list().model(), &QAbstractItemModel::layoutChanged,
                     [&refreshed] { ++refreshed; });
    EXPECT_EQ(type("for i in range(50): made = createVariantSet('Made %d' % i, 'Loop')\n"), "");
    EXPECT_EQ(refreshed, 1);
    EXPECT_EQ(list().model()->rowCount(groupRow("Loop")), 50);
    EXPECT_EQ(window->setsDock()->view()->currentSet(), "Evening") << "the cursor stays";
    type("selectVariantSet('Morning')");
    EXPECT_EQ(shownState("Desk"), "Glass");
    EXPECT_EQ(window->setsDock()->view()->currentSet(), "Morning");
    EXPECT_EQ(type("removeVariantSet('Morning')"), "True");
    EXPECT_EQ(list().model()->rowCount(groupRow("Work")), 1);
}

TEST_F(WindowSetsTest, AScriptThatNeverEndsIsEndedByEscape)
{
    openDesk();
    qxVariants::findVariantSet("Evening")->script = "while True: pass";
    for (const char *statement :
         {"while True: pass\n", "while True:\n try:\n  n = 1\n  while True: n = 2\n except: pass\n",
          "while True: selectVariantSet('Evening')\n"}) {
        QString status;
        QTimer::singleShot(900, window.get(), [&] {
            EXPECT_FALSE(window->close()) << "not while a script runs";
            status = window->statusBar()->currentMessage();
            QTest::keyClick(window->sceneView(), Qt::Key_Escape);
        });
        EXPECT_TRUE(type(statement).endsWith("KeyboardInterrupt")) << statement;
        EXPECT_EQ(status, "A script is running. Escape ends it.");
        EXPECT_TRUE(window->isVisible());
        EXPECT_EQ(type("1 + 1"), "2");
    }
    expectErrors(1);
    EXPECT_EQ(type("print(getVariantSets()[1])"), "Evening") << "standard output is there again";
}

TEST_F(WindowSetsTest, ANodeIsPickedInTheViewAndHiddenInTheTree)
{
    openDemo();
    const auto pick = [this] {
        QTest::mouseClick(window->sceneView(), Qt::LeftButton, Qt::NoModifier,
                          window->sceneView()->rect().center());
    };
    pick();
    const QModelIndex picked = tree().currentIndex();
    ASSERT_TRUE(picked.isValid());
    EXPECT_TRUE(tree().visualRect(picked).isValid()) << "the way to it is open";
    tree().setFocus();
    press(Qt::Key_Space);
    EXPECT_EQ(picked.data(Qt::CheckStateRole).toInt(), int(Qt::Unchecked));
    pick();
    EXPECT_NE(QPersistentModelIndex(tree().currentIndex()), picked) << "what was behind it";
}

TEST_F(WindowSetsTest, TheLogShowsWhatIsReported)
{
    expectErrors(1);
    qxLog::warning("a warning\n");
    qxLog::error("an error\n");
    const auto *const log = window->findChild<QDockWidget *>("log")->findChild<QPlainTextEdit *>();
    EXPECT_EQ(log->toPlainText(), "a warning\nan error");
    EXPECT_EQ(window->statusBar()->currentMessage(), "an error");
    std::thread([] { qxLog::warning("from afar"); }).join();
    EXPECT_FALSE(log->toPlainText().contains("from afar")) << "widgets belong to one thread";
    settle();
    EXPECT_TRUE(log->toPlainText().endsWith("\nfrom afar"));
    openDesk();
    select("Evening");
    EXPECT_TRUE(log->toPlainText().endsWith("\nlate")) << "its script prints that";
}
