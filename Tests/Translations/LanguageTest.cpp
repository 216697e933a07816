#include "qxNodeVariant.h"
#include "qxVariantSet.h"
#include "qxVariants.h"

#include "Sets/qxCaptureDialog.h"
#include "ShownTexts.h"
#include "TestScene.h"
#include "Window/qxLanguage.h"
#include "WindowFixture.h"
#include "qxController.h"
#include "qxKeyText.h"
#include "qxOSGWidget.h"
#include "qxRaytracingManager.h"

/// The mnemonics of actions, and those of labels and buttons, which are keys of the whole window.
static void expectOtherMnemonics(const QWidget &window, const QList<QAction *> &actions)
{
    QStringList texts;
    for (const QAction *action : actions)
        texts << action->text();
    for (const QAbstractButton *button : window.findChildren<QAbstractButton *>())
        texts << button->text();
    for (const QLabel *label : window.findChildren<QLabel *>())
        texts << (label->buddy() ? label->text() : QString());
    QStringList known;
    for (const QString &text : texts) {
        const QString key = QKeySequence::mnemonic(text).toString();
        EXPECT_TRUE(key.isEmpty() || !known.contains(key)) << text.toStdString();
        known << key;
    }
}

/// The window with a small scene.
class LanguageTest : public WindowFixture {
protected:
    LanguageTest()
    {
        // A quick picture is refined, and spoken of, only where the machine is slow.
        qxOSGWidget::setRaytracing(true);
        qxRaytracingManager::getRaytracingUtils()->setImageQuality(4);
        QObject::connect(window->sceneView(), &qxSceneView::progressed,
                         [this](const QString &text) { progress << text; });
        TestScene scene;
        const TestNode desk = scene.addSwitch("Desk", {"Oak", "Ash"});
        for (const char *name : {"Dawn", "Dusk"}) {
            qxVariantSet *const set = qxVariants::createVariantSet(name, true, nullptr);
            set->hotkey = "Ctrl+Shift+Del";
            set->updateShortcut();
        }
        dawn().add(qxVariants::createNodeVariant(desk, true), "Ash");
        dawn().defaultViewpoint = "Porch";
        settle();
        window->findChild<QLineEdit *>("search")->setText("D");
        list().setCurrentIndex(list().model()->index(0, 0));
        settle();
    }

    static qxVariantSet &dawn() { return *qxVariants::findVariantSet("Dawn"); }
    /// Draws the scene, and waits until nothing is said of it any more.
    void draw()
    {
        finishedPicture();
        progress.clear();
        qxController::updateRender(true);
        ASSERT_TRUE(QTest::qWaitFor([this] { return progress.size() > 1 && progress.last() == ""; },
                                    60000));
    }
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
        action(language)->trigger();
        settle();
    }

    QStringList progress; ///< what the view said
    const Catalogue catalogue;
};

TEST_F(LanguageTest, EveryTextFollowsTheLanguageAndComesBack)
{
    draw();
    choose("English"); // What is not shown now tells of the scene before.
    const ShownTexts english = textsIn(*window);
    choose("Deutsch");
    draw();
    const ShownTexts german = textsIn(*window);
    for (const QString &text : progress)
        EXPECT_FALSE(catalogue.isEnglish(text)) << text.toStdString();
    const QStringList names{"", "English", "Deutsch", "Desk: Ash", "D", "1", "2", "+", "\u2212"};
    const QStringList types{"Switch", "Group"}; // of node cores, in tool tips
    for (auto text = english.begin(); text != english.end(); ++text) {
        const bool isOfModel = text.key().second.contains(' ');
        const QStringList lines = text.value().split('\n');
        const QStringList germanLines = german.value(text.key()).split('\n');
        ASSERT_EQ(lines.size(), germanLines.size()) << text.value().toStdString();
        for (int line = 0; line < lines.size(); ++line) {
            const bool mayStay = isOfModel || names.contains(lines[line]);
            const QString &now = germanLines[line];
            const bool isType = text.key().second.startsWith("tip ") && types.contains(lines[line]);
            EXPECT_TRUE(catalogue.knows(lines[line]) && !isType
                            ? !now.isEmpty() && !catalogue.isEnglish(now)
                            : mayStay || now != lines[line])
                << text.key().second.toStdString() << ": " << lines[line].toStdString() << " -> "
                << now.toStdString();
        }
    }
    choose("English");
    draw();
    const ShownTexts again = textsIn(*window);
    for (auto text = english.begin(); text != english.end(); ++text)
        EXPECT_EQ(again.value(text.key()), text.value());
}

TEST_F(LanguageTest, EveryDialogSpeaksTheLanguage)
{
    TestScene scene;
    for (int count = 0; count < 2; ++count) // A capture asks what is to be done with these.
        scene.addSwitch("Twin", {"Left"});
    choose("Deutsch");
    QStringList said;
    dialogWatch.stop();
    QTimer watch;
    watch.callOnTimeout([&] {
        QWidget *const popup = QApplication::activePopupWidget();
        QWidget *const shown = popup ? popup : QApplication::activeModalWidget();
        if (!shown || !shown->isVisible())
            return;
        for (const QString &text : textsIn(*shown)) {
            const bool isQts = qobject_cast<QFileDialog *>(shown) && text == "Details";
            EXPECT_FALSE((catalogue.isEnglish(text) && !isQts) || text == "Cancel")
                << text.toStdString();
            said << text;
        }
        if (!qobject_cast<QFileDialog *>(shown))
            expectOtherMnemonics(*shown, {});
        if (auto *const capture = qobject_cast<qxCaptureDialog *>(shown))
            capture->accept();
        else
            shown->close();
    });
    watch.start(10);
    for (const QMenu *menu : menus()) {
        for (QAction *action : menu->actions()) {
            if (!action->isEnabled())
                continue;
            if (action->text().endsWith(QStringLiteral("…")) || menu == menus().last())
                action->trigger();
        }
    }
    window->openFile(
        write("loop.gltf", R"({"asset":{"version":"2.0"},"nodes":[{"children":[0]}]})"));
    window->saveFile(path("scene.obj"));
    window->saveFile(path("scene.gltf"));
    window->saveFile(write("scene.gltf", "{}"));
    for (const QString &text :
         {QString("Szene erfassen"), QString("Mehrdeutige Knotennamen gefunden"),
          QString("„Dawn“ aus der Szene aktualisieren"), QString("Szene öffnen"),
          QString(
              "„scene.gltf“ wurde auf dem Datenträger geändert, seit die Datei geöffnet wurde."),
          path("loop.gltf") + ": Knoten 0 ist sein eigener Vorfahr",
          path("scene.obj") + ": Szenendateien enden auf .gltf oder .glb"})
        EXPECT_TRUE(said.contains(text)) << text.toStdString();
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
        EXPECT_EQ(qxKeyText::shown(key.first), key.second);
        const QKeySequence sequence(key.first);
        EXPECT_EQ(qxKeyText::held(sequence),
                  sequence[0] == Qt::Key_unknown ? QString() : key.first);
    }
    auto *const field = window->setsDock()->findChild<QKeySequenceEdit *>();
    field->setKeySequence(QKeySequence(Qt::CTRL + Qt::Key_End));
    Q_EMIT field->editingFinished();
    EXPECT_EQ(dawn().hotkey, "Ctrl+End");
    EXPECT_EQ(dawn().key, int(Qt::Key_End));
    EXPECT_EQ(dawn().modifiers, Qt::ControlModifier);
}

TEST_F(LanguageTest, CountsReadWell)
{
    const auto tip = [this] {
        const QString text = list().currentIndex().data(Qt::ToolTipRole).toString();
        return QTextDocumentFragment::fromHtml(text).toPlainText();
    };
    const QStringList expected[] = {{"1 state", "1 Zustand"}, {"2 states", "2 Zustände"}};
    for (const QStringList &each : expected) {
        choose("English");
        EXPECT_TRUE(tip().split('\n').contains(each[0])) << tip().toStdString();
        choose("Deutsch");
        EXPECT_TRUE(tip().split('\n').contains(each[1])) << tip().toStdString();
        dawn().addNodeVariant("Chair", "Ash");
    }
}

TEST_F(LanguageTest, NoMnemonicLeadsToTwoPlaces)
{
    for (const char *language : {"English", "Deutsch"}) {
        choose(language);
        // The docks answer to the same keys as the menu bar.
        expectOtherMnemonics(*window, window->menuBar()->actions());
        for (const QMenu *menu : window->findChildren<QMenu *>())
            expectOtherMnemonics(*menu, menu->actions());
    }
}

TEST_F(LanguageTest, TheChoiceIsRemembered)
{
    choose("Deutsch");
    makeWindow();
    EXPECT_TRUE(window->windowTitle().contains("Workbench"));
    EXPECT_EQ(menus().first()->title(), "&Datei");
    qxLanguage().choose("xx");
    EXPECT_EQ(qxLanguage().chosen(), QString());
}
