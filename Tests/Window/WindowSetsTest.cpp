#include "qxNodeVariant.h"
#include "qxVariantGroup.h"
#include "qxVariantSet.h"
#include "qxVariants.h"
#include "qxVariantsDock.h"

#include "Window/qxSceneView.h"
#include "Window/qxScriptConsole.h"
#include "WindowFixture.h"
#include "qxLog.h"
#include "qxSetsView.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QStatusBar>
#include <QTest>
#include <QTreeView>

#include <thread>

/// Sets selected, captured and edited in the window, and what scripts do meanwhile.
class WindowSetsTest : public WindowFixture {
protected:
    static QString desktop() { return qxVariants::findNodeVariant("Desk")->onCurrent(); }
    static QStringList setsOf(const char *group)
    {
        QStringList names;
        for (const qxVariantSet *set : qxVariants::findVariantGroup(group)->sets)
            names << set->name;
        return names;
    }
    /// What the dock of variants shows as the state of a node variant.
    QString shownState(const QString &variant) const
    {
        const QAbstractItemModel &model =
            *window->findChild<qxVariantsDock *>()->findChild<QTreeView *>()->model();
        const QModelIndex nodes = model.index(0, 0);
        for (int row = 0; row < model.rowCount(nodes); ++row) {
            if (model.index(row, 0, nodes).data().toString() == variant)
                return model.index(row, 1, nodes).data().toString();
        }
        return QString();
    }
    QModelIndex groupRow(const QString &name) const
    {
        const QAbstractItemModel &model = *list().model();
        return model.match(model.index(0, 0), Qt::DisplayRole, name, 1, Qt::MatchExactly).value(0);
    }
    /// Drags a set of the list in front of a row of a group, -1 for onto the group.
    void drag(const QString &set, const QString &group, int row)
    {
        const std::unique_ptr<QMimeData> data(list().model()->mimeData({goTo(set)}));
        list().model()->dropMimeData(data.get(), Qt::MoveAction, row, 0, groupRow(group));
        settle();
    }
};

TEST_F(WindowSetsTest, ADoubleClickEnterAndTheKeySelectASetAndBackLeadsBack)
{
    openDesk();
    const QRect place = list().visualRect(goTo("Morning"));
    QTest::mouseClick(list().viewport(), Qt::LeftButton, Qt::NoModifier, place.center());
    QTest::mouseDClick(list().viewport(), Qt::LeftButton, Qt::NoModifier, place.center());
    settle();
    EXPECT_EQ(desktop(), "Glass");
    EXPECT_EQ(shownState("Desk"), "Glass");
    EXPECT_EQ(shownState("Lamp"), "!Disable");
    goTo(QStringLiteral("Leer geräumt"));
    press(Qt::Key_Return);
    EXPECT_EQ(desktop(), "!None");
    window->sceneView()->setFocus();
    press(Qt::Key_1, Qt::ControlModifier);
    EXPECT_EQ(desktop(), "Glass");
    press(Qt::Key_Left, Qt::AltModifier);
    settle();
    EXPECT_EQ(desktop(), "!None");
    EXPECT_EQ(shownState("Desk"), "!None");
    press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(desktop(), "Glass") << "Back again leads forward";
}

TEST_F(WindowSetsTest, BackLeadsToTheStateBeforeTheLastSelectionThatDidSomething)
{
    openDesk();
    window->setsDock()->selectSet("Morning");
    settle();
    auto &variants = *window->findChild<qxVariantsDock *>()->findChild<QTreeView *>();
    const QAbstractItemModel &model = *variants.model();
    const QModelIndex desk =
        model.match(model.index(0, 0, model.index(0, 0)), Qt::DisplayRole, "Desk").value(0);
    const QModelIndex option =
        model.match(model.index(0, 0, desk), Qt::DisplayRole, "Oak").value(0);
    ASSERT_TRUE(option.isValid());
    emit variants.activated(option);
    EXPECT_EQ(desktop(), "Oak");
    emit variants.activated(desk); // opens it
    window->setsDock()->selectSet("no such set");
    window->goBack();
    EXPECT_EQ(desktop(), "Glass");
    openDesk();
    EXPECT_FALSE(action("Back to the State Before")->isEnabled()) << "it was another scene";
}

TEST_F(WindowSetsTest, BackKnowsWhatScriptsSelectedAndPassesOverWhatChangedNothing)
{
    openDesk();
    window->setsDock()->selectSet("Morning");
    type("selectVariantSet('Leer geräumt')");
    EXPECT_EQ(desktop(), "!None");
    type("print(1 + 1)");
    window->goBack();
    settle();
    EXPECT_EQ(desktop(), "Glass");
}

TEST_F(WindowSetsTest, ACaptureTakesWhatTheDialogSaysAndBringsItBack)
{
    openDesk();
    window->setsDock()->selectSet(QStringLiteral("Leer geräumt"));
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
    ASSERT_EQ(setsOf("Mine").size(), 1);
    const QString name = setsOf("Mine").first();
    EXPECT_EQ(announced, "\"Morning\" exists; the new set will be \"" + name + "\".");
    const qxVariantSet &set = *qxVariants::findVariantSet(name);
    EXPECT_TRUE(set.nodeVariants.size() > 0 && set.lightVariants.size() == 0);
    EXPECT_TRUE(set.inclNodes && !set.inclMats && !set.inclLights && !set.inclEnv && !set.inclView);
    EXPECT_FALSE(set.preview.isEmpty());
    EXPECT_EQ(window->setsDock()->view()->currentSet(), name);
    window->setsDock()->selectSet("Morning");
    EXPECT_EQ(desktop(), "Glass");
    window->setsDock()->selectSet(name);
    EXPECT_EQ(desktop(), "!None");
}

TEST_F(WindowSetsTest, ASetIsUpdatedFromTheSceneAndTakenBack)
{
    openDesk();
    goTo("Morning");
    window->setsDock()->selectSet(QStringLiteral("Leer geräumt"));
    settle();
    goTo("Morning");
    const auto stateOfDesk = [] {
        for (const qxVariantState &state : qxVariants::findVariantSet("Morning")->nodeVariants) {
            if (state.variant == "Desk")
                return state.state;
        }
        return QString();
    };
    expectClick("Update");
    action("Update from Scene...")->trigger();
    EXPECT_EQ(stateOfDesk(), "!None");
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(stateOfDesk(), "Glass");
    QTest::keySequence(&list(), QKeySequence::Redo);
    EXPECT_EQ(stateOfDesk(), "!None");
}

TEST_F(WindowSetsTest, ASetIsRenamedInPlaceAndMovedByDragging)
{
    openDesk();
    goTo("Morning");
    press(Qt::Key_F2);
    auto *const editor = qobject_cast<QLineEdit *>(QApplication::focusWidget());
    ASSERT_NE(editor, nullptr);
    editor->setText("Dawn");
    press(Qt::Key_Return);
    settle();
    EXPECT_EQ(setsOf("Work"), (QStringList{"Dawn", "Evening"}));
    drag("Dawn", "Work", 2);
    EXPECT_EQ(setsOf("Work"), (QStringList{"Evening", "Dawn"}));
    drag(QStringLiteral("Leer geräumt"), "Work", 0);
    EXPECT_EQ(setsOf("Work"), (QStringList{QStringLiteral("Leer geräumt"), "Evening", "Dawn"}));
    for (int step = 0; step < 3; ++step) {
        list().setFocus();
        press(Qt::Key_Z, Qt::ControlModifier);
    }
    EXPECT_EQ(setsOf("Work"), (QStringList{"Morning", "Evening"}));
    settle();
    EXPECT_FALSE(window->isWindowModified());
}

class AmbiguityTest : public WindowSetsTest, public testing::WithParamInterface<bool> {};

TEST_P(AmbiguityTest, NodesOfOneNameAreRenamedBeforeACaptureOnlyWhenTheUserAgrees)
{
    const bool isRenamed = GetParam();
    ASSERT_TRUE(window->openFile(write("twins.gltf", R"({"asset":{"version":"2.0"},
        "scenes":[{"nodes":[0,1]}],"nodes":[
        {"name":"Wheels","children":[2],"extras":{"qxSwitch":0}},
        {"name":"Wheels","children":[3],"extras":{"qxSwitch":0}},
        {"name":"Steel"},{"name":"Alloy"}]})")));
    expectClick("Capture");
    expectClick(isRenamed ? "Rename" : "Cancel");
    action("Capture...")->trigger();
    EXPECT_EQ(dialogTexts().filter("Some nodes have the same name").size(), 1);
    EXPECT_EQ(int(qxVariants::_variantSets.size()), isRenamed ? 1 : 0);
    settle();
    EXPECT_EQ(tree().model()->index(1, 0).data() != "Wheels", isRenamed);
    EXPECT_EQ(window->isWindowModified(), isRenamed);
}
INSTANTIATE_TEST_SUITE_P(BothAnswers, AmbiguityTest, testing::Bool());

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
    EXPECT_TRUE(type("nonsense").contains("NameError"));
    EXPECT_EQ(type("removeVariantSet('Morning')"), "True");
    EXPECT_EQ(list().model()->rowCount(groupRow("Work")), 1);
}

TEST_F(WindowSetsTest, AScriptThatNeverEndsIsEndedByEscape)
{
    openDesk();
    QString status;
    QTimer::singleShot(900, window.get(), [&] {
        EXPECT_FALSE(window->close()) << "not while a script runs";
        status = window->statusBar()->currentMessage();
        QTest::keyClick(window->sceneView(), Qt::Key_Escape);
    });
    EXPECT_TRUE(type("while True: number = 1\n").endsWith("KeyboardInterrupt"));
    EXPECT_EQ(status, "A script is running. Escape ends it.");
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(type("1 + 1"), "2");
}

TEST_F(WindowSetsTest, ANodeIsPickedInTheViewAndHiddenInTheTree)
{
    openDemo();
    QTest::mouseClick(window->sceneView(), Qt::LeftButton, Qt::NoModifier,
                      window->sceneView()->rect().center());
    const QModelIndex picked = tree().currentIndex();
    ASSERT_TRUE(picked.isValid());
    EXPECT_EQ(window->statusBar()->currentMessage(), picked.data().toString());
    EXPECT_TRUE(tree().visualRect(picked).isValid()) << "the way to it is open";
    tree().setFocus();
    press(Qt::Key_Space);
    EXPECT_EQ(picked.data(Qt::CheckStateRole).toInt(), int(Qt::Unchecked));
    QTest::mouseClick(window->sceneView(), Qt::LeftButton, Qt::NoModifier,
                      window->sceneView()->rect().center());
    EXPECT_NE(QPersistentModelIndex(tree().currentIndex()), picked) << "what was behind it";
}

TEST_F(WindowSetsTest, ErrorsStandInTheLogAndInTheStatusLine)
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
}
