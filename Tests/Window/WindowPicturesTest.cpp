#include "qxVariantsDock.h"

#include "Window/qxSceneView.h"
#include "Window/qxScriptConsole.h"
#include "WindowFixture.h"
#include "qxSetsView.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QGroupBox>
#include <QLabel>
#include <QPainter>
#include <QPlainTextEdit>
#include <QProcess>
#include <QSet>
#include <QTest>
#include <QToolButton>
#include <QTreeView>

/// Pictures of the window as people see it, in the folder QX_WINDOW_PICTURES or in one that goes
/// with the test.
class WindowPicturesTest : public WindowFixture {
protected:
    WindowPicturesTest()
    {
        openDemo();
        const QByteArray folder = qgetenv("QX_WINDOW_PICTURES");
        m_folder = folder.isEmpty() ? path("pictures") : QString::fromLocal8Bit(folder);
        if (window->devicePixelRatioF() > 1)
            m_folder += QStringLiteral("/high");
        QDir().mkpath(m_folder);
        if (!folder.isEmpty())
            waitForFinePicture();
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

private:
    void waitForFinePicture()
    {
        QImage before;
        for (int wait = 0; wait < 20; ++wait) {
            QTest::qWait(2000);
            const QImage now = window->sceneView()->grab().toImage();
            if (now == before)
                return;
            before = now;
        }
    }

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
    settle();
    take("gallery");
}

TEST_F(WindowPicturesTest, ScriptsAndConnectedVariants)
{
    window->setsDock()->selectSet("Winterfest");
    settle();
    action("Show Connected Variants")->trigger();
    window->console()->setFocus();
    type("sorted(getVariantGroups())");
    type("findVariantSet('Winterfest').getHotkey()");
    type("1 / 0");
    take("scripts");
    const QTreeView &variants = *window->findChild<qxVariantsDock *>()->findChild<QTreeView *>();
    EXPECT_GT(variants.selectionModel()->selectedRows().size(), 3);
}

TEST_F(WindowPicturesTest, Dialogs)
{
    expectDialog([this](QDialog &dialog) {
        take("capture", &dialog);
        dialog.reject();
    });
    action("Capture...")->trigger();
    expectDialog([this](QDialog &dialog) {
        take("error", &dialog);
        dialog.accept();
    });
    window->openFile(write("broken.gltf", "{\"asset\": "));
    ASSERT_TRUE(window->openFile(write("twins.gltf", R"({"asset":{"version":"2.0"},
        "scenes":[{"nodes":[0,1]}],"nodes":[
        {"name":"Wheels","children":[2],"extras":{"qxSwitch":0}},
        {"name":"Wheels","children":[3],"extras":{"qxSwitch":0}},
        {"name":"Steel"},{"name":"Alloy"}]})")));
    expectClick("Capture");
    expectDialog([this](QDialog &dialog) {
        take("ambiguity", &dialog);
        dialog.reject();
    });
    action("Capture...")->trigger();
}

TEST_F(WindowPicturesTest, German)
{
    action("Deutsch")->trigger();
    goTo("Rubinrot");
    take("german");
    expectDialog([this](QDialog &dialog) {
        take("german-capture", &dialog);
        dialog.reject();
    });
    action(QStringLiteral("Erfassen …"))->trigger();
}

TEST_F(WindowPicturesTest, DarkColours)
{
    QPalette dark(QColor(60, 60, 64), QColor(45, 45, 48));
    dark.setColor(QPalette::Base, QColor(32, 32, 34));
    dark.setColor(QPalette::Highlight, QColor(60, 110, 180));
    const QPalette before = QApplication::palette();
    QApplication::setPalette(dark);
    goTo("Rubinrot");
    take("dark");
    window->setsDock()->findChild<QToolButton *>("gallery")->click();
    take("dark-gallery");
    QApplication::setPalette(before);
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
