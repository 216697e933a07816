#include "WindowFixture.h"

#include "Window/qxScriptConsole.h"
#include "Window/qxUnsavedChanges.h"
#include "qxLog.h"
#include "qxSetsView.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPointer>
#include <QProgressDialog>
#include <QSettings>
#include <QTest>
#include <QTreeView>

namespace {

QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

} // namespace

WindowFixture::WindowFixture()
{
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_folder.path());
    QApplication::setOrganizationName("qxVariants");
    QApplication::setApplicationName("workbench-test");
    m_listener = qxLog::addListener([this](qxLog::Level level, const std::string &line) {
        if (level == qxLog::Error)
            m_errors << QString::fromStdString(line);
    });
    m_watch.callOnTimeout([this] { answerDialog(); });
    m_watch.start(10);
    makeWindow();
}

WindowFixture::~WindowFixture()
{
    window.reset();
    qxLog::removeListener(m_listener);
    EXPECT_EQ(m_errors.size(), m_expectedErrors) << m_errors.join("").toStdString();
    EXPECT_EQ(m_answers.size(), 0u) << "a dialog did not come";
}

void WindowFixture::makeWindow()
{
    window.reset();
    window = std::make_unique<qxWorkbenchWindow>();
    window->show();
    QApplication::setActiveWindow(window.get());
    settle();
}

void WindowFixture::settle() const
{
    QCoreApplication::processEvents();
    QCoreApplication::processEvents(); // What the first ones asked for.
    window->findChild<qxUnsavedChanges *>()->areThere();
}

QString WindowFixture::write(const QString &name, const QByteArray &bytes) const
{
    QFile file(path(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_EQ(file.write(bytes), bytes.size());
    return path(name);
}

QString WindowFixture::desk() const
{
    const QString folder = QStringLiteral(QX_TEST_DATA "/Scenes/");
    QJsonObject json = QJsonDocument::fromJson(bytesOf(folder + "desk.gltf")).object();
    QJsonArray scenes = json["scenes"].toArray();
    QJsonObject scene = scenes[0].toObject();
    const QString document = QString::fromUtf8(bytesOf(folder + "desk.xml"));
    scene["extras"] = QJsonObject{{"qxVariants", document}};
    scenes[0] = scene;
    json["scenes"] = scenes;
    return write("desk.gltf", QJsonDocument(json).toJson());
}

void WindowFixture::openDesk()
{
    ASSERT_TRUE(window->openFile(desk()));
    settle();
}

void WindowFixture::openDemo()
{
    ASSERT_TRUE(window->openFile(QX_DEMO_SCENE));
    settle();
}

void WindowFixture::answerDialog()
{
    auto *const dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
    if (!dialog || dialog == m_answered || qobject_cast<QProgressDialog *>(dialog))
        return;
    m_answered = dialog;
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

QTreeView &WindowFixture::list() const
{
    return *window->setsDock()->findChild<QTreeView *>();
}

QTreeView &WindowFixture::tree() const
{
    return *window->findChild<QDockWidget *>("scene")->findChild<QTreeView *>();
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
