#include "qxVariantSet.h"
#include "qxVariants.h"

#include "Cameras/qxMainView.h"
#include "Publish/qxPublishedPage.h"
#include "Session/qxSceneSnapshot.h"
#include "Sets/qxGallery.h"
#include "Sets/qxSetsModel.h"
#include "Window/qxPreviewMaker.h"
#include "WindowFixture.h"
#include "qxTestPaths.h"

/// Pictures that the window makes are those of the commands.
class WindowExportTest : public WindowFixture {
protected:
    static void run(const QStringList &arguments)
    {
        QProcess program;
        program.start(QStringLiteral(QX_BUILD_BIN "/workbench"), arguments);
        ASSERT_TRUE(program.waitForFinished(60000));
        EXPECT_EQ(program.exitCode(), 0) << program.readAllStandardError().toStdString();
    }
    static QByteArray contents(const QString &file)
    {
        QFile in(file);
        in.open(QIODevice::ReadOnly);
        return in.readAll();
    }
    static QMap<QString, QByteArray> previews()
    {
        QMap<QString, QByteArray> all;
        for (const qxVariantSet *set : qxVariants::_variantSets) {
            if (!set->preview.isEmpty())
                all[set->name] = set->preview;
        }
        return all;
    }
    bool waitFor(const std::function<bool()> &isSo) const { return QTest::qWaitFor(isSo, 60000); }
    bool isMaking() const { return window->findChild<qxPreviewMaker *>()->isRunning(); }
    QString stale() const
    {
        settle();
        QStringList names;
        const auto &model = static_cast<const qxSetsModel &>(*list().model());
        for (const QString &set : model.setsInOrder()) {
            if (model.indexOfSet(set).data(qxSetsModel::StaleRole).toBool())
                names << set;
        }
        return names.join(',');
    }
    /// Away from the viewpoint that previews are made from.
    void lookFromFar() const
    {
        for (int i = 0; i < 9; ++i)
            action("Zoom Out")->trigger();
    }
    /// Answers the question for a size and the one for the file.
    void expectQuestions(const QString &file, const QSize &size = QSize(), bool isBest = true,
                         bool isTransparent = false)
    {
        if (!size.isEmpty())
            expectDialog([=](QDialog &dialog) {
                dialog.findChildren<QSpinBox *>()[0]->setValue(size.width());
                dialog.findChildren<QSpinBox *>()[1]->setValue(size.height());
                dialog.findChild<QComboBox *>()->setCurrentIndex(isBest ? 1 : 0);
                dialog.findChild<QCheckBox *>()->setChecked(isTransparent);
                dialog.accept();
            });
        expectDialog([file](QDialog &dialog) {
            dialog.findChild<QLineEdit *>("fileNameEdit")->setText(file);
            dialog.accept();
        });
    }
};

TEST_F(WindowExportTest, PreviewsComeOneByOneWhileTheWindowIsUsedAndAreThoseOfTheCommand)
{
    openSigns();
    action("Show Hidden Groups")->setChecked(true);
    lookFromFar();
    const qxSceneSnapshot before;
    goTo("Stop / halt");
    action("Previews of All Sets")->trigger();
    EXPECT_TRUE(waitFor([] { return !previews().isEmpty(); }));
    EXPECT_TRUE(isMaking()) << "shown before the others are made";
    EXPECT_TRUE(before.isStillSo());
    goTo("Away");
    EXPECT_TRUE(waitFor([this] { return !isMaking(); }));
    EXPECT_TRUE(before.isStillSo());
    EXPECT_EQ(window->setsDock()->view()->currentSet(), "Away") << "where the user left it";
    const auto made = previews();
    EXPECT_EQ(made.size(), int(qxVariants::_variantSets.size()));
    window->setsDock()->undoStack()->undo();
    EXPECT_TRUE(previews().isEmpty()) << "one step";
    run({"previews", "--all", path("signs.gltf"), "--save", path("made.gltf")});
    ASSERT_TRUE(window->openFile(path("made.gltf")));
    EXPECT_EQ(previews(), made);

    action("Previews of All Sets")->trigger();
    settle();
    QTest::mouseClick(
        window->setsDock()->findChild<QWidget *>("galleryBar")->findChildren<QPushButton *>()[1],
        Qt::LeftButton);
    EXPECT_FALSE(isMaking());
    action("Previews of All Sets")->trigger();
    openDesk();
    EXPECT_FALSE(isMaking()) << "the sets are gone";
}

TEST_F(WindowExportTest, PreviewsAreStaleWhenSetSceneOrLightHaveChanged)
{
    openDesk();
    action("Previews of All Sets")->trigger();
    EXPECT_TRUE(waitFor([this] { return !isMaking(); }));
    const QString all = "Morning,Evening,Leer geräumt";
    EXPECT_EQ(stale(), "");
    action("Brighter")->trigger();
    EXPECT_EQ(stale(), all);
    action("Darker")->trigger();
    EXPECT_EQ(stale(), "");
    select("Evening");
    EXPECT_EQ(stale(), "") << "that is no change of what sets show";
    tree().setFocus();
    tree().setCurrentIndex(tree().model()->index(0, 0));
    press(Qt::Key_Space);
    EXPECT_EQ(stale(), all);
}

TEST_F(WindowExportTest, AFileIsTheOneThatTheCommandWrites)
{
    QCoreApplication::setApplicationVersion(QX_VERSION); // Web pages tell it.
    openSigns();
    goTo("Away");
    const QSize size(48, 32);
    const struct {
        const char *action;
        const char *file;
        QStringList command; ///< without the scene
        bool isBest;
        bool isTransparent;
    } cases[] = {
        {"Save Picture...", "best.png", {"render"}, true, false},
        {"Save Picture...", "quick.png", {"render", "--quality", "quick"}, false, false},
        {"Save Picture...", "open.png", {"render", "--background", "none"}, true, true},
        {"Save Sheet...", "sheet.png", {"render", "--all"}, true, false},
        {"Export Catalogue...", "page.html", {"catalogue"}, true, false},
        {"Export Web Page...", "web.html", {"publish"}, true, false},
    };
    for (const auto &each : cases) {
        SCOPED_TRACE(each.file);
        const QString command = each.command.first();
        if (command == "publish" && !qxPublishedPage::flaw().isEmpty())
            continue; // Without esbuild there is no viewer to publish.
        if (each.command.contains("--all")) // The pictures before are those of the window.
            lookFromFar();
        const qxSceneSnapshot before;
        const bool isPicture = command == "render";
        expectQuestions(path(each.file), isPicture ? size : QSize(), each.isBest,
                        each.isTransparent);
        action(each.action)->trigger();
        const QString other = path("by-command");
        QDir().mkdir(other);
        const QString file = other + (isPicture ? "/picture.png" : "/index.html");
        run(each.command + QStringList{path("signs.gltf")}
            + (command == "publish" ? QStringList{"--compress", "--single-file", file}
                   : isPicture      ? QStringList{"--out", file, "--size", "48x32"}
                                    : QStringList{"--out", other}));
        const QByteArray written = contents(path(each.file));
        EXPECT_FALSE(written.isEmpty());
        EXPECT_TRUE(written == contents(file));
        EXPECT_TRUE(before.isStillSo());
        EXPECT_EQ(window->setsDock()->view()->currentSet(), "Away");
    }
    expectQuestions(path("picture.jpg"), size, false, true);
    action("Save Picture...")->trigger();
    EXPECT_TRUE(contents(path("picture.jpg")).startsWith("\xFF\xD8\xFF"));
    EXPECT_EQ(QImage(path("picture.jpg")).size(), size);
}

TEST_F(WindowExportTest, WhatIsCancelledOrImpossibleLeavesNoFileAndIsExplained)
{
    openDesk();
    const qxSceneSnapshot before;
    QDir().mkdir(path("out"));
    const auto files = [this] {
        return QDir(path("out"))
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot)
            .join(',');
    };
    QTimer user;
    user.callOnTimeout([] {
        auto *const dialog = qobject_cast<QProgressDialog *>(QApplication::activeModalWidget());
        if (dialog && dialog->value() > dialog->maximum() / 2)
            dialog->cancel();
    });
    user.start(0);
    expectQuestions(path("out/sheet.png"), QSize(48, 32));
    action("Save Sheet...")->trigger();
    expectQuestions(path("out/page.html"));
    action("Export Catalogue...")->trigger();
    expectQuestions(path("out/web.html"));
    action("Export Web Page...")->trigger();
    expectQuestions(path("out/picture.png"), QSize(480, 320));
    action("Save Picture...")->trigger();
    user.stop();
    EXPECT_EQ(files(), "");
    EXPECT_TRUE(before.isStillSo());
    expectQuestions("/proc/picture.png", QSize(48, 32), false);
    expectClick("OK");
    action("Save Picture...")->trigger();
    EXPECT_TRUE(dialogTexts().contains("\"picture.png\" cannot be written."));
    expectQuestions(path("out/picture.doc"), QSize(48, 32), false);
    expectClick("OK");
    action("Save Picture...")->trigger();
    EXPECT_EQ(files(), "");
}

TEST_F(WindowExportTest, APresentationShowsTheSceneAloneAndLeavesTheWindowAsItWas)
{
    openDesk();
    goTo("Evening");
    const QByteArray layout = window->saveState();
    const auto places = [this] {
        QList<QRect> all{window->geometry(), window->sceneView()->geometry()};
        for (const QWidget *dock : window->findChildren<QDockWidget *>())
            all << (dock->isVisible() ? dock->geometry() : QRect());
        return all;
    };
    const QList<QRect> before = places();
    auto *const caption = window->findChild<QWidget *>("caption");
    const auto labels = [caption] {
        QStringList texts;
        for (const QLabel *label : caption->findChildren<QLabel *>())
            texts << label->text();
        return texts.join('|');
    };
    const auto shows = [this](const char *set) {
        settle();
        return window->setsDock()->view()->currentSet() == set;
    };
    list().setFocus();
    press(Qt::Key_F11);
    settle();
    EXPECT_TRUE(window->isFullScreen());
    for (const QWidget *part : window->findChildren<QDockWidget *>())
        EXPECT_FALSE(part->isVisible()) << part->objectName().toStdString();
    EXPECT_FALSE(window->menuBar()->isVisible() || window->statusBar()->isVisible());
    EXPECT_TRUE(labels().contains("Escape"));
    press(Qt::Key_Right);
    EXPECT_TRUE(shows("Morning") && !caption->isVisible());
    press(Qt::Key_Return);
    EXPECT_TRUE(caption->isVisible());
    EXPECT_EQ(labels(), "Work|Morning");
    for (const Qt::Key next : {Qt::Key_PageDown, Qt::Key_Space})
        press(next);
    EXPECT_TRUE(shows("Leer geräumt"));
    EXPECT_EQ(labels(), "|Leer geräumt");
    press(Qt::Key_Right);
    EXPECT_TRUE(shows("Morning")) << "behind the last one";
    press(Qt::Key_Left);
    EXPECT_TRUE(shows("Leer geräumt"));
    press(Qt::Key_1, Qt::ControlModifier);
    EXPECT_TRUE(shows("Morning"));
    EXPECT_EQ(labels(), "Work|Morning");
    EXPECT_TRUE(
        waitFor([this] { return window->sceneView()->cursor().shape() == Qt::BlankCursor; }));
    QTest::mouseMove(window->sceneView(), QPoint(40, 40));
    EXPECT_TRUE(
        waitFor([this] { return window->sceneView()->cursor().shape() == Qt::ArrowCursor; }));
    press(Qt::Key_Escape);
    EXPECT_TRUE(waitFor([&] { return window->saveState() == layout && places() == before; }));
    EXPECT_FALSE(window->isFullScreen() || caption->isVisible()
                 || window->sceneView()->hasMouseTracking());
    EXPECT_TRUE(list().hasFocus());
    QTest::qWait(3000); // longer than the pointer rests before it hides
    EXPECT_EQ(window->sceneView()->cursor().shape(), Qt::ArrowCursor);
}

TEST_F(WindowExportTest, ClosedInAPresentationTheWindowRemembersTheLayoutBeforeItAndTheTiles)
{
    openDesk();
    window->setsDock()->view()->gallery()->setTileWidth(200);
    window->sceneView()->setFocus();
    press(Qt::Key_F11);
    window->close();
    EXPECT_TRUE(waitFor([this] { return !window->isVisible(); }));
    makeWindow();
    EXPECT_TRUE(window->menuBar()->isVisible() && window->setsDock()->isVisible());
    EXPECT_FALSE(window->isFullScreen());
    EXPECT_EQ(window->setsDock()->view()->gallery()->tileWidth(), 200);
}
