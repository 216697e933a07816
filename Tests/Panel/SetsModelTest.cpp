#include "qxNodeVariant.h"

#include "PanelFixture.h"
#include "qxSetsModel.h"

#include <QMimeData>
#include <QSignalSpy>
#include <QTextDocumentFragment>

#include <memory>

class SetsModelTest : public PanelFixture {
protected:
    qxPanelEvents events;
    qxSetEdits edits;
    qxSetsModel model{qxSetsModel::Tree, &events, &edits};
    const QStringList atStart{"0 Outside", "1 Red", "1 Blue", "0 Inside", "1 Leather", "0 Alone"};
};

TEST_F(SetsModelTest, GroupsComeBeforeSetsWithoutOne)
{
    EXPECT_EQ(rows(model), atStart);
    const qxSetsModel flat(qxSetsModel::Flat, &events, &edits);
    EXPECT_EQ(rows(flat), QStringList({"0 Red", "0 Blue", "0 Leather", "0 Alone"}));
}

TEST_F(SetsModelTest, WhatAnybodyChangesShowsAfterOneRefresh)
{
    QSignalSpy refreshes(&events, &qxPanelEvents::setsChanged);
    for (int number = 0; number < 100; ++number)
        qxVariants::createVariantSet(QString::number(number), true, nullptr);
    qxVariants::removeVariantSet("Red");
    settle();
    EXPECT_EQ(refreshes.count(), 1);
    EXPECT_EQ(model.rowCount(QModelIndex()), 3 + 100);
    EXPECT_EQ(rows(model).mid(0, 3), QStringList({"0 Outside", "1 Blue", "0 Inside"}));
}

TEST_F(SetsModelTest, RowsKeepTheirPlaceInViewsWhenSetsMoveAndGetOtherNames)
{
    const QPersistentModelIndex blue = model.indexOfSet("Blue");
    const QPersistentModelIndex red = model.indexOfSet("Red");
    edits.renameSet("Blue", "Navy");
    edits.moveSets({"Navy"}, "Inside", "Leather");
    qxVariants::removeVariantSet("Red");
    settle();
    EXPECT_EQ(blue.data().toString(), "Navy");
    EXPECT_EQ(blue.parent().data().toString(), "Inside");
    EXPECT_FALSE(red.isValid());
}

TEST_F(SetsModelTest, SetsThatComeBackInOtherMemoryAreFoundByName)
{
    const QPersistentModelIndex blue = model.indexOfSet("Blue");
    const QPersistentModelIndex red = model.indexOfSet("Red");
    qxVariants::removeVariantSet("Red");
    qxVariants::removeVariantSet("Blue");
    for (const char *name : {"Red", "Blue"}) // What went last is reused first.
        qxVariants::createVariantSet(name, true, nullptr);
    settle();
    EXPECT_EQ(red.data().toString(), "Red");
    EXPECT_EQ(blue.data().toString(), "Blue");
}

TEST_F(SetsModelTest, ARemovedSetIsNotTouchedBeforeTheRefresh)
{
    const QModelIndex red = model.indexOfSet("Red");
    qxVariants::removeVariantSet("Red");
    EXPECT_EQ(model.setAt(red), nullptr);
    EXPECT_EQ(red.data(qxSetsModel::CommentRole), QVariant());
    EXPECT_EQ(red.data().toString(), "Red");
}

TEST_F(SetsModelTest, ToolTipsShowNamesAsTheyAre)
{
    edits.renameSet("Red", "<b>Red & hot");
    settle();
    const QString tip = model.indexOfSet("<b>Red & hot").data(Qt::ToolTipRole).toString();
    const QString shown = QTextDocumentFragment::fromHtml(tip).toPlainText();
    EXPECT_TRUE(shown.startsWith("<b>Red & hot\n")) << shown.toStdString();
}

TEST_F(SetsModelTest, DraggedSetsLandWhereTheyAreDropped)
{
    const std::unique_ptr<QMimeData> dragged(
        model.mimeData({model.indexOfSet("Alone"), model.indexOfSet("Leather")}));
    model.dropMimeData(dragged.get(), Qt::MoveAction, 1, 0, model.indexOfGroup("Outside"));
    settle();
    EXPECT_EQ(rows(model),
              QStringList({"0 Outside", "1 Red", "1 Alone", "1 Leather", "1 Blue", "0 Inside"}));
    edits.stack()->undo();
    settle();
    EXPECT_EQ(rows(model), atStart);
}

TEST_F(SetsModelTest, TheSearchFindsEveryWordInNameCommentKeyOrGroup)
{
    set("Red").comment = "a warm colour";
    const QList<QPair<QString, QStringList>> cases = {
        {"", atStart},
        {"RED", {"0 Outside", "1 Red"}},
        {"warm  out", {"0 Outside", "1 Red"}},
        {"warm leather", {}},
        {"inside", {"0 Inside", "1 Leather"}},
    };
    for (const auto &each : cases) {
        model.setSearch(each.first);
        EXPECT_EQ(rows(model), each.second) << each.first.toStdString();
    }
}

TEST_F(SetsModelTest, ATransformSwitchIsCurrentInTheTransformWhereItStands)
{
    const TestNode lid = scene.addTransformSwitch("Lid", 3);
    qxNodeVariant *const variant = qxVariants::createNodeVariant(lid, true);
    set("Red").add(variant, "Transform 1");
    set("Blue").add(variant, "Transform 2");
    set("Leather").add(variant, "!Enable");
    variant->onSelect("Transform 2");
    settle();
    const auto isCurrent = [this](const char *name) {
        return model.indexOfSet(name).data(qxSetsModel::CurrentRole).toBool();
    };
    EXPECT_FALSE(isCurrent("Red"));
    EXPECT_TRUE(isCurrent("Blue"));
    EXPECT_TRUE(isCurrent("Leather"));
}

TEST_F(SetsModelTest, TheSetThatTheSceneShowsIsCurrent)
{
    const TestNode wheels = scene.addSwitch("Wheels", {"Steel", "Alloy"});
    qxNodeVariant *const variant = qxVariants::createNodeVariant(wheels, true);
    set("Red").add(variant, "Steel");
    set("Blue").add(variant, "Alloy");
    set("Leather").add(variant, "!Next");
    variant->onSelect("Alloy");
    settle();
    const auto isCurrent = [this](const char *name) {
        return model.indexOfSet(name).data(qxSetsModel::CurrentRole).toBool();
    };
    EXPECT_FALSE(isCurrent("Red"));
    EXPECT_TRUE(isCurrent("Blue"));
    EXPECT_FALSE(isCurrent("Leather"));
    EXPECT_FALSE(isCurrent("Alone"));
    variant->onSelect("Steel");
    settle();
    EXPECT_TRUE(isCurrent("Red"));
    EXPECT_FALSE(isCurrent("Blue"));
}
