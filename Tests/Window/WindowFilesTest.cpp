#include "qxNodeVariant.h"
#include "qxVariantSet.h"
#include "qxVariants.h"

#include "WindowFixture.h"

/// Scenes opened, saved and left.
class WindowFilesTest : public WindowFixture {
protected:
    /// Drops files on the window; whether it wants them.
    bool drop(const QStringList &paths)
    {
        QMimeData data;
        QList<QUrl> urls;
        for (const QString &path : paths)
            urls << QUrl::fromLocalFile(path);
        data.setUrls(urls);
        QDragEnterEvent enter(QPoint(9, 9), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(window.get(), &enter);
        if (!enter.isAccepted())
            return false;
        QDropEvent drop(QPointF(9, 9), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(window.get(), &drop);
        EXPECT_EQ(dialogTexts(), QStringList()) << "the source of the drag would wait";
        settle();
        return true;
    }
    static QString sets() { return namesOf(qxVariants::_variantSets); }
    /// Chooses a file in the next dialog.
    void expectFile(const QString &name)
    {
        expectDialog([this, name](QDialog &dialog) {
            dialog.findChild<QLineEdit *>()->setText(path(name));
            dialog.accept();
        });
    }
};

const char *const damagedScene = R"({"asset":{"version":"2.0"},"nodes":[{"name":"Lone"}],
    "scenes":[{"nodes":[0],"extras":{"qxVariants":"<Variants><oops"}}]})";

TEST_F(WindowFilesTest, AFileThatCannotBeOpenedLeavesTheSceneBeforeOpen)
{
    expectErrors(1);
    for (const bool isRead : {false, true}) { // whether the scene before is left already
        SCOPED_TRACE(isRead);
        openDesk();
        select("Evening");
        type("removeVariantSet('Morning')");
        const QString name = isRead ? "damaged.gltf" : "<b>missing.gltf";
        const QString file = isRead ? write(name, damagedScene) : path(name);
        expectDialog([](QDialog &dialog) {
            for (const QLabel *label : dialog.findChildren<QLabel *>())
                EXPECT_EQ(label->textFormat(), Qt::PlainText) << label->text().toStdString();
            dialog.accept();
        });
        EXPECT_FALSE(window->openFile(file));
        const QString shown = dialogTexts().join('\n');
        const QString reason = isRead ? "the variants document cannot be read" : file;
        EXPECT_TRUE(shown.contains('"' + name + "\" cannot be opened."));
        EXPECT_TRUE(shown.contains(reason)) << shown.toStdString();
        EXPECT_EQ(window->windowTitle(), "desk.gltf[*] - Workbench");
        EXPECT_EQ(window->isWindowModified(), !isRead) << "only unread files leave edits";
        EXPECT_EQ(sets().contains("Morning"), isRead);
        const QModelIndex first = tree().model()->index(0, 0);
        EXPECT_EQ(first.data().toString(), "Desk");
        EXPECT_TRUE(Qt::mightBeRichText(first.data(Qt::ToolTipRole).toString())) << "as it stands";
        EXPECT_EQ(action("Back to the State Before")->isEnabled(), !isRead);
        action("Save")->trigger();
        ASSERT_TRUE(window->openFile(path("desk.gltf")));
        EXPECT_EQ(sets().contains("Morning"), isRead);
    }
}

TEST_F(WindowFilesTest, AnUnreadableDocumentWithNothingToReturnToLeavesAnEmptyUsableWindow)
{
    expectErrors(2);
    for (const bool wasOpen : {false, true}) {
        if (wasOpen) {
            openDesk();
            QFile::remove(path("desk.gltf"));
        }
        expectClick("OK");
        EXPECT_FALSE(window->openFile(write("damaged.gltf", damagedScene)));
        EXPECT_EQ(window->windowTitle(), "Workbench[*]");
        EXPECT_FALSE(window->isWindowModified());
        EXPECT_EQ(tree().model()->rowCount(), 0);
    }
    openDesk();
    EXPECT_EQ(sets(), "Morning,Evening,Leer geräumt");
}

TEST_F(WindowFilesTest, OnlyWhatASaveWouldChangeIsUnsaved)
{
    openDesk();
    EXPECT_FALSE(isUnsaved());
    select("Evening");
    EXPECT_FALSE(isUnsaved()) << "nothing was edited";
    EXPECT_TRUE(showsOtherState());
    expectClick("Cancel");
    EXPECT_FALSE(window->close());
    EXPECT_EQ(dialogTexts().filter("shows another state").size(), 1);
    window->goBack();
    EXPECT_FALSE(showsOtherState());
    goTo("Morning");
    press(Qt::Key_Delete);
    EXPECT_TRUE(isUnsaved());
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_FALSE(isUnsaved());
    type("made = createVariantSet('Noon', 'Work')");
    EXPECT_TRUE(isUnsaved());
    type("removeVariantSet('Noon')");
    EXPECT_FALSE(isUnsaved());
    const QModelIndex lamp = tree().model()->index(1, 0);
    tree().model()->setData(lamp, Qt::Unchecked, Qt::CheckStateRole);
    const QString title = window->windowTitle();
    EXPECT_TRUE(QTest::qWaitFor([&] { return window->windowTitle() != title; }, 60000));
    EXPECT_TRUE(showsOtherState()) << "compared in an idle moment";
    type("findNode('Lamp').setActive(True)");
    EXPECT_FALSE(showsOtherState());
    EXPECT_EQ(lamp.data(Qt::CheckStateRole).toInt(), int(Qt::Checked));
}

class LeavingTest : public WindowFilesTest, public testing::WithParamInterface<const char *> {};

TEST_P(LeavingTest, UnsavedChangesAreAskedForAtEveryWayOut)
{
    const QString button = GetParam();
    openDesk();
    const QString other = write("other.gltf", R"({"asset":{"version":"2.0"}})");
    goTo("Morning");
    auto *const comment = window->setsDock()->findChildren<QPlainTextEdit *>().first();
    comment->setFocus();
    QTest::keyClicks(comment, "Half typed ");
    expectClick(button);
    ASSERT_TRUE(drop({path("notes.txt"), other, path("third.glb")}));
    EXPECT_EQ(dialogTexts().filter("unsaved"), QStringList("\"desk.gltf\" has unsaved changes."));
    EXPECT_EQ(QFileInfo(window->filePath()).fileName() == "other.gltf", button != "Cancel");
    EXPECT_EQ(bytesOf(path("desk.gltf")).contains("Half typed"), button == "Save");
    if (button != "Cancel") {
        EXPECT_TRUE(window->statusBar()->currentMessage().contains("One scene"));
        return;
    }
    EXPECT_TRUE(window->isWindowModified());
    expectClick(button);
    EXPECT_FALSE(window->close());
    EXPECT_TRUE(window->isVisible());
}

INSTANTIATE_TEST_SUITE_P(All, LeavingTest, testing::Values("Save", "Discard", "Cancel"));

TEST_F(WindowFilesTest, AFailedSaveIsAnErrorAndTheWindowStaysOpen)
{
    openDesk();
    EXPECT_EQ(type("made = createVariantSet('Noon', 'Work')"), "");
    QFile::remove(path("desk.gltf"));
    QDir().mkpath(path("desk.gltf/in the way"));
    expectClick("Save");
    expectClick("OK");
    EXPECT_FALSE(window->close());
    EXPECT_TRUE(window->isWindowModified());
    EXPECT_EQ(dialogTexts().filter("cannot be saved"),
              QStringList("\"desk.gltf\" cannot be saved."));
}

TEST_F(WindowFilesTest, SaveAsAddsTheSuffixAndTheFileIsTheOpenOneFromThenOn)
{
    openDesk();
    select("Leer geräumt");
    expectFile("copy");
    action("Save As...")->trigger();
    EXPECT_EQ(window->filePath(), path("copy.gltf"));
    EXPECT_FALSE(window->isWindowModified());
    type("removeVariantSet('Morning')");
    action("Save")->trigger();
    ASSERT_TRUE(window->openFile(path("copy.gltf")));
    EXPECT_EQ(sets(), "Evening,Leer geräumt");
    EXPECT_EQ(qxVariants::findNodeVariant("Desk")->onCurrent(), "!None");
    ASSERT_TRUE(window->openFile(path("desk.gltf")));
    EXPECT_EQ(sets(), "Morning,Evening,Leer geräumt") << "the first file is as it was";
}

TEST_F(WindowFilesTest, WhatOthersHaveWrittenIsNotOverwrittenUnasked)
{
    openDesk();
    const QByteArray others = sceneWith("desk") + ' ';
    const QString name = write("desk.gltf", others);
    for (const char *button : {"Cancel", "Save As...", "Overwrite"}) {
        EXPECT_EQ(type("made = createVariantSet('Noon', 'Work')"), "");
        expectClick(button);
        if (*button == 'S')
            expectFile("mine.gltf");
        EXPECT_EQ(window->saveFile(name), *button != 'C');
        EXPECT_EQ(bytesOf(name) == others, *button != 'O');
    }
    EXPECT_TRUE(bytesOf(path("mine.gltf")).contains("Noon"));
    EXPECT_EQ(dialogTexts().filter("has changed on the disk").size(), 3);
    EXPECT_TRUE(window->saveFile(name));
}

TEST_F(WindowFilesTest, SetsMadeWithoutASceneAreNotLostUnasked)
{
    type("made = createVariantSet('Lone', 'Group')");
    expectClick("Cancel");
    EXPECT_FALSE(window->close());
    EXPECT_EQ(dialogTexts().filter("unsaved"), QStringList("The scene has unsaved changes."));
    expectClick("Save");
    expectFile("new.glb");
    EXPECT_TRUE(window->close());
    makeWindow();
    ASSERT_TRUE(window->openFile(path("new.glb")));
    EXPECT_EQ(sets(), "Lone");
}

TEST_F(WindowFilesTest, TheLastFilesAreRememberedNewestFirst)
{
    const auto recent = [this] {
        Q_EMIT window->recentMenu()->aboutToShow();
        return window->recentMenu()->actions();
    };
    const QString other = write("R&D.gltf", R"({"asset":{"version":"2.0"}})");
    ASSERT_EQ(recent().size(), 1);
    EXPECT_FALSE(recent().first()->isEnabled());
    openDesk();
    ASSERT_TRUE(window->openFile(other));
    openDesk();
    makeWindow();
    const QList<QAction *> entries = recent();
    ASSERT_EQ(entries.size(), 2);
    EXPECT_EQ(entries[0]->text(), "&1 desk.gltf");
    EXPECT_EQ(entries[1]->text(), "&2 R&&D.gltf");
    entries[1]->trigger();
    EXPECT_EQ(window->filePath(), other);
}

TEST_F(WindowFilesTest, TheLayoutIsRemembered)
{
    const auto dock = [this](const char *name) { return window->findChild<QDockWidget *>(name); };
    dock("log")->hide();
    window->addDockWidget(Qt::RightDockWidgetArea, dock("scene"));
    window->resize(1000, 640);
    window->close();
    makeWindow(QSize());
    EXPECT_EQ(window->size(), QSize(1000, 640));
    EXPECT_FALSE(dock("log")->isVisible());
    EXPECT_EQ(window->dockWidgetArea(dock("scene")), Qt::RightDockWidgetArea);
}

TEST_F(WindowFilesTest, TheScriptsOfAFileWaitForAnAnswerThatIsRemembered)
{
    trustsScripts = false;
    const auto answer = [this](const char *button) {
        expectDialog([button](QDialog &dialog) {
            const auto &script = *dialog.findChild<QPlainTextEdit *>();
            EXPECT_EQ(script.toPlainText(), "print(\"late\")");
            EXPECT_TRUE(script.isReadOnly());
            for (QPushButton *each : dialog.findChildren<QPushButton *>()) {
                EXPECT_EQ(each->isDefault(), each->text() == "&Not Now");
                if (each->text().remove('&') == button)
                    each->click();
            }
        });
    };
    /// The script, when it runs, makes a line of the log.
    const auto runs = [this] {
        const auto &log = *window->findChild<QDockWidget *>("log")->findChild<QPlainTextEdit *>();
        const int before = log.toPlainText().count("\nlate");
        select("Evening");
        return log.toPlainText().count("\nlate") > before;
    };
    struct Step {
        bool fromMenu; ///< or else the file is opened
        const char *button; ///< empty for no question
        bool isRun;
    };
    for (const Step &step : std::initializer_list<Step>{{false, "Not Now", false},
                                                        {false, "Never", false},
                                                        {false, "", false},
                                                        {true, "Trust", true},
                                                        {false, "", true}}) {
        SCOPED_TRACE(step.button);
        if (*step.button)
            answer(step.button);
        if (step.fromMenu)
            action("Scripts of This File...")->trigger();
        else
            openDesk();
        EXPECT_EQ(window->statusBar()->currentMessage().startsWith("Scripts of this file are not"),
                  !step.isRun);
        EXPECT_EQ(runs(), step.isRun);
    }
}
