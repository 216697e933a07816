#include "qxNodeVariant.h"
#include "qxVariantWriter.h"

#include "PanelFixture.h"
#include "Undo/qxNameEdits.h"

#include <OpenSG/OSGSimpleAttachments.h>

namespace {

class NameEditsTest : public PanelFixture {
protected:
    NameEditsTest()
    {
        qxNodeVariant *const variant = qxVariants::createNodeVariant(wheels, true);
        set("Red").add(variant, "Steel");
        set("Blue").add(variant, "Alloy");
        set("Blue").script = "qxVariants.selectVariantSet('Red')\n";
        set("Leather").add(qxVariants::createNodeVariant(doors, true), "Two");
    }

    static QByteArray document() { return qxVariantWriter().writeToCompare(); }
    QString rename(const char *word, const char *before, const char *after)
    {
        qxRenameRequest request;
        EXPECT_TRUE(qxRenameWords::take(word, request));
        request.before = before;
        request.after = after;
        return qxNameEdits::rename(steps, word, request).refusal;
    }
    /// One step, which leads back to what was there, and forward again.
    void expectStep(const QByteArray &before)
    {
        const QByteArray after = document();
        ASSERT_EQ(steps.count(), 1);
        for (int round = 0; round < 2; ++round) {
            steps.undo();
            EXPECT_EQ(document().toStdString(), before.toStdString());
            steps.redo();
            EXPECT_EQ(document().toStdString(), after.toStdString());
        }
        steps.undo();
        steps.clear();
    }

    TestNode wheels = scene.addSwitch("Wheels", {"Steel", "Alloy"});
    TestNode doors = scene.addSwitch("Doors", {"Two", "Four"});
    QUndoStack steps;
};

TEST_F(NameEditsTest, ANameChangesWithEverythingThatHasIt)
{
    const QByteArray before = document();
    struct Row {
        const char *word, *before, *after;
        const char *now;
    };
    for (const Row &row : {Row{"node-variant", "Wheels", "Rims", "ref=\"Rims\""},
                           Row{"node", "Wheels", "Räder", "Räder"},
                           Row{"option", "Alloy", "Forged", "state=\"Forged\""},
                           Row{"set", "Red", "Crimson", "selectVariantSet('Crimson')"},
                           Row{"group", "Inside", "Cabin", "Cabin"}}) {
        SCOPED_TRACE(row.word);
        EXPECT_EQ(rename(row.word, row.before, row.after), QString());
        EXPECT_TRUE(document().contains(row.now)) << document().toStdString();
        expectStep(before);
        EXPECT_EQ(qxNodeUtils::getName(wheels), "Wheels");
    }
    EXPECT_NE(rename("node-variant", "Wheels", "Doors"), QString());
    EXPECT_EQ(steps.count(), 0) << "what was refused is no step";
}

TEST_F(NameEditsTest, WhatWasChangedMeanwhileStays)
{
    EXPECT_EQ(rename("node", "Wheels", "Rims"), QString());
    osg::setName(osg::NodePtr(wheels), "Feet");
    set("Blue").script = "pass\n";
    steps.undo();
    EXPECT_EQ(qxNodeUtils::getName(wheels), "Feet");
    EXPECT_EQ(set("Blue").script, "pass\n");
}

TEST_F(NameEditsTest, WhatIsBrokenIsRepairedInAllItsPlaces)
{
    osg::setName(osg::NodePtr(wheels), "Wheel");
    const QByteArray before = document();
    const std::vector<qxBreak> breaks = qxNameEdits::breaks();
    ASSERT_EQ(breaks.size(), 1u);
    ASSERT_FALSE(breaks.front().candidates.empty());
    EXPECT_EQ(breaks.front().candidates.front().name, "Wheel");
    EXPECT_TRUE(qxNameEdits::repair(steps, breaks.front(), "Wheel"));
    EXPECT_TRUE(qxNameEdits::breaks().empty());
    expectStep(before);
}

} // namespace
