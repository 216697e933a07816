#pragma once

#include "Sets/qxSetsView.h"
#include "Sets/qxVariantSetsDock.h"
#include "TestFiles.h"
#include "Window/qxSceneView.h"
#include "Window/qxWorkbenchWindow.h"

#include <QtTest>
#include <QtWidgets>

#include <functional>

/// A test with the program's window, a folder for its files and settings of its own.
///
/// An error line that was not expected fails the test, and so does a dialog that nobody answers.
class WindowFixture : public testing::Test, protected TestFolder {
protected:
    typedef std::function<void(QDialog &)> Answer;

    WindowFixture();
    ~WindowFixture() override;

    /// Closes the window and opens a new one of that size; of the remembered size for none.
    void makeWindow(const QSize &size = QSize(1280, 800));
    /// Lets announcements reach the views, and the time pass until unsaved changes are looked for.
    void settle() const;

    /// A small scene of switches with sets "Morning" (Ctrl+1), "Evening" and "Leer geräumt".
    void openDesk() { open(write("desk.gltf", sceneWith("desk"))); }
    /// A triangle, larger than its first view: "Stop / halt" (red), "stop : halt" (blue), "Away".
    void openSigns() { open(write("signs.gltf", sceneWith("signs"))); }
    void openDemo();
    /// Two switches of one name.
    void openTwins();
    /// The completely refined picture of the scene.
    QImage finishedPicture() const;
    bool isUnsaved() const
    {
        settle();
        return window->isWindowModified();
    }
    bool showsOtherState() const
    {
        settle();
        return window->windowTitle().contains("(shows another state)");
    }
    void select(const QString &set) const
    {
        window->setsDock()->selectSet(set);
        settle();
    }

    /// Answers the next dialog by `answer`; several calls answer dialogs in their order.
    void expectDialog(const Answer &answer) { m_answers.push_back(answer); }
    /// Has the button of that text clicked in the next dialog.
    void expectClick(const QString &button);
    /// Every text that the dialogs showed, for comparisons.
    const QStringList &dialogTexts() const { return m_dialogTexts; }
    void expectErrors(int count) { m_expectedErrors = count; }

    /// The names of sets with commas between them.
    template <class Sets>
    static QString namesOf(const Sets &sets)
    {
        QStringList names;
        for (const auto *set : sets)
            names << set->name;
        return names.join(',');
    }
    QAction *action(const QString &text) const;
    QTreeView &list() const { return *window->setsDock()->view()->findChild<QTreeView *>(); }
    QTreeView &variants() const;
    QTreeView &tree() const
    {
        return *window->findChild<QDockWidget *>("scene")->findChild<QTreeView *>();
    }
    /// Drags in the view, from its middle.
    void drag(Qt::MouseButton button, const QPoint &way) const;
    /// Puts the cursor of the list on a set, as a click does.
    QModelIndex goTo(const QString &set);
    /// Runs Python in the console and tells what that printed.
    QString type(const QString &statement);
    /// Presses these keys in whatever has the focus.
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

    std::unique_ptr<qxWorkbenchWindow> window;
    bool trustsScripts = true; ///< those of all files that are opened
    QTimer dialogWatch; ///< looks for dialogs to answer

private:
    void open(const QString &file)
    {
        ASSERT_TRUE(window->openFile(file));
        QApplication::setActiveWindow(window.get()); // There may have been a question.
        settle();
    }
    void answerDialog();

    std::vector<Answer> m_answers;
    QPointer<QDialog> m_answered;
    QStringList m_dialogTexts;
    QStringList m_errors;
    int m_expectedErrors = 0;
    int m_listener;
};
