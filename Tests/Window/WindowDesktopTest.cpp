#include "qxVariantSet.h"
#include "qxVariants.h"

#include "AccessibleNames.h"
#include "Window/qxDemo.h"
#include "Window/qxFileClaim.h"
#include "Window/qxIcons.h"
#include "Window/qxKeysPage.h"
#include "Window/qxLogView.h"
#include "Window/qxRecentFiles.h"
#include "Window/qxStartPage.h"
#include "Window/qxTheme.h"
#include "WindowFixture.h"
#include "qxLog.h"
#include "qxTestPaths.h"

#include <csignal>

/// What people expect of a program on a desktop, whatever it is for.
class WindowDesktopTest : public WindowFixture {
protected:
    qxStartPage &startPage() const { return *window->findChild<qxStartPage *>(); }
    QListWidget &recent() const { return *startPage().findChild<QListWidget *>(); }
    QStringList recentNames() const
    {
        QStringList names;
        for (int row = 0; row < recent().count(); ++row)
            names << recent().item(row)->text();
        return names;
    }
    static QByteArray previewPicture()
    {
        QImage picture(8, 8, QImage::Format_RGB32);
        picture.fill(Qt::red);
        QBuffer bytes;
        EXPECT_TRUE(picture.save(&bytes, "PNG"));
        return bytes.data();
    }
    QDockWidget &dock(const char *name) const { return *window->findChild<QDockWidget *>(name); }
    /// Starts the program with a file, and waits until it has it.
    void startProgram(QProcess &program, const QString &file) const
    {
        program.setProcessChannelMode(QProcess::MergedChannels);
        program.start(QStringLiteral(QX_BUILD_BIN "/workbench"), {file});
        const QDir claims(folder.path());
        const auto isThere = [&] {
            // The window of the test has one, too. A claim here could come before the program's.
            return claims.entryList({"workbench-*.socket"}, QDir::System).size() == 2
                && qxFileClaim(file).showHolder();
        };
        ASSERT_TRUE(QTest::qWaitFor(isThere, 60000));
    }
};

TEST_F(WindowDesktopTest, TheStartPageOffersRecentFilesAndTheDemo)
{
    EXPECT_TRUE(startPage().isVisible());
    EXPECT_FALSE(window->sceneView()->isVisible());
    openDesk();
    EXPECT_FALSE(startPage().isVisible());
    qxVariants::findVariantSet("Morning")->preview = previewPicture();
    action("Save")->trigger();
    const QString gone = write("gone.gltf", R"({"asset":{"version":"2.0"}})");
    ASSERT_TRUE(window->openFile(gone));
    QFile::remove(gone);
    makeWindow();
    EXPECT_EQ(recentNames(), QStringList({"gone.gltf", "desk.gltf"}));
    for (const bool isMissing : {true, false}) {
        const QListWidgetItem &item = *recent().item(isMissing ? 0 : 1);
        EXPECT_EQ(item.data(Qt::AccessibleTextRole).toString().endsWith(", Missing"), isMissing);
        EXPECT_EQ(item.data(Qt::DecorationRole).value<QPixmap>().isNull(), isMissing);
    }
    EXPECT_EQ(QApplication::focusWidget(), &recent());
    expectClick("Cancel");
    press(Qt::Key_Return);
    EXPECT_EQ(recentNames().size(), 2);
    press(Qt::Key_Delete);
    EXPECT_EQ(recentNames(), QStringList("desk.gltf"));
    QTest::mouseClick(recent().viewport(), Qt::LeftButton, Qt::NoModifier,
                      recent().visualItemRect(recent().item(0)).center());
    EXPECT_EQ(window->filePath(), path("desk.gltf"));
    EXPECT_TRUE(window->sceneView()->isVisible());
}

TEST_F(WindowDesktopTest, TheDemoRunsItsScriptsAndIsSavedElsewhere)
{
    trustsScripts = false; // A question would fail the test.
    ASSERT_EQ(qxDemo::scene(), QX_DEMO_SCENE);
    for (QPushButton *button : startPage().findChildren<QPushButton *>()) {
        if (button->text() == "Demo")
            button->click();
    }
    EXPECT_EQ(window->filePath(), QX_DEMO_SCENE);
    expectDialog([this](QDialog &dialog) {
        EXPECT_NE(static_cast<QFileDialog &>(dialog).directory().path(),
                  QFileInfo(QX_DEMO_SCENE).path());
        dialog.findChild<QLineEdit *>()->setText(path("mine.gltf"));
        dialog.accept();
    });
    press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(window->filePath(), path("mine.gltf"));
}

TEST_F(WindowDesktopTest, AFileIsOpenInOneWindow)
{
    openDesk();
    const QString desk = path("desk.gltf");
    window->showMinimized();
    QProcess second;
    second.start(QStringLiteral(QX_BUILD_BIN "/workbench"), {desk});
    ASSERT_TRUE(QTest::qWaitFor([&] { return second.state() == QProcess::NotRunning; }, 60000));
    EXPECT_EQ(second.exitCode(), 0);
    EXPECT_TRUE(second.readAllStandardOutput().contains("desk.gltf is open"));
    EXPECT_FALSE(window->isMinimized()) << "the second one asked for it";
    EXPECT_FALSE(qxFileClaim(path("./desk.gltf")).isHeld()) << "the same file by another path";

    const QString other = write("other.gltf", sceneWith("desk"));
    QProcess holder;
    startProgram(holder, other);
    window->openAnother(other);
    EXPECT_EQ(window->filePath(), desk);
    EXPECT_TRUE(window->statusBar()->currentMessage().contains("in another window"));
    expectClick("OK");
    EXPECT_FALSE(window->saveFile(other)) << "it would change under the other window";
    ::kill(pid_t(holder.processId()), SIGSTOP);
    for (const char *button : {"Cancel", "Open Here, Too"}) {
        expectClick(button);
        window->openAnother(other);
        EXPECT_EQ(window->filePath(), *button == 'C' ? desk : other);
    }
    ASSERT_TRUE(window->openFile(desk));
    holder.kill();
    holder.waitForFinished();
    window->openAnother(other);
    EXPECT_EQ(window->filePath(), other) << "what was killed claims nothing";
    EXPECT_FALSE(qxFileClaim(other).isHeld());
    EXPECT_TRUE(qxFileClaim(desk).isHeld()) << "the window has left it";
}

TEST_F(WindowDesktopTest, EveryKeyIsListedAndFound)
{
    openDesk();
    press(Qt::Key_F1);
    auto &page = *window->findChild<qxKeysPage *>();
    EXPECT_EQ(namelessIn(page), QStringList());
    const QString all = page.html();
    for (const QWidget *widget : window->findChildren<QWidget *>()) {
        for (const QAction *action : widget->actions()) {
            const QString key = action->shortcut().toString(QKeySequence::NativeText);
            EXPECT_TRUE(all.contains(key.toHtmlEscaped())) << action->text().toStdString();
        }
    }
    const auto foundBy = [&page](const char *text) {
        page.findChild<QLineEdit *>()->setText(text);
        return page.html().count("<td>") / 2;
    };
    EXPECT_EQ(foundBy("shift+s as"), 1);
    EXPECT_EQ(foundBy("morning"), 1) << "a set's own";
    EXPECT_EQ(foundBy("middle button"), 1) << "the mouse";
    EXPECT_EQ(foundBy("no such key"), 0);
    EXPECT_GT(foundBy(""), 40);
    foundBy("ctrl+s");
    for (QPushButton *button : page.findChildren<QPushButton *>()) {
        if (button->text() == "&Copy")
            button->click();
    }
    EXPECT_EQ(QApplication::clipboard()->text().section('\n', 0, 1), "File\nSave\tCtrl+S");
}

TEST_F(WindowDesktopTest, DocksLeaveTheViewItsRoomAtEverySize)
{
    for (const QSize &size :
         {QSize(800, 600), QSize(1280, 800), QSize(1920, 1080), QSize(3840, 2160)}) {
        SCOPED_TRACE(size.width());
        for (const char *language : {"English", "Deutsch"}) {
            makeWindow(size);
            action(language)->trigger();
            openDesk();
            EXPECT_EQ(window->size(), size) << "nothing needs more";
            EXPECT_GE(window->sceneView()->width(), size.width() * 45 / 100);
            EXPECT_GE(window->sceneView()->height(), size.height() * 45 / 100);
            EXPECT_EQ(dock("scene").visibleRegion().isEmpty(), size.width() == 800);
        }
        dock("log").show();
        window->resizeDocks({&dock("log")}, {size.height()}, Qt::Vertical);
        settle();
        EXPECT_LE(dock("log").height(), window->sceneView()->height());
    }
    window->addDockWidget(Qt::LeftDockWidgetArea, &dock("log"));
    dock("scene").setFloating(true);
    dock("qxVariantsDock").hide();
    action("Anordnung zurücksetzen")->trigger();
    settle();
    EXPECT_EQ(window->dockWidgetArea(&dock("log")), Qt::BottomDockWidgetArea);
    EXPECT_FALSE(dock("scene").isFloating());
    EXPECT_TRUE(dock("qxVariantsDock").isVisible());
}

/// As the guidelines for web contents define it (WCAG 2.1, contrast ratio).
static double contrast(const QColor &one, const QColor &other)
{
    const auto luminance = [](const QColor &colour) {
        const auto linear = [](double share) {
            return share <= 0.03928 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF())
            + 0.0722 * linear(colour.blueF());
    };
    const double light = std::max(luminance(one), luminance(other));
    const double dark = std::min(luminance(one), luminance(other));
    return (light + 0.05) / (dark + 0.05);
}

TEST_F(WindowDesktopTest, EveryThemeIsReadableAndLeadsBack)
{
    const auto &log = *window->findChild<qxLogView *>();
    qxLog::warning("A line");
    const QPalette before = QApplication::palette();
    const auto iconColour = [] {
        return qxIcons::of("stop").pixmap(16).toImage().pixelColor(8, 8);
    };
    for (const char *theme : {"Dark", "Light", "Dark", "System"}) {
        SCOPED_TRACE(theme);
        action(theme)->trigger();
        settle();
        const QPalette now = QApplication::palette();
        typedef QPalette P;
        for (const auto &pair :
             QList<QPair<P::ColorRole, P::ColorRole>>{{P::WindowText, P::Window},
                                                      {P::Text, P::Base},
                                                      {P::ButtonText, P::Button},
                                                      {P::HighlightedText, P::Highlight},
                                                      {P::ToolTipText, P::ToolTipBase},
                                                      {P::Text, P::AlternateBase}}) {
            const bool isHighlight = pair.first == P::HighlightedText; // Fusion's own is weaker.
            EXPECT_GE(contrast(now.color(pair.first), now.color(pair.second)),
                      isHighlight ? 3 : 4.5)
                << pair.first;
        }
        EXPECT_EQ(now.color(P::Base).lightness() < 128, *theme == 'D');
        EXPECT_EQ(iconColour(), now.color(P::ButtonText));
        const QTextBlock line = log.document()->lastBlock();
        EXPECT_GE(contrast(line.begin().fragment().charFormat().foreground().color(),
                           log.palette().color(P::Base)),
                  4.5);
    }
    EXPECT_EQ(QApplication::palette(), before);
    action("Dark")->trigger();
    action("Light")->trigger();
    makeWindow();
    EXPECT_EQ(qxTheme::chosen(), qxTheme::Light);
    EXPECT_TRUE(action("Light")->isChecked());
    action("System")->trigger();
}

TEST_F(WindowDesktopTest, ScreenReadersHaveANameForEveryControl)
{
    EXPECT_EQ(namelessIn(*window), QStringList()) << "with the start page";
    openDemo();
    goTo("Rubinrot");
    EXPECT_EQ(namelessIn(*window), QStringList());
}

TEST_F(WindowDesktopTest, WhatTheToolBarDoesTheMenusDo)
{
    QList<QAction *> inMenus;
    for (QMenu *menu : window->findChildren<QMenu *>())
        inMenus += menu->actions();
    for (QAction *each : window->findChild<QToolBar *>("tools")->actions()) {
        EXPECT_TRUE(each->isSeparator() || inMenus.contains(each)) << each->text().toStdString();
        EXPECT_TRUE(each->isSeparator() || !each->icon().isNull()) << each->text().toStdString();
    }
    const auto &bar = *window->findChild<QToolBar *>("tools");
    for (const bool on : {true, false}) {
        action("Text under Icons")->trigger();
        EXPECT_EQ(bar.toolButtonStyle() == Qt::ToolButtonTextUnderIcon, on);
    }
}
