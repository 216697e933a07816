#include "qxVariantSet.h"

#include "CaptureFixture.h"
#include "Core/qxBusy.h"
#include "Core/qxMainWindow.h"
#include "qxController.h"

#include <QApplication>
#include <QDockWidget>
#include <QLabel>
#include <QMainWindow>
#include <QMessageBox>
#include <QProgressDialog>
#include <QPushButton>
#include <QTimer>

namespace {

/// What can be seen while a capture runs, looked at when it announces its first variant.
class DialogTest : public CaptureFixture {
protected:
    void captureAndLook()
    {
        scene.addSwitch("Wheels", {"Steel"}).choose(0);
        const int listener = qxController::addListener([this](const char *name, qxMessage *, int) {
            if (std::string(name) == "nodeVariantAdded")
                look();
        });
        qxVariantSet *const set = qxVariants::createVariantSet("Sport", false, nullptr);
        qxVariants::captureVariantsFromRootNodes(set, {scene.root().node()}, true, true, true, true,
                                                 true, true, true, true);
        qxController::removeListener(listener);
    }

    void look()
    {
        wasBusy = qxBusy::isBusy();
        const auto *const dialog =
            qobject_cast<QProgressDialog *>(QApplication::activeModalWidget());
        ASSERT_TRUE(dialog);
        parent = dialog->parentWidget();
        title = dialog->windowTitle();
        text = dialog->findChild<QLabel *>()->text();
        labelWidth = dialog->findChild<QLabel *>()->width();
        labelMinimumHeight = dialog->findChild<QLabel *>()->minimumHeight();
        wrapsWords = dialog->findChild<QLabel *>()->wordWrap();
        hasButton = dialog->findChild<QPushButton *>();
        range = {dialog->minimum(), dialog->maximum()};
        isClosable = dialog->windowFlags() & Qt::WindowCloseButtonHint;
    }

    bool wasBusy = false;
    const QWidget *parent = nullptr;
    QString title;
    QString text;
    int labelWidth = 0;
    int labelMinimumHeight = 0;
    bool wrapsWords = false;
    bool hasButton = true;
    std::pair<int, int> range{-1, -1};
    bool isClosable = true;
};

TEST_F(DialogTest, ACaptureShowsThatItRuns)
{
    captureAndLook();
    EXPECT_TRUE(wasBusy);
    EXPECT_EQ(parent, nullptr);
    EXPECT_EQ(title, "Variant Set: Capture Variant...");
    EXPECT_EQ(text, "Capturing Variant Set ...");
    EXPECT_EQ(labelWidth, 256);
    EXPECT_EQ(labelMinimumHeight, 32);
    EXPECT_TRUE(wrapsWords);
    EXPECT_FALSE(hasButton); // it cannot be cancelled
    EXPECT_EQ(range, std::make_pair(0, 0));
    EXPECT_FALSE(isClosable);
    EXPECT_FALSE(qxBusy::isBusy());
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
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
    captureAndLook();
    EXPECT_EQ(parent, &window); // nothing is shown yet

    clearRegistry();
    window.show();
    captureAndLook();
    EXPECT_EQ(parent, &content);
    dock.setWidget(nullptr);
}

TEST_F(DialogTest, ANullDialogIsLeftAlone)
{
    qxVariants::initVSetProgressDialog(nullptr);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(DialogTest, NothingIsCreatedWhenTheUserCancels)
{
    scene.addSwitch("Wheels", {"Steel"});
    scene.addSwitch("Wheels", {"Steel"});
    QTimer timer;
    QMessageBox::StandardButton answer = QMessageBox::No;
    QObject::connect(&timer, &QTimer::timeout, [&answer] {
        if (auto *const box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget()))
            box->button(answer)->click();
    });
    timer.start(1);
    qxVariants::createAndCaptureVariantSet("Sport", "Cars");
    EXPECT_TRUE(qxVariants::_variantGroups.empty());
    EXPECT_TRUE(qxVariants::_variantSets.empty());
    answer = QMessageBox::Yes;
    qxVariants::createAndCaptureVariantSet("Sport", "Cars");
    ASSERT_EQ(qxVariants::_variantSets.size(), 1u);
    EXPECT_TRUE(qxVariants::_variantSets[0]->findNodeVariant("Wheels 2"));
}

} // namespace
