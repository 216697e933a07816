#include "qxLightVariant.h"

#include "DockFixture.h"
#include "Problems/qxProblems.h"
#include "Problems/qxProblemsDock.h"
#include "qxPanelEvents.h"

#include <OpenSG/OSGSimpleAttachments.h>

/// The dock with the problems of a small scene that has none.
class ProblemsTest : public DockFixture {
protected:
    ProblemsTest()
    {
        set("Leather").add(qxVariants::findNodeVariant("Wheels"), "Steel");
        set("Leather").addViewpoint("Front");
        set("Alone").add(qxVariants::findNodeVariant("Wheels"), "Alloy");
        set("Alone").addViewpoint("Front");
        scene.addViewpoint("Front");
        window.addDockWidget(Qt::BottomDockWidgetArea, &dock);
        look();
    }
    void look()
    {
        settle();
        problems.update();
    }
    /// What is listed, such as "QX301 Set Red: Gone, Steel".
    QString listed() const
    {
        QStringList rows;
        const QAbstractItemModel &model = *dock.view()->model();
        for (int row = 0; row < model.rowCount(); ++row)
            rows << model.index(row, 2).data().toString() + ' '
                    + model.index(row, 1).data().toString();
        return rows.join("; ");
    }
    QAction *fix(const QString &text)
    {
        auto *const menu = dock.findChild<QToolButton *>("repair")->menu();
        Q_EMIT menu->aboutToShow();
        for (QAction *action : menu->actions()) {
            if (action->text().remove('&') == text)
                return action;
        }
        return nullptr;
    }
    QToolButton &severity(const char *word) { return *dock.findChild<QToolButton *>(word); }

    struct Case {
        std::function<void()> breakIt;
        const char *listed;
        const char *fix;
    };
    std::vector<Case> cases();

    qxPanelEvents events;
    qxProblems problems{&events, [](const QString &script) {
                            return script == "wrong" ? QStringLiteral("line 1: wrong") : QString();
                        }};
    qxProblemsDock dock{&problems, sets.edits()};
};

// A list, not a procedure.
std::vector<ProblemsTest::Case> ProblemsTest::cases()
{
    const auto addVariant = [this](const char *name) {
        scene.addLight("Sun");
        auto *const variant = qxVariants::createLightVariant(name, false);
        variant->options.emplace_back();
        variant->options.back().name = "!Enable";
        variant->lightName = "Sun";
        return variant;
    };
    return {
        {[] { set("Red").addNodeVariant("Gone", "Steel"); }, "QX301 Set Red: Gone, Steel",
         "Remove 1 entries"},
        {[] {
             set("Red").addViewpoint("Side");
             set("Blue").addAnimation("Spin");
             set("Blue").addGeometry("Gone");
             set("Blue").addTargetNodeName("Gone");
             set("Blue").addMaterialSnapshot("No/Path", "Gone");
         },
         "QX304 Set Red: Side; QX306 Set Blue: Spin; QX307 Set Blue: Gone; QX308 Set Blue: Gone; "
         "QX309 Set Blue: No/Path; QX310 Set Blue: No/Path",
         "Remove 5 entries"},
        {[] { set("Red").defaultViewpoint = "Side"; }, "QX305 Set Red",
         "Remove 1 default viewpoints"},
        {[] { giveKey(set("Red"), "Ctrl+K"); }, "QX502 Variant Wheels: Alloy", "Remove 1 hotkeys"},
        {[] { giveKey(set("Red"), "Nonsense"); }, "QX501 Set Red", "Remove 1 hotkeys"},
        {[] { set("Red").addNodeVariant("Wheels", "!Disable"); }, "QX302 Set Red: Wheels, hidden",
         "Add 1 options to their variants"},
        {[] {
             qxVariants::findNodeVariant("Wheels")->options.emplace_back();
             qxVariants::findNodeVariant("Wheels")->options.back().name = "Gone";
         },
         "QX404 Variant Wheels: Gone; QX407 Variant Wheels: Gone", "Remove 1 options"},
        {[] { qxVariants::findNodeVariant("Wheels")->defaultState = "Gone"; },
         "QX403 Variant Wheels", "Clear 1 default states"},
        {[] { set("Blue").addViewpoint("Front"); }, "QX312 Set Alone", "Delete 1 sets"},
        {[] { qxVariants::createVariantGroup("Attic", false, true); }, "QX315 Group Attic",
         "Delete 1 groups"},
        {[&] { addVariant("Sun"); }, "QX408 Variant Sun",
         "Delete 1 variants with their entries in sets"},
    };
}

TEST_F(ProblemsTest, EachFixMendsWhatIsSelectedInOneStep)
{
    ASSERT_EQ(listed().toStdString(), "");
    EXPECT_EQ(dock.windowTitle(), "Problems");
    for (const Case &each : cases()) {
        SCOPED_TRACE(each.listed);
        each.breakIt();
        look();
        EXPECT_EQ(listed().toStdString(), each.listed);
        dock.view()->selectAll();
        QAction *const action = fix(each.fix);
        ASSERT_NE(action, nullptr);
        const int steps = sets.undoStack()->count();
        action->trigger();
        look();
        EXPECT_EQ(listed().toStdString(), "");
        EXPECT_EQ(sets.undoStack()->count(), steps + 1);
        undo();
        look();
        EXPECT_EQ(listed().toStdString(), each.listed);
        sets.undoStack()->redo();
        look();
        sets.undoStack()->clear();
    }
}

TEST_F(ProblemsTest, ProblemsAreCountedFilteredSearchedCopiedAndLeadToTheirPlaces)
{
    set("Red").addViewpoint("Side");
    set("Blue").script = "wrong";
    set("Alone").addViewpoint("Sid%1<b>");
    qxVariants::createVariantGroup("Attic", false, true);
    look();
    EXPECT_EQ(dock.windowTitle(), "Problems (4)");
    EXPECT_EQ(listed().toStdString(),
              "QX304 Set Alone: Sid%1<b>; QX304 Set Red: Side; QX314 Set Blue: script; QX315 Group "
              "Attic");
    EXPECT_EQ(severity("error").text() + severity("warning").text() + severity("hint").text(),
              "301");
    severity("hint").click();
    EXPECT_EQ(dock.windowTitle(), "Problems (3)");
    EXPECT_FALSE(listed().contains("Attic"));
    auto *const field = dock.findChild<QLineEdit *>("problemSearch");
    field->setText("SIDE");
    EXPECT_EQ(listed(), "QX304 Set Red: Side");
    field->setText("nowhere");
    EXPECT_TRUE(dock.findChild<QLabel *>("empty")->isVisibleTo(&dock));
    EXPECT_EQ(dock.findChild<QLabel *>("empty")->text(), "4 problems are not shown.");
    field->clear();
    dock.view()->sortByColumn(1, Qt::DescendingOrder);
    EXPECT_EQ(listed().section(' ', 0, 2), "QX304 Set Red:");

    QStringList wanted;
    QObject::connect(&dock, &qxProblemsDock::setWanted,
                     [&](const QString &name, const qxFindingPlace &place) {
                         wanted << name + ' ' + place.name;
                     });
    dock.view()->setCurrentIndex(dock.view()->model()->index(0, 0));
    dock.view()->setFocus();
    press(*dock.view(), Qt::Key_Return);
    EXPECT_EQ(wanted, QStringList("Red Side"));
    set("Leather").addViewpoint("Other");
    look(); // The same rows stay selected.
    press(*dock.view(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(),
              "error QX304: Missing viewpoint (Set Red: Side)\n");
    EXPECT_TRUE(
        dock.view()->currentIndex().data(Qt::ToolTipRole).toString().contains("Restore it"));
}

TEST_F(ProblemsTest, WhatMayBeMeantIsOfferedAndWhatIsClearIsRepaired)
{
    osg::setName(scene.root().child(0).node(), "Wheels 1");
    look();
    ASSERT_EQ(listed().section(';', 0, 0), "QX401 Variant Wheels");
    dock.view()->setCurrentIndex(dock.view()->model()->index(0, 0));
    QMenu *const candidates = fix("Replace by")->menu();
    Q_EMIT candidates->aboutToShow();
    ASSERT_EQ(candidates->actions().size(), 2); // below the name
    candidates->actions()[1]->trigger();
    look();
    EXPECT_EQ(listed(), "");
    EXPECT_EQ(qxVariants::findNodeVariant("Wheels")->nodeName, "Wheels 1");
    undo();
    look();
    fix("Repair All That Is Clear")->trigger();
    look();
    EXPECT_EQ(listed(), "");
    EXPECT_EQ(dock.findChild<QLabel *>("told")->text(), "1 names were repaired.");
    fix("Repair All That Is Clear")->trigger();
    EXPECT_EQ(dock.findChild<QLabel *>("told")->text(), "Of no name is it clear what is meant.");
}

TEST_F(ProblemsTest, EditsAreFollowedWhileNothingElseIsDone)
{
    qxVariants::createVariantSet("New", true, nullptr)->addViewpoint("Side");
    EXPECT_EQ(listed(), "");
    EXPECT_TRUE(QTest::qWaitFor([&] { return listed() == "QX304 Set New: Side"; }));
    sets.edits()->editSet("New", "", [](qxVariantSet &edited) { edited.viewpoints.clear(); });
    EXPECT_TRUE(QTest::qWaitFor([&] { return listed() == "QX313 Set New"; }));
    EXPECT_TRUE(QTest::qWaitFor([&] { return problems.isCurrent(); }));
}
