#include "qxNodeVariant.h"

#include "PanelFixture.h"
#include "Sets/qxSetsModel.h"
#include "qxPanelEvents.h"

#include <QMimeData>
#include <QTextDocumentFragment>

#include <functional>
#include <memory>

/// Groups and sets as views read and move them. "Hidden" is a group that is not shown, between the
/// others.
class SetsModelTest : public PanelFixture {
protected:
    SetsModelTest()
    {
        qxVariants::createVariantGroup("Hidden", false, false);
        addGroup("Extra", {});
        qxVariants::createVariantSet("Bare", false, nullptr);
        Q_EMIT qxPanelChanges::the().setsEdited();
        settle();
    }

    QString shown()
    {
        settle();
        return rows(tree);
    }
    /// The sets that the scene shows now.
    QString current()
    {
        settle();
        std::vector<const qxVariantSet *> found;
        for (const qxVariantSet *set : qxVariants::_variantSets) {
            if (tree.indexOfSet(set->name).data(qxSetsModel::CurrentRole).toBool())
                found.push_back(set);
        }
        return namesOf(found);
    }
    /// The groups and sets of the registry, whatever is shown.
    static QString registry()
    {
        return namesOf(qxVariants::_variantGroups) + ',' + namesOf(qxVariants::_variantSets);
    }
    /// Drags sets, or groups, in front of that row below `parent`, -1 for onto it.
    static void drop(qxSetsModel &model, const char *dragged, int row,
                     const QModelIndex &parent = QModelIndex())
    {
        QModelIndexList indexes;
        for (const QString &name : names(dragged)) {
            const QModelIndex set = model.indexOfSet(name);
            indexes << (set.isValid() ? set : model.indexOfGroup(name));
        }
        const std::unique_ptr<QMimeData> data(model.mimeData(indexes));
        model.dropMimeData(data.get(), Qt::MoveAction, row, 0, parent);
    }

    qxPanelEvents events;
    qxSetEdits edits;
    qxSetsModel tree{qxSetsModel::Tree, &events, &edits};
    qxSetsModel sections{qxSetsModel::Sections, &events, &edits};
    const QString start = "0 Outside,1 Red,1 Blue,0 Inside,1 Leather,0 Extra,0 Alone,0 Bare";
};

TEST_F(SetsModelTest, RowsFollowTheirSetsToOtherPlacesNamesAndMemory)
{
    const QPersistentModelIndex blue = tree.indexOfSet("Blue");
    const QPersistentModelIndex red = tree.indexOfSet("Red");
    edits.renameSet("Blue", "Navy");
    edits.moveSets({"Navy"}, "Inside", "Leather");
    settle();
    EXPECT_EQ(blue.data().toString(), "Navy");
    EXPECT_EQ(blue.parent().data().toString(), "Inside");
    qxVariants::removeVariantSet("Red");
    EXPECT_EQ(tree.setAt(red), nullptr) << "gone before the refresh";
    EXPECT_EQ(red.data(qxSetsModel::CommentRole), QVariant());
    EXPECT_EQ(red.data().toString(), "Red");
    qxVariants::removeVariantSet("Navy");
    for (const char *name : {"Red", "Navy"}) // What went last is reused first.
        qxVariants::createVariantSet(name, true, nullptr);
    settle();
    EXPECT_EQ(red.data().toString(), "Red");
    EXPECT_EQ(blue.data().toString(), "Navy");
    for (const char *name : {"Navy", "Red"})
        qxVariants::removeVariantSet(name);
    qxVariants::createVariantSet("Navy", true, nullptr); // Where "Red" was.
    settle();
    EXPECT_FALSE(red.isValid());
    EXPECT_EQ(blue.data().toString(), "Navy");
}

TEST_F(SetsModelTest, ToolTipsShowNamesAsTheyAre)
{
    edits.renameSet("Red", "<b>Red & hot");
    settle();
    const QString tip = tree.indexOfSet("<b>Red & hot").data(Qt::ToolTipRole).toString();
    EXPECT_EQ(QTextDocumentFragment::fromHtml(tip).toPlainText().section('\n', 0, 0),
              "<b>Red & hot");
}

TEST_F(SetsModelTest, TheSearchFindsEveryWordInNameCommentKeyOrGroup)
{
    set("Red").comment = "a warm colour";
    set("Leather").hotkey = "F7";
    const QList<QPair<QString, QString>> cases = {
        {"RED", "0 Outside,1 Red"},       {"warm  out", "0 Outside,1 Red"}, {"warm leather", ""},
        {"inside", "0 Inside,1 Leather"}, {"f7", "0 Inside,1 Leather"},     {"", start}};
    for (const auto &each : cases) {
        tree.setSearch(each.first);
        EXPECT_EQ(rows(tree), each.second) << each.first.toStdString();
    }
}

TEST_F(SetsModelTest, SectionsHaveHeadingsAndShowNoSetsWhileTheyAreClosed)
{
    const auto now = [this] {
        settle();
        return rows(sections);
    };
    const QString open =
        "0 Outside,0 Red,0 Blue,0 Inside,0 Leather,0 Extra,0 In No Group,0 Alone,0 Bare";
    EXPECT_EQ(now(), open);
    sections.setClosed({"Outside", QString()});
    EXPECT_EQ(now(), "0 Outside,0 Inside,0 Leather,0 Extra,0 In No Group");
    EXPECT_EQ(sections.setsInOrder().join(','), "Red,Blue,Leather,Alone,Bare");
    EXPECT_TRUE(sections.index(0, 0, QModelIndex()).data(qxSetsModel::ClosedRole).toBool());
    sections.setSearch("re");
    EXPECT_EQ(now(), "0 Outside,0 Red,0 In No Group,0 Bare") << "a search opens";
    sections.setSearch(QString());
    sections.setClosed({});
    const QModelIndex alone = sections.indexOfGroup(QString());
    EXPECT_EQ(alone.data(qxSetsModel::CountRole).toString(), "2");
    EXPECT_FALSE(alone.flags() & (Qt::ItemIsEditable | Qt::ItemIsDragEnabled));
    edits.remove({}, {"Outside", "Inside", "Extra"}, true);
    edits.removeGroup("Hidden", true);
    EXPECT_EQ(now(), "0 Alone,0 Bare") << "without groups no heading";
}

TEST_F(SetsModelTest, SetsThatTheSceneShowsAreCurrent)
{
    const TestNode wheels = scene.addSwitch("Wheels", {"Steel", "Alloy"});
    qxNodeVariant *const ofWheels = qxVariants::createNodeVariant(wheels, true);
    set("Red").add(ofWheels, "Steel");
    set("Blue").add(ofWheels, "Alloy");
    set("Leather").add(ofWheels, "!Next");
    ofWheels->onSelect("Alloy");
    EXPECT_EQ(current(), "Blue");
    ofWheels->onSelect("Steel");
    EXPECT_EQ(current(), "Red");

    const TestNode lid = scene.addTransformSwitch("Lid", 3);
    qxNodeVariant *const ofLid = qxVariants::createNodeVariant(lid, true);
    set("Red").add(ofLid, "Transform 1");
    set("Alone").add(ofLid, "Transform 2");
    set("Bare").add(ofLid, "!Enable");
    ofLid->onSelect("Transform 2");
    EXPECT_EQ(current(), "Alone,Bare") << "shown in the transform where it stands";
}

// A list, not a procedure.
TEST_F(SetsModelTest, EveryMoveBringsRowsToTheirPlacesAndIsOneStepToUndo)
{
    const auto group = [this](const char *name) { return tree.indexOfGroup(name); };
    const struct {
        const char *what;
        std::function<void()> move;
        const char *result;
    } cases[] = {
        {"a group before another", [&] { drop(tree, "Extra", 1); },
         "0 Outside,1 Red,1 Blue,0 Extra,0 Inside,1 Leather,0 Alone,0 Bare"},
        {"a group behind all groups", [&] { drop(tree, "Outside", -1); },
         "0 Inside,1 Leather,0 Extra,0 Outside,1 Red,1 Blue,0 Alone,0 Bare"},
        {"sets onto a group", [&] { drop(tree, "Blue,Bare", -1, group("Extra")); },
         "0 Outside,1 Red,0 Inside,1 Leather,0 Extra,1 Blue,1 Bare,0 Alone"},
        {"sets into a group", [&] { drop(tree, "Alone,Leather", 1, group("Outside")); },
         "0 Outside,1 Red,1 Alone,1 Leather,1 Blue,0 Inside,0 Extra,0 Bare"},
        {"sets before one of another group",
         [&] { edits.moveSets(names("Leather,Red"), "Outside", "Blue"); },
         "0 Outside,1 Leather,1 Red,1 Blue,0 Inside,0 Extra,0 Alone,0 Bare"},
        {"sets to the end of their group", [&] { edits.moveSets({"Red"}, "Outside", QString()); },
         "0 Outside,1 Blue,1 Red,0 Inside,1 Leather,0 Extra,0 Alone,0 Bare"},
        {"a set between two groups", [&] { drop(tree, "Alone", 1); },
         "0 Outside,1 Red,1 Blue,1 Alone,0 Inside,1 Leather,0 Extra,0 Bare"},
        {"a set above all groups", [&] { drop(tree, "Alone", 0); },
         "0 Outside,1 Alone,1 Red,1 Blue,0 Inside,1 Leather,0 Extra,0 Bare"},
        {"a set between those in no group", [&] { drop(tree, "Red", 4); },
         "0 Outside,1 Blue,0 Inside,1 Leather,0 Extra,0 Alone,0 Red,0 Bare"},
        {"a set out of its group", [&] { edits.moveSets({"Red"}, QString(), QString()); },
         "0 Outside,1 Blue,0 Inside,1 Leather,0 Extra,0 Alone,0 Bare,0 Red"},
        {"sets of several places by key", [&] { edits.shiftSets(names("Blue,Bare"), false); },
         "0 Outside,1 Blue,1 Red,0 Inside,1 Leather,0 Extra,0 Bare,0 Alone"},
        {"a card onto another", [&] { drop(sections, "Bare", -1, sections.indexOfSet("Blue")); },
         "0 Outside,1 Red,1 Bare,1 Blue,0 Inside,1 Leather,0 Extra,0 Alone"},
        {"a card behind the last one of a section", [&] { drop(sections, "Alone", 3); },
         "0 Outside,1 Red,1 Blue,1 Alone,0 Inside,1 Leather,0 Extra,0 Bare"},
        {"a card onto the heading of those in no group",
         [&] { drop(sections, "Red", -1, sections.indexOfGroup(QString())); },
         "0 Outside,1 Blue,0 Inside,1 Leather,0 Extra,0 Alone,0 Bare,0 Red"},
        {"a card behind everything", [&] { drop(sections, "Leather", 9); },
         "0 Outside,1 Red,1 Blue,0 Inside,0 Extra,0 Alone,0 Bare,0 Leather"},
        {"a heading before another", [&] { drop(sections, "Extra", 2); },
         "0 Outside,1 Red,1 Blue,0 Extra,0 Inside,1 Leather,0 Alone,0 Bare"},
        {"a group goes", [&] { edits.removeGroup("Outside", false); },
         "0 Inside,1 Leather,0 Extra,0 Red,0 Blue,0 Alone,0 Bare"},
        {"a group goes with its sets", [&] { edits.removeGroup("Outside", true); },
         "0 Inside,1 Leather,0 Extra,0 Alone,0 Bare"},
        {"sets and a group go", [&] { edits.remove(names("Leather,Bare"), {"Extra"}, false); },
         "0 Outside,1 Red,1 Blue,0 Inside,0 Alone"},
    };
    const QString order = registry();
    for (const auto &each : cases) {
        SCOPED_TRACE(each.what);
        each.move();
        EXPECT_EQ(shown(), each.result);
        const QString moved = registry();
        ASSERT_EQ(edits.stack()->index(), 1);
        edits.stack()->undo();
        EXPECT_EQ(shown(), start);
        EXPECT_EQ(registry(), order);
        edits.stack()->redo();
        EXPECT_EQ(shown(), each.result);
        EXPECT_EQ(registry(), moved);
        edits.stack()->undo();
        settle();
    }
}

TEST_F(SetsModelTest, SetsAndGroupsThatOthersTouchedSinceStayWhereTheyAre)
{
    edits.moveSets(names("Red,Blue"), "Inside", QString());
    qxVariants::findVariantGroup("Inside")->remove(&set("Blue"));
    edits.stack()->undo();
    EXPECT_EQ(shown(), "0 Outside,1 Red,0 Inside,1 Leather,0 Extra,0 Blue,0 Alone,0 Bare");

    edits.moveSets({"Red"}, "Inside", QString());
    qxVariants::findVariantGroup("Outside")->name = "Elsewhere";
    edits.stack()->undo();
    EXPECT_EQ(shown(), "0 Elsewhere,0 Inside,1 Leather,1 Red,0 Extra,0 Blue,0 Alone,0 Bare");

    const QString added = edits.addGroup();
    qxVariants::findVariantGroup(added)->add(&set("Bare"));
    edits.stack()->undo();
    ASSERT_NE(set("Bare").group, nullptr);
    EXPECT_EQ(set("Bare").group->name, added);
    EXPECT_EQ(edits.stack()->count(), 0) << "none of it can be undone any more";
}

TEST_F(SetsModelTest, WhatChangesNothingIsNoStep)
{
    drop(tree, "Outside", 0);
    drop(tree, "Outside", 1);
    drop(tree, "Outside", 0, tree.indexOfGroup("Inside"));
    drop(tree, "Red", 1, tree.indexOfGroup("Outside"));
    drop(tree, "Bare", -1);
    edits.moveSets({"Leather"}, "Inside", QString());
    edits.moveSets({"Red"}, "No such group", QString());
    edits.shiftSets(names("Red,Leather,Alone"), false);
    edits.shiftGroup("Outside", false);
    edits.removeSets({"No such set"});
    edits.renameSet("Red", " \u00a0");
    edits.renameGroup("Outside", "\t ");
    edits.commentGroup("Outside", QString());
    edits.editSet("Red", "Comment", [](qxVariantSet &red) { red.comment.clear(); });
    EXPECT_EQ(edits.stack()->count(), 0);
    EXPECT_EQ(shown(), start);
}

TEST_F(SetsModelTest, AHiddenGroupIsShownOnRequestAndMayBeMadeVisible)
{
    edits.setGroupVisible("Inside", false);
    EXPECT_EQ(shown(), "0 Outside,1 Red,1 Blue,0 Extra,0 Alone,0 Bare");
    drop(tree, "Outside", 1); // behind hidden ones or before: it looks the same
    EXPECT_EQ(edits.stack()->count(), 1);
    tree.setHiddenShown(true);
    EXPECT_TRUE(tree.indexOfGroup("Inside").data(qxSetsModel::HiddenRole).toBool());
    EXPECT_EQ(shown(), "0 Outside,1 Red,1 Blue,0 Inside,1 Leather,0 Hidden,0 Extra,0 Alone,0 Bare");
    drop(tree, "Extra", 1);
    EXPECT_TRUE(shown().contains("1 Blue,0 Extra,0 Inside"));
    edits.stack()->undo();
    edits.stack()->undo();
    tree.setHiddenShown(false);
    EXPECT_EQ(shown(), start);
}
