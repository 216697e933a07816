#include "qxNodeVariant.h"
#include "qxVariantSet.h"
#include "qxVariants.h"

#include "Window/qxSceneView.h"
#include "Window/qxScriptConsole.h"
#include "WindowFixture.h"

#include <QAction>
#include <QDropEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QStatusBar>
#include <QTest>
#include <QTreeView>
#include <QUndoStack>

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

    static QStringList sets()
    {
        QStringList names;
        for (const qxVariantSet *set : qxVariants::_variantSets)
            names << set->name;
        return names;
    }
};

TEST_F(WindowFilesTest, AnOpenSceneShowsItsNodesSetsAndVariants)
{
    openDesk();
    EXPECT_EQ(window->windowTitle(), "desk.gltf[*] - Workbench");
    EXPECT_FALSE(window->isWindowModified());
    EXPECT_EQ(tree().model()->index(0, 0).data().toString(), "Desk");
    EXPECT_EQ(list().model()->index(0, 0).data().toString(), "Work");
    EXPECT_TRUE(list().isExpanded(list().model()->index(0, 0)));
    openDemo();
    EXPECT_EQ(window->windowTitle(), "roadster.gltf[*] - Workbench");
    EXPECT_EQ(list().model()->index(0, 0).data().toString(), QStringLiteral("Für die Straße"));
}

struct Unopenable {
    const char *name;
    QByteArray bytes;
    const char *reason;

    friend void PrintTo(const Unopenable &file, std::ostream *out) { *out << file.name; }
};

class UnopenableFileTest : public WindowFilesTest,
                           public testing::WithParamInterface<Unopenable> {};

TEST_P(UnopenableFileTest, IsAnErrorAndLeavesTheSceneBeforeOpen)
{
    openDesk();
    window->setsDock()->selectSet("Evening");
    type("removeVariantSet('Morning')");
    const bool isRead = QByteArray(GetParam().name).startsWith("variants");
    const QString file = GetParam().bytes.isNull() ? path(GetParam().name)
                                                   : write(GetParam().name, GetParam().bytes);
    expectErrors(isRead ? 1 : 0);
    expectClick("OK");
    EXPECT_FALSE(window->openFile(file));
    const QString shown = dialogTexts().join('\n');
    EXPECT_TRUE(shown.contains(QString("\"%1\" cannot be opened.").arg(GetParam().name)));
    EXPECT_TRUE(shown.contains(GetParam().reason)) << shown.toStdString();
    EXPECT_EQ(window->windowTitle(), "desk.gltf[*] - Workbench");
    EXPECT_EQ(window->isWindowModified(), !isRead) << "only unread files leave edits";
    EXPECT_EQ(sets().contains("Morning"), isRead);
    EXPECT_EQ(tree().model()->index(0, 0).data().toString(), "Desk");
    EXPECT_EQ(action("Back to the State Before")->isEnabled(), !isRead);
    action("Save")->trigger();
    ASSERT_TRUE(window->openFile(path("desk.gltf")));
    EXPECT_EQ(sets().contains("Morning"), isRead);
}

const Unopenable unopenable[] = {
    {"missing.gltf", QByteArray(), "missing.gltf"},
    {"text.gltf", "Dear Sir or Madam", "text.gltf"},
    {"empty.glb", "", "empty.glb"},
    {"variants.gltf",
     R"({"asset":{"version":"2.0"},"nodes":[{"name":"Lone"}],
         "scenes":[{"nodes":[0],"extras":{"qxVariants":"<Variants><oops"}}]})",
     "the variants document cannot be read"},
};
INSTANTIATE_TEST_SUITE_P(All, UnopenableFileTest, testing::ValuesIn(unopenable));

TEST_F(WindowFilesTest, AnUnreadableDocumentWithNothingBeforeLeavesAnEmptyUsableWindow)
{
    expectErrors(1);
    expectClick("OK");
    EXPECT_FALSE(window->openFile(write("damaged.gltf", unopenable[3].bytes)));
    EXPECT_EQ(window->windowTitle(), "Workbench[*]");
    EXPECT_FALSE(window->isWindowModified());
    EXPECT_EQ(tree().model()->rowCount(), 0);
    openDesk();
    EXPECT_EQ(sets().size(), 3);
}

TEST_F(WindowFilesTest, OnlyWhatASaveWouldChangeIsUnsaved)
{
    openDesk();
    window->setsDock()->selectSet("Evening");
    settle();
    EXPECT_TRUE(window->isWindowModified()) << "the scene stands another way";
    window->goBack();
    settle();
    EXPECT_FALSE(window->isWindowModified());
    goTo("Morning");
    press(Qt::Key_Delete);
    settle();
    EXPECT_TRUE(window->isWindowModified());
    press(Qt::Key_Z, Qt::ControlModifier);
    settle();
    EXPECT_FALSE(window->isWindowModified());
    type("made = createVariantSet('Noon', 'Work')");
    settle();
    EXPECT_TRUE(window->isWindowModified());
    type("removeVariantSet('Noon')");
    settle();
    EXPECT_FALSE(window->isWindowModified());
    const QModelIndex lamp = tree().model()->index(1, 0);
    tree().model()->setData(lamp, Qt::Unchecked, Qt::CheckStateRole);
    EXPECT_FALSE(window->isWindowModified()) << "comparing waits for an idle moment";
    EXPECT_TRUE(QTest::qWaitFor([this] { return window->isWindowModified(); }, 60000));
    type("findNode('Lamp').setActive(True)");
    EXPECT_FALSE(window->isWindowModified());
    EXPECT_EQ(lamp.data(Qt::CheckStateRole).toInt(), int(Qt::Checked));
}

TEST_F(WindowFilesTest, NamesOfFilesAreNoMarkup)
{
    expectDialog([](QDialog &dialog) {
        for (const QLabel *label : dialog.findChildren<QLabel *>())
            EXPECT_EQ(label->textFormat(), Qt::PlainText) << label->text().toStdString();
        dialog.reject();
    });
    EXPECT_FALSE(window->openFile(path("<b>missing.gltf")));
}

struct Leaving {
    const char *button;
    bool isLeft;
    bool isSaved;

    friend void PrintTo(const Leaving &way, std::ostream *out) { *out << way.button; }
};

class LeavingTest : public WindowFilesTest, public testing::WithParamInterface<Leaving> {
protected:
    bool isSaved()
    {
        QFile file(path("desk.gltf"));
        return file.open(QIODevice::ReadOnly) && file.readAll().contains("Half typed");
    }
};

TEST_P(LeavingTest, UnsavedChangesAreAskedForAtEveryWayOut)
{
    openDesk();
    const QString other = write("other.gltf", R"({"asset":{"version":"2.0"}})");
    goTo("Morning");
    auto *const comment = window->setsDock()->findChildren<QPlainTextEdit *>().first();
    comment->setFocus();
    QTest::keyClicks(comment, "Half typed ");
    expectClick(GetParam().button);
    ASSERT_TRUE(drop({path("notes.txt"), other, path("third.glb")}));
    EXPECT_EQ(dialogTexts().filter("unsaved"), QStringList("\"desk.gltf\" has unsaved changes."));
    EXPECT_EQ(QFileInfo(window->filePath()).fileName() == "other.gltf", GetParam().isLeft);
    EXPECT_EQ(isSaved(), GetParam().isSaved);
    if (GetParam().isLeft) {
        EXPECT_TRUE(window->statusBar()->currentMessage().contains("One scene"));
        return;
    }
    EXPECT_TRUE(window->isWindowModified());
    expectClick(GetParam().button);
    EXPECT_FALSE(window->close());
    EXPECT_TRUE(window->isVisible());
}

const Leaving waysOut[] = {
    {"Save", true, true}, {"Discard", true, false}, {"Cancel", false, false}};
INSTANTIATE_TEST_SUITE_P(All, LeavingTest, testing::ValuesIn(waysOut));

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
    window->setsDock()->selectSet(QStringLiteral("Leer geräumt"));
    expectDialog([this](QDialog &dialog) {
        dialog.findChild<QLineEdit *>()->setText(path("copy"));
        dialog.accept();
    });
    action("Save As...")->trigger();
    EXPECT_EQ(window->filePath(), path("copy.gltf"));
    EXPECT_FALSE(window->isWindowModified());
    type("removeVariantSet('Morning')");
    action("Save")->trigger();
    ASSERT_TRUE(window->openFile(path("copy.gltf")));
    EXPECT_EQ(sets(), (QStringList{"Evening", QStringLiteral("Leer geräumt")}));
    EXPECT_EQ(qxVariants::findNodeVariant("Desk")->onCurrent(), "!None");
    ASSERT_TRUE(window->openFile(path("desk.gltf")));
    EXPECT_EQ(sets().size(), 3) << "the first file is as it was";
}

TEST_F(WindowFilesTest, SetsMadeWithoutASceneAreNotLostUnasked)
{
    type("made = createVariantSet('Lone', 'Group')");
    expectClick("Cancel");
    EXPECT_FALSE(window->close());
    EXPECT_EQ(dialogTexts().filter("unsaved"), QStringList("The scene has unsaved changes."));
    expectClick("Save");
    expectDialog([this](QDialog &dialog) {
        dialog.findChild<QLineEdit *>()->setText(path("new.glb"));
        dialog.accept();
    });
    EXPECT_TRUE(window->close());
    makeWindow();
    ASSERT_TRUE(window->openFile(path("new.glb")));
    EXPECT_EQ(sets(), QStringList("Lone"));
}

TEST_F(WindowFilesTest, TheLastFilesAreRememberedNewestFirst)
{
    const QString other = write("R&D.gltf", R"({"asset":{"version":"2.0"}})");
    emit window->recentMenu()->aboutToShow();
    ASSERT_EQ(window->recentMenu()->actions().size(), 1);
    EXPECT_FALSE(window->recentMenu()->actions().first()->isEnabled());
    openDesk();
    ASSERT_TRUE(window->openFile(other));
    openDesk();
    makeWindow();
    emit window->recentMenu()->aboutToShow();
    const QList<QAction *> entries = window->recentMenu()->actions();
    ASSERT_EQ(entries.size(), 2);
    EXPECT_EQ(entries[0]->text(), "&1 desk.gltf");
    EXPECT_EQ(entries[1]->text(), "&2 R&&D.gltf");
    entries[1]->trigger();
    EXPECT_EQ(window->filePath(), other);
}

TEST_F(WindowFilesTest, TheLayoutIsRemembered)
{
    auto *const log = window->findChild<QDockWidget *>("log");
    log->hide();
    window->addDockWidget(Qt::RightDockWidgetArea, window->findChild<QDockWidget *>("scene"));
    window->resize(1000, 640);
    window->close();
    makeWindow();
    EXPECT_EQ(window->size(), QSize(1000, 640));
    EXPECT_FALSE(window->findChild<QDockWidget *>("log")->isVisible());
    EXPECT_EQ(window->dockWidgetArea(window->findChild<QDockWidget *>("scene")),
              Qt::RightDockWidgetArea);
}
