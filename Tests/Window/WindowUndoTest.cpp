#include "WindowFixture.h"
#include "qxSetsView.h"

#include <QAction>
#include <QModelIndex>
#include <QUndoStack>

class WindowUndoTest : public WindowFixture {
protected:
    void captureAndUndo(const QString &way)
    {
        goTo("Stadtwagen");
        expectClick(way == "Capture..." ? "Capture" : "Update");
        action(way)->trigger();
        settle();
        EXPECT_TRUE(window->isWindowModified()) << way.toStdString();
        window->setsDock()->undoStack()->undo();
        settle();
        EXPECT_FALSE(window->isWindowModified()) << way.toStdString();
    }
};

TEST_F(WindowUndoTest, AfterACaptureOfTheDemoIsUndoneASaveWouldChangeNothing)
{
    openDemo();
    for (const char *set : {"Winterfest", "Renngrün"}) {
        window->setsDock()->selectSet(set);
        settle();
        ASSERT_TRUE(window->saveFile(path("saved.glb"))); // how the scene stands counts, too
        ASSERT_FALSE(window->isWindowModified());
        captureAndUndo("Capture...");
        captureAndUndo("Update from Scene...");
    }
}
