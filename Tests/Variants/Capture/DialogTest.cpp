#include "CaptureFixture.h"
#include "Core/qxBusy.h"
#include "Core/qxMainWindow.h"

#include <QApplication>
#include <QDockWidget>
#include <QLabel>
#include <QMainWindow>
#include <QProgressDialog>
#include <QPushButton>

/// The dialog that is open during a capture, looked at when the first variant is announced.
class DialogTest : public CaptureFixture {
protected:
    DialogTest() { scene.addSwitch("Wheels", {"Steel"}).choose(0); }

    template <class Look>
    void captureAndLook(const Look &look)
    {
        qxVariants::clearNodeVariants();
        notifications.clear();
        const auto lookOnce = [&look] {
            auto *const dialog = qobject_cast<QProgressDialog *>(QApplication::activeModalWidget());
            ASSERT_TRUE(dialog);
            look(*dialog);
        };
        listen("nodeVariantAdded", lookOnce, [this] { captureAll(set); });
        EXPECT_EQ(heard("nodeVariantAdded").size(), 1u);
    }
};

TEST_F(DialogTest, ACaptureShowsThatItRuns)
{
    captureAndLook([](const QProgressDialog &dialog) {
        EXPECT_TRUE(qxBusy::isBusy());
        EXPECT_EQ(dialog.parentWidget(), nullptr);
        EXPECT_EQ(dialog.windowTitle(), "Variant Set: Capture Variant...");
        EXPECT_TRUE(dialog.minimum() == 0 && dialog.maximum() == 0);
        EXPECT_EQ(dialog.windowFlags(), // no close button
                  Qt::Window | Qt::WindowTitleHint | Qt::CustomizeWindowHint);
        EXPECT_EQ(dialog.findChild<QPushButton *>(), nullptr); // it cannot be cancelled
        const QLabel &label = *dialog.findChild<QLabel *>();
        EXPECT_EQ(label.text(), "Capturing Variant Set ...");
        EXPECT_EQ(label.width(), 256);
        EXPECT_EQ(label.minimumHeight(), 32);
        EXPECT_TRUE(label.wordWrap());
    });
    EXPECT_FALSE(qxBusy::isBusy());
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    EXPECT_TRUE(QApplication::topLevelWidgets().isEmpty());
}

TEST_F(DialogTest, TheDialogBelongsToTheVisibleDockElseToTheMainWindow)
{
    QMainWindow window;
    QDockWidget other("Layers", &window);
    QDockWidget dock("Variant Sets", &window);
    QWidget content;
    dock.setWidget(&content);
    qxMainWindow::set(&window);
    const QWidget *parent = &window; // nothing is shown yet
    const auto look = [&parent](const QProgressDialog &dialog) {
        EXPECT_EQ(dialog.parentWidget(), parent);
    };
    captureAndLook(look);
    window.show();
    parent = &content;
    captureAndLook(look);
    dock.setWidget(nullptr);
}
