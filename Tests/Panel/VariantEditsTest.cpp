#include "qxMaterialVariant.h"
#include "qxNodeVariant.h"
#include "qxVariantKinds.h"
#include "qxVariantWriter.h"

#include "../Scenarios/ShownScene.h"
#include "Entries/qxEntryEdits.h"
#include "PanelFixture.h"
#include "Undo/qxNameEdits.h"
#include "Undo/qxVariantEdits.h"
#include "qxOverlays.h"

#include <QUndoStack>

#include <functional>
#include <random>

namespace {

using namespace qxVariantKinds;

/// All that an edit of variants may touch.
std::string everything()
{
    return shownScene() + qxVariantWriter().write().toStdString();
}

/// A scene with something of each kind, and sets that refer to variants.
class VariantEditsTest : public PanelFixture {
protected:
    VariantEditsTest()
    {
        scene.addSwitch("Wheels", {"Steel", "Alloy", "Chrome"}).choose(1);
        scene.addLight("Lamp");
        scene.addPoses("Door", {"Closed", "Open"});
        scene.addOverlaySwitch("Labels", {"Prices", "Sizes"});
        scene.addGeometry("Seat", scene.addSwitchMaterial("Paints", {"Matt", "Gloss"}));
        scene.addGeometry("Body", scene.addMaterial("Red"));
        scene.addMaterial("Blue");
        scene.add("Group");
        scene.add("Group");
        qxVariants::createNodeVariant(scene.root().child(0), false); // "Wheels"
        set("Red").addNodeVariant("Group", "!Enable");
        set("Red").addNodeVariant("Wheels", "Steel");
        set("Leather").addNodeVariant("Wheels", "Alloy");
    }

    static osg::NodePtr node(const char *name) { return qxScenegraph::findNode(name); }
    static QString named(const qxVariantEdits::Variants &variants)
    {
        QStringList names;
        for (const qxVariantName &each : variants)
            names << each.kind->word + ' ' + each.name;
        return names.join(',');
    }
    static QString optionsOf(const qxVariantName &variant)
    {
        QStringList names;
        for (const qxVariantOption &option : variant.kind->find(variant.name)->options) {
            if (!option.isAction)
                names << option.name;
        }
        return names.join(',');
    }

    QUndoStack steps;
    const qxVariantName wheels{&qxVariantKinds::node, "Wheels"};
};

struct Edit {
    const char *name;
    std::function<void(QUndoStack &steps)> make;

    friend void PrintTo(const Edit &edit, std::ostream *out) { *out << edit.name; }
};

class EachVariantEditTest : public VariantEditsTest, public testing::WithParamInterface<Edit> {};

// A list, not a procedure.
std::vector<Edit> edits()
{
    const qxVariantName wheels{&node, "Wheels"};
    const qxVariantName paints{&material, "Paints"};
    const auto of = [](const qxVariantKind &kind, const char *name) {
        return [&kind, name](QUndoStack &steps) {
            qxVariantEdits::createOf(steps, kind, {qxScenegraph::findNode(name)});
        };
    };
    return {
        {"MakeOfAll",
         [](QUndoStack &steps) { qxVariantEdits::createOfAll(steps, qxVariantKinds::all()); }},
        {"MakeOfNode", of(node, "Group")},
        {"MakeOfLight", of(light, "Lamp")},
        {"MakeOfPoses", of(transform, "Door")},
        {"MakeOfSwitchMaterial", of(material, "Seat")},
        {"MakeOfPlainMaterial", of(material, "Body")},
        {"MakeOfOverlay",
         [](QUndoStack &steps) {
             qxVariantEdits::createOf(steps, overlay, {qxOverlays::findOverlay("Labels")});
         }},
        {"Remove", [=](QUndoStack &steps) { qxVariantEdits::remove(steps, {wheels}, false); }},
        {"RemoveWithEntries",
         [=](QUndoStack &steps) { qxVariantEdits::remove(steps, {wheels}, true); }},
        {"AddOptions",
         [=](QUndoStack &steps) {
             qxVariantEdits::addOptions(steps, wheels, {"Wood", "Gold"});
         }},
        {"RemoveOptions",
         [=](QUndoStack &steps) {
             qxVariantEdits::removeOptions(steps, wheels, {"Steel", "!Next"});
         }},
        {"OrderOptions",
         [=](QUndoStack &steps) {
             qxVariantEdits::orderOptions(steps, wheels, {"Chrome", "Steel"});
         }},
        {"EditDefault",
         [=](QUndoStack &steps) {
             qxVariantEdits::edit(steps, wheels, "Default",
                                  [](qxVariant &variant) { variant.defaultState = "Steel"; });
         }},
        {"AddMaterials",
         [=](QUndoStack &steps) {
             qxVariantEdits::addMaterials(
                 steps, paints,
                 {qxMaterials::findMaterial("Blue"), qxMaterials::findMaterial("Red")});
         }},
        {"RemoveMaterials",
         [=](QUndoStack &steps) { qxVariantEdits::removeOptions(steps, paints, {"Matt"}); }},
        {"AddToSet",
         [=](QUndoStack &steps) {
             qxVariantEdits::addToSet(steps, "Leather",
                                      {{&node, "Wheels", "Steel"}, {&light, "Lamp", "!Enable"}});
         }},
    };
}

INSTANTIATE_TEST_SUITE_P(VariantEditsTest, EachVariantEditTest, testing::ValuesIn(edits()),
                         [](const auto &each) { return std::string(each.param.name); });

TEST_P(EachVariantEditTest, IsUndoneAndMadeAgain)
{
    if (strstr(GetParam().name, "Materials"))
        qxVariants::createMaterialVariant(qxMaterials::findMaterial("Paints"), false);
    const std::string before = everything();
    GetParam().make(steps);
    const std::string after = everything();
    EXPECT_NE(before, after);
    ASSERT_EQ(steps.count(), 1);
    EXPECT_FALSE(steps.undoText().isEmpty());
    for (int round = 0; round < 2; ++round) {
        steps.undo();
        EXPECT_EQ(everything(), before);
        steps.redo();
        EXPECT_EQ(everything(), after);
    }
}

/// Edits of things that bear names which some other thing may have, or which are written escaped.
// A list, not a procedure.
std::vector<std::function<void()>> chainEdits(qxSetEdits &sets, std::mt19937 &random)
{
    static const QStringList names{"Wheels", "Group", "A & B", "<b>\"C\"</b>", "D\nE", " ", ""};
    QUndoStack &chain = *sets.stack();
    const qxVariantKind &kind = qxVariantKinds::node;
    const auto any = [&random] { return names[int(random() % unsigned(names.size()))]; };
    const auto rename = [&chain, any](const char *word) {
        qxRenameRequest request;
        qxRenameWords::take(word, request);
        request.before = any();
        request.after = any();
        request.owner = strcmp(word, "node-option") ? QString() : any();
        qxNameEdits::rename(chain, word, request);
    };
    return {
        [=, &sets, &random, &chain, &kind] { rename("node-variant"); },
        [=, &sets, &random, &chain, &kind] { rename("node-option"); },
        [=, &sets, &random, &chain, &kind] { rename("set"); },
        [=, &sets, &random, &chain, &kind] { sets.renameSet(any(), any()); },
        [=, &sets, &random, &chain, &kind] { sets.addSet(any()); },
        [=, &sets, &random, &chain, &kind] {
            sets.removeSets({any(), "Red"});
        },
        [=, &sets, &random, &chain, &kind] {
            qxEntryEdits::setState(sets, "Red", {{qxSetEntry::Variant, &kind, any(), ""}}, any());
        },
        [=, &sets, &random, &chain, &kind] {
            qxEntryEdits::remove(sets, "Leather", {{qxSetEntry::Variant, &kind, any(), ""}});
        },
        [=, &sets, &random, &chain, &kind] {
            qxEntryEdits::addNodes(
                sets, "Leather", {qxScenegraph::findNode("Lamp"), qxScenegraph::findNode("Body")});
        },
        [=, &sets, &random, &chain, &kind] {
            qxVariantEdits::addToSet(chain, "Leather", {{&kind, any(), any()}});
        },
        [=, &sets, &random, &chain, &kind] {
            qxVariantEdits::createOf(
                chain, kind, {qxScenegraph::findNode("Wheels"), qxScenegraph::findNode("Group")});
        },
        [=, &sets, &random, &chain, &kind] {
            qxVariantEdits::remove(chain, {{&kind, any()}, {&kind, any()}}, random() % 2);
        },
        [=, &sets, &random, &chain, &kind] {
            qxVariantEdits::addOptions(chain, {&kind, any()}, {any(), any()});
        },
        [=, &sets, &random, &chain, &kind] {
            qxVariantEdits::removeOptions(chain, {&kind, any()}, {any()});
        }};
}

TEST_F(VariantEditsTest, AnyChainOfEditsIsUndoneAndMadeAgainStepByStep)
{
    qxSetEdits sets;
    QUndoStack &chain = *sets.stack();
    std::mt19937 random(7);
    const auto edits = chainEdits(sets, random);
    std::vector<std::string> texts{everything()};
    while (texts.size() < 60) {
        const int before = chain.index();
        edits[random() % edits.size()]();
        if (chain.index() == before)
            ASSERT_EQ(everything(), texts.back()) << "what changes something is a step";
        else
            texts.push_back(everything());
    }
    for (int round = 0; round < 2; ++round) {
        for (std::size_t place = texts.size() - 1; place-- > 0;) {
            const QString what = chain.undoText();
            chain.undo();
            ASSERT_EQ(everything(), texts[place]) << what.toStdString() << " is undone";
        }
        for (std::size_t place = 1; place < texts.size(); ++place) {
            chain.redo();
            ASSERT_EQ(everything(), texts[place]);
        }
    }
}

} // namespace

TEST_F(VariantEditsTest, WhatIsMadeIsToldAndWhyNot)
{
    const auto all = qxVariantEdits::createOfAll(steps, qxVariantKinds::all());
    EXPECT_EQ(named(all.made), "material Paints,light Lamp,overlay Labels,transform Door");
    EXPECT_EQ(qxVariantEdits::createOfAll(steps, qxVariantKinds::all()).made.size(), 0U);
    EXPECT_EQ(steps.count(), 1) << "nothing new is no step";

    const osg::NodePtr nameless = scene.add("");
    const auto some = qxVariantEdits::createOf(
        steps, qxVariantKinds::node, {node("Wheels"), node("Group"), nameless, node("Group")});
    EXPECT_EQ(named(some.made), "node Group");
    EXPECT_EQ(named(some.known), "node Wheels");
    EXPECT_EQ(some.notes.size(), 3) << some.notes.join('\n').toStdString();
    EXPECT_EQ(steps.undoText(), "Make variant \"Group\"");

    // What is put into a switch material is found again.
    const auto painted = qxVariantEdits::createOf(steps, material, {node("Body")});
    EXPECT_EQ(named(painted.made), "material Red Switch");
    EXPECT_EQ(named(qxVariantEdits::createOf(steps, material, {node("Body")}).known),
              "material Red Switch");
}

TEST_F(VariantEditsTest, TheKindsOfANodeAreThoseThatCanBeMadeOfIt)
{
    const auto kinds = [](const osg::NodePtr &node) {
        QStringList words;
        for (const qxVariantKind *kind : qxVariantEdits::kindsOf(node))
            words << kind->word;
        return words.join(',');
    };
    EXPECT_EQ(kinds(node("Wheels")), "node");
    EXPECT_EQ(kinds(node("Lamp")), "light,node");
    EXPECT_EQ(kinds(node("Door")), "transform,node");
    EXPECT_EQ(kinds(node("Body")), "node,material");
    EXPECT_EQ(kinds(qxOverlays::findOverlay("Labels")), "overlay");
    EXPECT_EQ(kinds(scene.add("")), "");
    EXPECT_EQ(kinds(scene.root()), "");
    EXPECT_EQ(kinds(osg::NullFC), "");
}

TEST_F(VariantEditsTest, OptionsComeFromTheSceneAndKeepTheirPlaces)
{
    qxVariantEdits::removeOptions(steps, wheels, {"Alloy", "!Next", "Chrome"});
    EXPECT_EQ(qxVariantEdits::missingOptions(wheels).join(','), "Alloy,Chrome,!Next");
    qxVariantEdits::addOptions(steps, wheels, {"!Next", "Chrome", "Steel", ""});
    EXPECT_EQ(optionsOf(wheels), "!All,!None,Steel,Chrome");
    EXPECT_TRUE(wheels.kind->find("Wheels")->isAction("!Next"));
    qxVariantEdits::orderOptions(steps, wheels, {"Chrome", "!All", "Steel", "!None"});
    EXPECT_EQ(optionsOf(wheels), "Chrome,!All,Steel,!None");
    qxVariantEdits::orderOptions(steps, wheels, {"Steel", "Chrome"});
    EXPECT_EQ(optionsOf(wheels), "Steel,!All,Chrome,!None");

    qxVariants::createMaterialVariant(qxMaterials::findMaterial("Paints"), false);
    const qxVariantName paints{&material, "Paints"};
    qxVariantEdits::addMaterials(steps, paints, {qxMaterials::findMaterial("Blue")});
    qxVariantEdits::removeOptions(steps, paints, {"Matt"});
    EXPECT_EQ(optionsOf(paints), "Gloss,Blue");
    EXPECT_EQ(TestMaterial(qxMaterials::findMaterial("Paints")).held(),
              (std::vector<std::string>{"Gloss", "Blue"}));
}

TEST_F(VariantEditsTest, ASetTakesGivenAndPresentStates)
{
    const auto statesOf = [](const char *name) {
        QStringList states;
        for (const qxVariantState &entry : set(name).nodeVariants)
            states << entry.variant + '=' + entry.state;
        return states.join(',');
    };
    EXPECT_EQ(qxVariantEdits::addToSet(steps, "Leather", {{&qxVariantKinds::node, "Wheels", ""}}),
              0);
    EXPECT_EQ(steps.count(), 0);
    EXPECT_EQ(qxVariantEdits::addToSet(steps, "Red",
                                       {{&qxVariantKinds::node, "Wheels", ""},
                                        {&qxVariantKinds::node, "No such", ""},
                                        {&qxVariantKinds::node, "Gone", "Far"}}),
              2);
    EXPECT_EQ(statesOf("Red"), "Group=!Enable,Wheels=Alloy,Gone=Far");
    EXPECT_EQ(qxVariantEdits::usersOf({wheels}).join(','), "Red,Leather");
    qxVariantEdits::remove(steps, {wheels}, true);
    EXPECT_EQ(statesOf("Red"), "Group=!Enable,Gone=Far");
    EXPECT_EQ(statesOf("Leather"), "");
}

TEST_F(VariantEditsTest, WhatOthersChangedStays)
{
    qxVariantEdits::createOf(steps, qxVariantKinds::node, {node("Group")});
    qxVariants::removeNodeVariant("Group");
    steps.undo();
    EXPECT_EQ(steps.count(), 0) << "there is nothing to undo";
    qxVariantEdits::addOptions(steps, wheels, {"Wood"});
    wheels.kind->find("Wheels")->add("Gold", "");
    steps.undo();
    EXPECT_NE(wheels.kind->find("Wheels")->find("Wood"), nullptr);
}
