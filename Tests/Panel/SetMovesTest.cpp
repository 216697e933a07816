#include "PanelFixture.h"
#include "qxSetsModel.h"

#include <QMimeData>

#include <functional>
#include <memory>

/// Groups and sets change places. "Hidden" is a group that is not shown, between the others.
class SetMovesTest : public PanelFixture {
protected:
    SetMovesTest()
    {
        qxVariants::createVariantGroup("Hidden", false, false);
        addGroup("Extra", {});
        qxVariants::createVariantSet("Bare", false, nullptr);
        qxPanelEvents::announceEditedSets();
        start = shown();
    }

    QStringList shown()
    {
        settle();
        return rows(tree);
    }
    /// The sets and groups of the registry, whatever is shown.
    static QStringList registry()
    {
        QStringList names;
        for (const qxVariantGroup *group : qxVariants::_variantGroups)
            names << group->name;
        for (const qxVariantSet *set : qxVariants::_variantSets)
            names << set->name;
        return names;
    }
    static void drop(qxSetsModel &model, const QModelIndexList &dragged, int row,
                     const QModelIndex &parent = QModelIndex())
    {
        const std::unique_ptr<QMimeData> data(model.mimeData(dragged));
        model.dropMimeData(data.get(), Qt::MoveAction, row, 0, parent);
    }

    qxPanelEvents events;
    qxSetEdits edits;
    qxSetsModel tree{qxSetsModel::Tree, &events, &edits};
    qxSetsModel flat{qxSetsModel::Flat, &events, &edits};
    /// "0 Outside", "1 Red", "1 Blue", "0 Inside", "1 Leather", "0 Extra", "0 Alone", "0 Bare"
    QStringList start;
};

// A list, not a procedure.
TEST_F(SetMovesTest, EveryMoveBringsRowsToTheirPlacesAndIsOneStepToUndo)
{
    const auto set = [this](const char *name) { return tree.indexOfSet(name); };
    const auto group = [this](const char *name) { return tree.indexOfGroup(name); };
    struct Case {
        const char *what;
        std::function<void()> move;
        QString result; ///< names with their depths
    };
    const Case cases[] = {
        {"a group before another", [&] { drop(tree, {group("Extra")}, 1); },
         "0 Outside,1 Red,1 Blue,0 Extra,0 Inside,1 Leather,0 Alone,0 Bare"},
        {"a group behind all groups", [&] { drop(tree, {group("Outside")}, -1); },
         "0 Inside,1 Leather,0 Extra,0 Outside,1 Red,1 Blue,0 Alone,0 Bare"},
        {"a group by key", [&] { edits.shiftGroup("Extra", false); },
         "0 Outside,1 Red,1 Blue,0 Extra,0 Inside,1 Leather,0 Alone,0 Bare"},
        {"sets onto a group",
         [&] {
             drop(tree, {set("Blue"), set("Bare")}, -1, group("Extra"));
         },
         "0 Outside,1 Red,0 Inside,1 Leather,0 Extra,1 Blue,1 Bare,0 Alone"},
        {"a set between two groups", [&] { drop(tree, {set("Alone")}, 1); },
         "0 Outside,1 Red,1 Blue,1 Alone,0 Inside,1 Leather,0 Extra,0 Bare"},
        {"a set above all groups", [&] { drop(tree, {set("Alone")}, 0); },
         "0 Outside,1 Alone,1 Red,1 Blue,0 Inside,1 Leather,0 Extra,0 Bare"},
        {"a set between those in no group", [&] { drop(tree, {set("Red")}, 4); },
         "0 Outside,1 Blue,0 Inside,1 Leather,0 Extra,0 Alone,0 Red,0 Bare"},
        {"a set out of its group", [&] { edits.moveSets({"Red"}, QString(), QString()); },
         "0 Outside,1 Blue,0 Inside,1 Leather,0 Extra,0 Alone,0 Bare,0 Red"},
        {"sets of several places by key",
         [&] {
             edits.shiftSets({"Blue", "Bare"}, false);
         },
         "0 Outside,1 Blue,1 Red,0 Inside,1 Leather,0 Extra,0 Bare,0 Alone"},
        {"a set downwards by key", [&] { edits.shiftSets({"Red"}, true); },
         "0 Outside,1 Blue,1 Red,0 Inside,1 Leather,0 Extra,0 Alone,0 Bare"},
        {"a card onto another",
         [&] { drop(flat, {flat.indexOfSet("Bare")}, -1, flat.indexOfSet("Blue")); },
         "0 Outside,1 Red,1 Bare,1 Blue,0 Inside,1 Leather,0 Extra,0 Alone"},
        {"a card before one in no group", [&] { drop(flat, {flat.indexOfSet("Red")}, 4); },
         "0 Outside,1 Blue,0 Inside,1 Leather,0 Extra,0 Alone,0 Red,0 Bare"},
        {"a group goes", [&] { edits.removeGroup("Outside", false); },
         "0 Inside,1 Leather,0 Extra,0 Red,0 Blue,0 Alone,0 Bare"},
        {"a group goes with its sets", [&] { edits.removeGroup("Outside", true); },
         "0 Inside,1 Leather,0 Extra,0 Alone,0 Bare"},
        {"sets and a group go",
         [&] {
             edits.remove({"Leather", "Bare"}, {"Extra"}, false);
         },
         "0 Outside,1 Red,1 Blue,0 Inside,0 Alone"},
    };
    const QStringList order = registry();
    for (const Case &each : cases) {
        each.move();
        EXPECT_EQ(shown(), each.result.split(',')) << each.what;
        const QStringList moved = registry();
        ASSERT_EQ(edits.stack()->index(), 1) << each.what;
        edits.stack()->undo();
        EXPECT_EQ(shown(), start) << each.what;
        EXPECT_EQ(registry(), order) << each.what;
        edits.stack()->redo();
        EXPECT_EQ(shown(), each.result.split(',')) << each.what;
        EXPECT_EQ(registry(), moved) << each.what;
        edits.stack()->undo();
        settle();
    }
}

TEST_F(SetMovesTest, SetsAndGroupsThatOthersTouchedSinceStayWhereTheyAre)
{
    edits.moveSets({"Red", "Blue"}, "Inside", QString());
    qxVariants::findVariantGroup("Inside")->remove(&set("Blue"));
    edits.stack()->undo();
    EXPECT_EQ(shown().join(','),
              "0 Outside,1 Red,0 Inside,1 Leather,0 Extra,0 Blue,0 Alone,0 Bare");

    edits.moveSets({"Red"}, "Inside", QString());
    qxVariants::findVariantGroup("Outside")->name = "Elsewhere";
    edits.stack()->undo();
    EXPECT_EQ(shown().join(','),
              "0 Elsewhere,0 Inside,1 Leather,1 Red,0 Extra,0 Blue,0 Alone,0 Bare");

    const QString added = edits.addGroup();
    qxVariants::findVariantGroup(added)->add(&set("Bare"));
    edits.stack()->undo();
    ASSERT_NE(set("Bare").group, nullptr);
    EXPECT_EQ(set("Bare").group->name, added);
    EXPECT_EQ(edits.stack()->count(), 0) << "none of it can be undone any more";
}

TEST_F(SetMovesTest, WhatChangesNothingIsNoStep)
{
    drop(tree, {tree.indexOfGroup("Outside")}, 0);
    drop(tree, {tree.indexOfGroup("Outside")}, 1);
    drop(tree, {tree.indexOfGroup("Outside")}, 0, tree.indexOfGroup("Inside"));
    drop(tree, {tree.indexOfSet("Red")}, 1, tree.indexOfGroup("Outside"));
    drop(tree, {tree.indexOfSet("Bare")}, -1);
    edits.moveSets({"Leather"}, "Inside", QString());
    edits.moveSets({"Red"}, "No such group", QString());
    edits.shiftSets({"Red", "Leather", "Alone"}, false);
    edits.shiftGroup("Outside", false);
    edits.removeSets({"No such set"});
    edits.commentGroup("Outside", QString());
    edits.editSet("Red", "Comment", [](qxVariantSet &red) { red.comment.clear(); });
    EXPECT_EQ(edits.stack()->count(), 0);
    EXPECT_EQ(shown(), start);
}

TEST_F(SetMovesTest, AHiddenGroupIsShownOnRequestAndMayBeMadeVisible)
{
    edits.setGroupVisible("Inside", false);
    EXPECT_EQ(shown().join(','), "0 Outside,1 Red,1 Blue,0 Extra,0 Alone,0 Bare");
    drop(tree, {tree.indexOfGroup("Extra")}, 1); // behind hidden ones or before: it looks the same
    EXPECT_EQ(edits.stack()->count(), 1);
    tree.setHiddenShown(true);
    EXPECT_TRUE(tree.indexOfGroup("Inside").data(qxSetsModel::HiddenRole).toBool());
    EXPECT_EQ(shown().join(','),
              "0 Outside,1 Red,1 Blue,0 Inside,1 Leather,0 Hidden,0 Extra,0 Alone,0 Bare");
    drop(tree, {tree.indexOfGroup("Extra")}, 1);
    EXPECT_EQ(shown().mid(3, 2), QStringList({"0 Extra", "0 Inside"}));
    edits.stack()->undo();
    edits.stack()->undo();
    tree.setHiddenShown(false);
    EXPECT_EQ(shown(), start);
}
