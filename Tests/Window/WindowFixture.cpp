#include "WindowFixture.h"

#include "AccessibleNames.h"
#include "Pictures/qxMainGlView.h"
#include "Variants/qxVariantsDock.h"
#include "Window/qxScriptConsole.h"
#include "Window/qxUnsavedChanges.h"
#include "qxLog.h"
#include "qxRaytracingManager.h"
#include "qxTestPaths.h"

WindowFixture::WindowFixture()
{
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder.path());
    QApplication::setOrganizationName("qxVariants");
    QApplication::setApplicationName("workbench-test");
    m_listener = qxLog::addListener([this](qxLog::Level level, const std::string &line) {
        if (level == qxLog::Error)
            m_errors << QString::fromStdString(line);
    });
    dialogWatch.callOnTimeout([this] { answerDialog(); });
    dialogWatch.start(10);
    makeWindow();
}

WindowFixture::~WindowFixture()
{
    window.reset();
    qxLog::removeListener(m_listener);
    qxOSGWidget::setRaytracing(false);
    qxRaytracingManager::getRaytracingUtils()->setImageQuality(16);
    EXPECT_EQ(m_errors.size(), m_expectedErrors) << m_errors.join("").toStdString();
    EXPECT_EQ(m_answers.size(), 0u) << "a dialog did not come";
}

void WindowFixture::makeWindow(const QSize &size)
{
    window.reset();
    window = std::make_unique<qxWorkbenchWindow>();
    if (size.isValid()) {
        window->setWindowState(Qt::WindowNoState);
        window->resize(size);
    }
    window->show();
    QApplication::setActiveWindow(window.get());
    settle();
}

void WindowFixture::settle() const
{
    QCoreApplication::processEvents();
    QCoreApplication::processEvents(); // What the first ones asked for.
    window->findChild<qxUnsavedChanges *>()->sort();
}

void WindowFixture::openDemo()
{
    open(QX_DEMO_SCENE);
}

void WindowFixture::openTwins()
{
    open(write("twins.gltf", R"({"asset":{"version":"2.0"},
        "scenes":[{"nodes":[0,1]}],"nodes":[
        {"name":"Wheels","children":[2],"extras":{"qxSwitch":0}},
        {"name":"Wheels","children":[3],"extras":{"qxSwitch":0}},
        {"name":"Steel"},{"name":"Alloy"}]})"));
}

QImage WindowFixture::finishedPicture() const
{
    EXPECT_TRUE(QTest::qWaitFor([] { return !qxMainGlView::the()->isRefining(); }, 60000));
    return window->sceneView()->grab().toImage();
}

void WindowFixture::answerDialog()
{
    auto *const dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
    if (!dialog || dialog == m_answered || qobject_cast<QProgressDialog *>(dialog))
        return;
    m_answered = dialog;
    if (trustsScripts && dialog->objectName() == "scriptsDialog")
        return dialog->findChildren<QPushButton *>().first()->click();
    if (!qobject_cast<QFileDialog *>(dialog)) { // Qt's own
        EXPECT_EQ(namelessIn(*dialog), QStringList()) << dialog->windowTitle().toStdString();
    }
    for (const QLabel *label : dialog->findChildren<QLabel *>())
        m_dialogTexts << label->text();
    if (m_answers.empty()) {
        ADD_FAILURE() << "unexpected dialog: " << m_dialogTexts.join(" ").toStdString();
        return dialog->reject();
    }
    const Answer answer = m_answers.front();
    m_answers.erase(m_answers.begin());
    // A question that the answer brings up is answered in turn.
    QTimer::singleShot(0, dialog, [dialog, answer] { answer(*dialog); });
}

void WindowFixture::expectClick(const QString &text)
{
    expectDialog([text](QDialog &dialog) {
        for (QAbstractButton *button : dialog.findChildren<QAbstractButton *>()) {
            if (button->text().remove('&') == text)
                return button->click();
        }
        ADD_FAILURE() << "no button " << text.toStdString();
        dialog.reject();
    });
}

QAction *WindowFixture::action(const QString &text) const
{
    for (QAction *action : window->findChildren<QAction *>()) {
        if (action->text().remove('&') == text)
            return action;
    }
    ADD_FAILURE() << "no action " << text.toStdString();
    return window->menuBar()->actions().first();
}

QTreeView &WindowFixture::variants() const
{
    return *window->findChild<qxVariantsDock *>()->findChild<QTreeView *>();
}

QModelIndex WindowFixture::goTo(const QString &set)
{
    window->setsDock()->view()->showSet(set);
    list().setFocus();
    EXPECT_EQ(window->setsDock()->view()->currentSet(), set);
    return list().currentIndex();
}

QString WindowFixture::type(const QString &statement)
{
    window->console()->input()->setPlainText(statement);
    window->console()->output()->clear();
    QTest::keyClick(window->console()->input(), Qt::Key_Return);
    settle();
    return window->console()->output()->toPlainText().section('\n', 1);
}

void WindowFixture::press(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QApplication::setActiveWindow(window.get()); // No window manager does that after a dialog.
    QWidget *const focus = QApplication::focusWidget();
    ASSERT_NE(focus, nullptr);
    QTest::keyClick(focus, key, modifiers);
}

void WindowFixture::drag(Qt::MouseButton button, const QPoint &way) const
{
    qxSceneView *const view = window->sceneView();
    const QPoint start = view->rect().center();
    QTest::mousePress(view, button, Qt::NoModifier, start);
    for (int i = 1; i <= 4; ++i) {
        QMouseEvent move(QEvent::MouseMove, start + way * i / 4, button, button, Qt::NoModifier);
        QApplication::sendEvent(view, &move);
    }
    QTest::mouseRelease(view, button, Qt::NoModifier, start + way);
}
