#include "qxNodeVariant.h"
#include "qxVariantSet.h"
#include "qxVariantSetsDock.h"
#include "qxVariants.h"

#include "Pictures/qxMainGlView.h"
#include "ShownTexts.h"
#include "TestScene.h"
#include "Window/qxLanguage.h"
#include "Window/qxSceneView.h"
#include "Window/qxWorkbenchWindow.h"
#include "qxCaptureDialog.h"
#include "qxController.h"
#include "qxKeyText.h"
#include "qxOSGWidget.h"
#include "qxRaytracingManager.h"
#include "qxSetsView.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFileDialog>
#include <QKeySequenceEdit>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QTextDocumentFragment>
#include <QTimer>
#include <QTreeView>

#include <gtest/gtest.h>

namespace {

QStringList textsOf(const QList<QAction *> &actions)
{
    QStringList texts;
    for (const QAction *action : actions)
        texts << action->text();
    return texts;
}

/// The texts of labels and buttons, whose mnemonics are keys of the whole window.
QStringList answeringTexts(const QWidget &window)
{
    QStringList texts;
    for (const QAbstractButton *button : window.findChildren<QAbstractButton *>())
        texts << button->text();
    for (const QLabel *label : window.findChildren<QLabel *>())
        texts << (label->buddy() ? label->text() : QString());
    return texts;
}

void expectOtherMnemonics(const QStringList &texts)
{
    QStringList known;
    for (const QString &text : texts) {
        const QString key = QKeySequence::mnemonic(text).toString();
        EXPECT_TRUE(key.isEmpty() || !known.contains(key)) << text.toStdString();
        known << key;
    }
}

} // namespace

/// The window with a small scene, in settings of its own.
class LanguageTest : public testing::Test {
protected:
    LanguageTest()
    {
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_settings.path());
        QCoreApplication::setOrganizationName("qxTranslationTests");
        // A quick picture is refined, and spoken of, only where the machine is slow.
        qxOSGWidget::setRaytracing(true);
        qxRaytracingManager::getRaytracingUtils()->setImageQuality(4);
        window = std::make_unique<qxWorkbenchWindow>();
        QObject::connect(window->sceneView(), &qxSceneView::progressed,
                         [this](const QString &text) { progress << text; });
        TestScene scene;
        const TestNode desk = scene.addSwitch("Desk", {"Oak", "Ash"});
        qxNodeVariant *const variant = qxVariants::createNodeVariant(desk, true);
        qxVariantSet *const set = qxVariants::createVariantSet("Dawn", true, nullptr);
        set->add(variant, "Ash");
        set->hotkey = "Ctrl+Shift+Del";
        set->updateShortcut();
        set->defaultViewpoint = "Porch";
        qxVariantSet *const rival = qxVariants::createVariantSet("Dusk", true, nullptr);
        rival->hotkey = set->hotkey;
        rival->updateShortcut();
        window->show();
        settle();
        window->findChild<QLineEdit *>("search")->setText("D");
        list().setCurrentIndex(list().model()->index(0, 0));
        settle();
    }

    ~LanguageTest() override
    {
        qxOSGWidget::setRaytracing(false);
        qxRaytracingManager::getRaytracingUtils()->setImageQuality(16);
    }

    /// Lets announcements and the change of language reach all.
    static void settle()
    {
        QCoreApplication::processEvents();
        QCoreApplication::processEvents(); // What the first ones asked for.
    }
    /// Draws the scene, and waits until nothing is said of it any more.
    void draw()
    {
        const int patience = 60000;
        ASSERT_TRUE(QTest::qWaitFor([] { return !qxMainGlView::the()->isRefining(); }, patience));
        progress.clear();
        qxController::updateRender(true);
        ASSERT_TRUE(QTest::qWaitFor([this] { return progress.size() > 1 && progress.last() == ""; },
                                    patience));
    }
    QTreeView &list() const { return *window->setsDock()->view()->findChild<QTreeView *>(); }
    QList<QMenu *> menus() const
    {
        QList<QMenu *> found;
        for (const QAction *action : window->menuBar()->actions())
            found << action->menu();
        return found;
    }
    /// Chooses a language in the menu, by the name that it has there.
    void choose(const QString &language)
    {
        for (QAction *action : window->findChildren<QAction *>()) {
            if (action->text() == language)
                action->trigger();
        }
        settle();
    }

    QTemporaryDir m_settings;
    std::unique_ptr<qxWorkbenchWindow> window;
    QStringList progress; ///< what the view said
    Catalogue catalogue;
};

TEST_F(LanguageTest, EveryTextFollowsTheLanguageAndComesBack)
{
    draw();
    const ShownTexts english = textsIn(*window);
    const QStringList englishProgress = progress;
    choose("Deutsch");
    draw();
    const ShownTexts german = textsIn(*window);
    for (const QString &text : progress)
        EXPECT_FALSE(catalogue.isEnglish(text)) << text.toStdString();
    const QStringList names{"", "English", "Deutsch", "Desk: Ash", "D"};
    QStringList contexts;
    for (const QString &text : englishProgress)
        contexts += catalogue.contextsOf(text);
    for (auto text = english.begin(); text != english.end(); ++text) {
        const bool isOfModel = text.key().second.contains(' ');
        const QStringList lines = text.value().split('\n');
        const QStringList germanLines = german.value(text.key()).split('\n');
        ASSERT_EQ(lines.size(), germanLines.size()) << text.value().toStdString();
        for (int line = 0; line < lines.size(); ++line) {
            const QStringList found = catalogue.contextsOf(lines[line]);
            contexts += found;
            const bool mayStay = isOfModel || names.contains(lines[line]);
            EXPECT_TRUE(found.isEmpty() ? mayStay || germanLines[line] != lines[line]
                                        : catalogue.isTranslation(germanLines[line], lines[line]))
                << text.key().first->metaObject()->className() << ' '
                << text.key().second.toStdString() << ": " << lines[line].toStdString() << " -> "
                << germanLines[line].toStdString();
        }
    }
    for (const QWidget *widget : window->findChildren<QWidget *>()) {
        const QString name = widget->metaObject()->className();
        EXPECT_TRUE(contexts.contains(name) || !catalogue.contexts().contains(name))
            << "no text of " << name.toStdString() << " was looked at";
    }
    choose("English");
    draw();
    const ShownTexts again = textsIn(*window);
    for (auto text = english.begin(); text != english.end(); ++text)
        EXPECT_EQ(again.value(text.key()).toStdString(), text.value().toStdString());
}

TEST_F(LanguageTest, EveryDialogSpeaksTheLanguage)
{
    TestScene scene;
    for (int count = 0; count < 2; ++count) // A capture asks what is to be done with these.
        scene.addSwitch("Twin", {"Left"});
    choose("Deutsch");
    QStringList titles;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, [&] {
        QWidget *const popup = QApplication::activePopupWidget();
        QWidget *const shown = popup ? popup : QApplication::activeModalWidget();
        if (!shown || !shown->isVisible())
            return;
        titles << shown->windowTitle();
        for (const QString &text : textsIn(*shown))
            EXPECT_FALSE(catalogue.isEnglish(text)) << text.toStdString();
        EXPECT_FALSE(answeringTexts(*shown).contains("Cancel"));
        if (!qobject_cast<QFileDialog *>(shown))
            expectOtherMnemonics(answeringTexts(*shown));
        if (auto *const capture = qobject_cast<qxCaptureDialog *>(shown))
            capture->accept();
        else
            shown->close();
    });
    watch.start(10);
    for (const QMenu *menu : menus()) {
        for (QAction *action : menu->actions()) {
            if (action->text().endsWith(QStringLiteral("…")) || menu == menus().last())
                action->trigger();
        }
    }
    titles.removeDuplicates();
    for (const char *title : {"Szene erfassen", "Mehrdeutige Knotennamen gefunden",
                              "„Dawn“ aus der Szene aktualisieren", "Szene öffnen"})
        EXPECT_TRUE(titles.contains(title)) << title;
}

TEST_F(LanguageTest, AKeyIsReadInTheLanguageAndHeldInNone)
{
    choose("Deutsch");
    const QList<QPair<QString, QString>> keys = {{"Ctrl+Shift+Del", "Strg+Umschalt+Entf"},
                                                 {"Alt+Home", "Alt+Pos1"},
                                                 {"F5", "F5"},
                                                 {"Space", "Leertaste"},
                                                 {"not a key", "not a key"}};
    for (const auto &key : keys) {
        EXPECT_EQ(qxKeyText::shown(key.first).toStdString(), key.second.toStdString());
        const QKeySequence sequence(key.first);
        EXPECT_EQ(qxKeyText::held(sequence),
                  sequence[0] == Qt::Key_unknown ? QString() : key.first);
    }
    auto *const field = window->findChild<QKeySequenceEdit *>();
    field->setKeySequence(QKeySequence(Qt::CTRL + Qt::Key_End));
    emit field->editingFinished();
    qxVariantSet *const set = qxVariants::findVariantSet("Dawn");
    EXPECT_EQ(set->hotkey, "Ctrl+End");
    EXPECT_EQ(set->key, int(Qt::Key_End));
    EXPECT_EQ(set->modifiers, Qt::ControlModifier);
}

TEST_F(LanguageTest, CountsReadWell)
{
    const auto tip = [this] {
        const QString text = list().currentIndex().data(Qt::ToolTipRole).toString();
        return QTextDocumentFragment::fromHtml(text).toPlainText();
    };
    qxVariantSet *const set = qxVariants::findVariantSet("Dawn");
    const QList<QPair<QString, QString>> one = {{"English", "1 state"}, {"Deutsch", "1 Zustand"}};
    const QList<QPair<QString, QString>> two = {{"English", "2 states"}, {"Deutsch", "2 Zustände"}};
    for (const auto &expected : one) {
        choose(expected.first);
        EXPECT_TRUE(tip().split('\n').contains(expected.second)) << tip().toStdString();
    }
    set->addNodeVariant("Chair", "Ash");
    for (const auto &expected : two) {
        choose(expected.first);
        EXPECT_TRUE(tip().split('\n').contains(expected.second)) << tip().toStdString();
    }
}

TEST_F(LanguageTest, NoMnemonicLeadsToTwoPlaces)
{
    for (const char *language : {"English", "Deutsch"}) {
        choose(language);
        // The docks answer to the same keys as the menu bar.
        expectOtherMnemonics(textsOf(window->menuBar()->actions()) + answeringTexts(*window));
        for (const QMenu *menu : menus())
            expectOtherMnemonics(textsOf(menu->actions()));
    }
}

TEST_F(LanguageTest, TheChoiceIsRememberedAndAnUnknownOneIsThatOfTheSystem)
{
    choose("Deutsch");
    window.reset();
    window = std::make_unique<qxWorkbenchWindow>();
    EXPECT_TRUE(window->windowTitle().contains("Workbench"));
    EXPECT_EQ(menus().first()->title(), "&Datei");
    qxLanguage().choose("xx");
    EXPECT_EQ(qxLanguage().chosen(), QString());
}
