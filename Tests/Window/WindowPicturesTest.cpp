#include "Window/qxScriptConsole.h"
#include "WindowFixture.h"

/// Pictures of the window as people see it, in the folder QX_WINDOW_PICTURES or in one that goes
/// with the test.
class WindowPicturesTest : public WindowFixture {
protected:
    WindowPicturesTest()
    {
        openDemo();
        const QByteArray wanted = qgetenv("QX_WINDOW_PICTURES");
        m_folder = wanted.isEmpty() ? path("pictures") : QString::fromLocal8Bit(wanted);
        if (window->devicePixelRatioF() > 1)
            m_folder += QStringLiteral("/high");
        QDir().mkpath(m_folder);
        if (!wanted.isEmpty())
            finishedPicture();
    }
    /// Takes the picture of the window, with the dialog in front of it.
    void take(const QString &name, QWidget *dialog = nullptr)
    {
        SCOPED_TRACE(name.toStdString());
        settle();
        QPixmap picture = window->grab();
        EXPECT_EQ(picture.size(), window->size() * window->devicePixelRatioF());
        if (dialog) {
            const QPixmap front = dialog->grab();
            const QPoint place = window->rect().center() - dialog->rect().center();
            QPainter painter(&picture);
            painter.drawPixmap(place, front);
            painter.drawRect(QRect(place, dialog->size()));
        }
        EXPECT_GT(coloursOf(picture.toImage()), 300) << "nothing is to be seen";
        EXPECT_TRUE(picture.save(m_folder + '/' + name + ".png"));
        expectWholeTexts(dialog ? *dialog : *window);
        for (const QWidget *part :
             {static_cast<QWidget *>(window->sceneView()), static_cast<QWidget *>(&tree()),
              static_cast<QWidget *>(window->setsDock()->view()->currentWidget())}) {
            EXPECT_FALSE(part->visibleRegion().isEmpty()) << part->metaObject()->className();
            EXPECT_GE(part->height(), 100) << part->metaObject()->className();
        }
    }
    /// Answers the next dialog with a picture of it.
    void expectPicture(const QString &name)
    {
        expectDialog([this, name](QDialog &dialog) {
            take(name, &dialog);
            dialog.reject();
        });
    }

private:
    static int coloursOf(const QImage &picture)
    {
        QSet<QRgb> colours;
        for (int y = 0; y < picture.height(); y += 3) {
            for (int x = 0; x < picture.width(); x += 3)
                colours.insert(picture.pixel(x, y));
        }
        return colours.size();
    }
    static void expectWholeTexts(const QWidget &window)
    {
        // A picture that becomes finer says so at any time, and that takes its place afterwards.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
        for (const QWidget *part : window.findChildren<QWidget *>()) {
            const auto *const label = qobject_cast<const QLabel *>(part);
            const auto *const button = qobject_cast<const QAbstractButton *>(part);
            const QString text = label ? label->text() : button ? button->text() : QString();
            if (text.isEmpty() || part->visibleRegion().isEmpty())
                continue;
            QSize needed = label ? label->minimumSizeHint() : button->minimumSizeHint();
            if (label && label->wordWrap())
                needed = QSize(0, label->heightForWidth(label->width()));
            EXPECT_GE(part->width(), needed.width()) << text.toStdString();
            EXPECT_GE(part->height(), needed.height()) << text.toStdString();
        }
    }
    QString m_folder;
};

TEST_F(WindowPicturesTest, ListAndGallery)
{
    goTo("Rubinrot");
    take("list");
    window->setsDock()->findChild<QToolButton *>("gallery")->click();
    take("gallery");
}

TEST_F(WindowPicturesTest, ScriptsAndConnectedVariants)
{
    select("Winterfest");
    action("Show Connected Variants")->trigger();
    window->console()->setFocus();
    type("sorted(getVariantGroups())");
    type("findVariantSet('Winterfest').getHotkey()");
    type("1 / 0");
    take("scripts");
    EXPECT_GT(variants().selectionModel()->selectedRows().size(), 3);
}

TEST_F(WindowPicturesTest, Dialogs)
{
    expectPicture("capture");
    action("Capture...")->trigger();
    expectPicture("error");
    window->openFile(write("broken.gltf", "{\"asset\": "));
    openTwins();
    expectClick("Capture");
    expectPicture("ambiguity");
    action("Capture...")->trigger();
}

TEST_F(WindowPicturesTest, German)
{
    action("Deutsch")->trigger();
    goTo("Rubinrot");
    take("german");
    expectPicture("german-capture");
    action(QStringLiteral("Erfassen …"))->trigger();
}

/// The factor holds for a whole run of the program, so it is another run.
TEST(HighDensityTest, PicturesAreTwiceAsFineAndWhole)
{
    if (qApp->devicePixelRatio() > 1)
        GTEST_SKIP() << "this is the other run";
    QProcess run;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_SCALE_FACTOR", "2");
    run.setProcessEnvironment(environment);
    run.setProcessChannelMode(QProcess::MergedChannels);
    run.start(QCoreApplication::applicationFilePath(),
              {"--gtest_filter=*.ListAndGallery:*.German"});
    ASSERT_TRUE(run.waitForFinished(250000));
    const QByteArray said = run.readAll();
    EXPECT_EQ(run.exitCode(), 0) << said.constData();
    EXPECT_TRUE(said.contains("[  PASSED  ]"));
}
