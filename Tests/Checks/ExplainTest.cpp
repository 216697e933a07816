#include "qxLightVariant.h"
#include "qxMaterialVariant.h"
#include "qxNodeVariant.h"
#include "qxTransformVariant.h"
#include "qxVariantReader.h"
#include "qxVariantSet.h"
#include "qxVariants.h"

#include "CheckScene.h"
#include "qxAnimManager.h"
#include "qxController.h"
#include "qxExplanation.h"
#include "qxMaterials.h"
#include "qxScenegraph.h"

#include <OpenSG/OSGSwitchMaterial.h>

#include <functional>
#include <random>

namespace {

class ExplainTest : public CheckScene {
protected:
    ExplainTest()
    {
        qxVariantReader().read(cleanDocument());
        set = qxVariants::createVariantSet("Tried", false, nullptr);
    }
    /// Explains the set, selects it, and compares. The camera and the clips do as they are told.
    std::vector<qxExplainedEntry> explained() const
    {
        qxExplanation explanation(*set);
        set->select(true, false);
        qxSelectionOutcome outcome;
        for (const Notification &each : heard("animationStart"))
            outcome.animations += QString::fromStdString(each.field("animation-name"));
        outcome.viewpoint = set->defaultViewpoint.isEmpty() && !set->viewpoints.empty()
            ? set->viewpoints.front()
            : set->defaultViewpoint;
        outcome.isClipped = true;
        explanation.compare(outcome);
        return explanation.entries();
    }

    /// "kind name=state: from > to code", with + for what was done and - for what was not.
    static std::string textOf(const qxExplainedEntry &entry)
    {
        QString text = entry.kind + " " + entry.name;
        if (entry.isVariant)
            text += "=" + entry.state;
        if (entry.reached > 0)
            text += ": " + entry.from + " > " + entry.to;
        text += entry.isDone ? " +" : " -";
        return (entry.code ? text + qxCheckCodes::id(*entry.code) : text).toStdString();
    }
    std::string explainedText() const
    {
        std::string text;
        for (const qxExplainedEntry &entry : explained())
            text += textOf(entry) + "\n";
        return text;
    }

    qxVariantSet *set;
};

/// One entry, and what is told of it.
struct Case {
    std::function<void(qxVariantSet &)> fill;
    const char *text;
};

void base(const char *variant, const char *object)
{
    if (qxNodeVariant *node = qxVariants::findNodeVariant(variant))
        node->nodeName = object;
    else if (qxMaterialVariant *material = qxVariants::findMaterialVariant(variant))
        material->switchMaterialName = object;
    else if (qxLightVariant *light = qxVariants::findLightVariant(variant))
        light->lightName = object;
    else if (qxTransformVariant *transform = qxVariants::findTransformVariant(variant))
        transform->nodeName = object;
}

// A list, not a procedure.
const Case cases[] = {
    {[](qxVariantSet &s) { s.addNodeVariant("Rims", "Steel"); }, "node Rims=Steel -QX601"},
    {[](qxVariantSet &s) { base("Lamp", "Lamps"), s.addNodeVariant("Lamp", "!Enable"); },
     "node Lamp=!Enable -QX602"},
    {[](qxVariantSet &s) { base("Paint", "Red"), s.addMaterialVariant("Paint", "Red"); },
     "material Paint=Red -QX603"},
    {[](qxVariantSet &s) {
         const auto empty = osg::SwitchMaterial::create();
         qxMaterials::setName(empty, "Empty", true);
         const osg::CPEditor edit(qxScenegraph::getMaterialPool());
         qxScenegraph::getMaterialPool()->add(empty);
         base("Paint", "Empty"), s.addMaterialVariant("Paint", "Red");
     },
     "material Paint=Red -QX604"},
    {[](qxVariantSet &s) { s.addMaterialVariant("Paint", "!None"); },
     "material Paint=!None -QX605"},
    {[](qxVariantSet &s) { base("Sun", "Lamp"), s.addLightVariant("Sun", "!Enable"); },
     "light Sun=!Enable -QX606"},
    {[](qxVariantSet &s) { s.addLightVariant("Sun", "!Next"); }, "light Sun=!Next -QX607"},
    {[](qxVariantSet &s) { base("Door", "Lamp"), s.addTransformVariant("Door", "Open"); },
     "transform Door=Open -QX608"},
    {[](qxVariantSet &s) { s.addTransformVariant("Door", "!Toggle"); },
     "transform Door=!Toggle -QX609"},
    {[](qxVariantSet &s) { s.addNodeVariant("Lamp", "!Next"); }, "node Lamp=!Next -QX610"},
    {[](qxVariantSet &s) { s.addNodeVariant("Wheels", "Wood"); }, "node Wheels=Wood -QX611"},
    {[](qxVariantSet &s) { s.addNodeVariant("Chair", "Corner"); }, "node Chair=Corner -QX612"},
    {[](qxVariantSet &s) { s.addNodeVariant("Chair", "Transform 2"); },
     "node Chair=Transform 2 -QX613"},
    {[](qxVariantSet &s) { s.addOverlayVariant("Signs", "Wait"); }, "overlay Signs=Wait -QX614"},
    {[](qxVariantSet &s) { s.addViewpoint("Above"); }, "viewpoint Above -QX615"},
    {[](qxVariantSet &s) { s.addViewpoint("Front"), s.addViewpoint("Back"); },
     "viewpoint Front +\nviewpoint Back -QX616"},
    {[](qxVariantSet &s) { s.defaultViewpoint = "Above"; }, "default viewpoint Above -QX617"},
    {[](qxVariantSet &s) { s.addAnimation("Jump"); }, "animation Jump -QX618"},
    {[](qxVariantSet &s) {
         qxAnimManager::the()->setClips({"Spin", "Jump", "Roll"});
         for (const char *name : {"Spin", "Jump", "Roll"})
             s.addAnimation(name);
         s.sequentialAnimation = true;
         s.animationIndex = 1;
     },
     "animation Spin -QX619\nanimation Jump +\nanimation Roll -QX619"},
    {[](qxVariantSet &s) { s.script = "pass"; }, "script  -QX620"},
    {[](qxVariantSet &s) { s.setClippingState(2); }, "clipping 2 +"},
    {[](qxVariantSet &s) { s.setClippingState(4); }, "clipping 4 -QX621"},
    {[](qxVariantSet &s) { s.addTargetNodeName("Body"); }, "target Body -QX623"},
    {[](qxVariantSet &s) { s.addGeometry("Body"); }, "geometry Body -QX624"},
    {[](qxVariantSet &s) { s.addMaterialSnapshot("Body", "Red"); }, "snapshot Body -QX625"},
    {[](qxVariantSet &s) { s.addViewpoint("Front"), s.defaultViewpoint = "Back"; },
     "viewpoint Front -QX626\ndefault viewpoint Back +"},
};

} // namespace

TEST_F(ExplainTest, EverySilentSkipHasItsCode)
{
    for (const Case &each : cases) {
        set->clear();
        set->setClippingState(0);
        for (const auto &name : set->geometries.list())
            set->removeGeometry(name);
        for (const char *name : {"Lamp", "Paint", "Sun", "Door"})
            base(name, name);
        notifications.clear();
        each.fill(*set);
        if (std::string(each.text).find("QX611") != std::string::npos)
            expectError("Nodevariant Wheels does not have a child called Wood");
        EXPECT_EQ(explainedText(), std::string(each.text) + "\n");
    }
}

TEST_F(ExplainTest, EntriesTellWhatTheyChangeAndWhatIsKnownOfTheirVariant)
{
    set->addNodeVariant("Wheels", "Steel");
    set->addNodeVariant("Lamp", "!Toggle");
    set->addNodeVariant("Chair", "!Next (Loop)");
    set->addMaterialVariant("Paint", "!Previous (Loop)");
    set->addTransformVariant("Door", "Open");
    set->addLightVariant("Sun", "!Disable");
    set->addOverlayVariant("Signs", "!All");
    EXPECT_EQ(explainedText(),
              "node Wheels=Steel: !None > Steel +\n"
              "node Lamp=!Toggle: !Enable > !Disable +\n"
              "node Chair=!Next (Loop): Transform 0 > Transform 1 +\n"
              "material Paint=!Previous (Loop): Red > Blue +\n"
              "transform Door=Open: Shut > Open +\n"
              "light Sun=!Disable: !Enable > !Disable +\n"
              "overlay Signs=!All: !None > !All +\n");
    const std::vector<qxExplainedEntry> entries = explained();
    EXPECT_TRUE(entries[0].isStateKnown);
    EXPECT_FALSE(entries[3].isStateKnown); // The scene does it all the same.
    EXPECT_EQ(entries[0].found, 1);
    EXPECT_EQ(entries[0].object, "Wheels");
}

TEST_F(ExplainTest, WhatALaterEntryChangesAgainIsNotDone)
{
    qxVariants::createNodeVariant("Rims", false)->nodeName = "Wheels";
    set->addNodeVariant("Wheels", "Alloy");
    set->addNodeVariant("Rims", "!Next (Loop)");
    EXPECT_EQ(explainedText(),
              "node Wheels=Alloy: !None > Alloy -QX626\n"
              "node Rims=!Next (Loop): Alloy > Steel +\n");
}

TEST_F(ExplainTest, AStepToATwinOfAMaterialEndsAtTheFirstOfThem)
{
    scene.addSwitchMaterial("Coat", {"Red", "Red", "Blue"});
    qxVariants::createMaterialVariant("Coat", false)->switchMaterialName = "Coat";
    set->addMaterialVariant("Coat", "!Next");
    EXPECT_EQ(explainedText(), "material Coat=!Next: Red > Red +\n");
    set->addMaterialVariant("Coat", "!Previous (Loop)");
    EXPECT_EQ(explainedText(), "material Coat=!Previous (Loop): Red > Blue +\n");
    set->addMaterialVariant("Coat", "!Previous");
    EXPECT_EQ(explainedText(), "material Coat=!Previous: Blue > Red +\n");
}

TEST_F(ExplainTest, WhatSomebodyElseChangesIsNoticed)
{
    set->addNodeVariant("Wheels", "Alloy");
    set->addLightVariant("Sun", "!Disable");
    const TestNode wheels(qxScenegraph::findNode("Wheels"));
    const int listener = qxController::addListener([&](const char *name, qxMessage *, int) {
        if (std::string(name) == "variantSetSelected")
            wheels.choose(-1);
    });
    EXPECT_EQ(explainedText(),
              "node Wheels=Alloy: !None > Alloy -QX627\n"
              "light Sun=!Disable: !Enable > !Disable +\n");
    qxController::removeListener(listener);
}

TEST_F(ExplainTest, TargetsAreShownUpToTheFirstThatIsMissing)
{
    const TestNode body(qxScenegraph::findNode("Body"));
    const TestNode trim = body.child(0);
    body.setMask(0);
    trim.setMask(0);
    for (const char *name : {"Trim", "Gone", "Lamp"})
        set->addTargetNodeName(name);
    qxVariants::createNodeVariant(body.node(), false);
    set->addNodeVariant("Body", "!Toggle");
    set->setInclInfo(true, false, false, false, false);
    qxExplanation explanation(*set);
    qxVariants::selectVariantSet("Tried", false);
    explanation.compare({});
    std::string text;
    for (const qxExplainedEntry &entry : explanation.entries())
        text += textOf(entry) + "\n";
    EXPECT_EQ(text,
              "target Trim: !Disable > !Enable +\n"
              "target Gone -QX622\n"
              "target Lamp -QX622\n"
              "node Body=!Toggle: !Enable > !Disable +\n"); // The target had shown it before.
    EXPECT_TRUE(trim.shown());
    EXPECT_FALSE(body.shown());
}

TEST_F(ExplainTest, RecursingVariantsShowWhatIsBelowAndAbove)
{
    for (const char *name : {"Body", "Trim"})
        qxVariants::createNodeVariant(name, false)->nodeName = name;
    qxVariants::_recurse = true;
    set->addNodeVariant("Trim", "!Disable");
    set->addNodeVariant("Body", "!Enable");
    EXPECT_EQ(explainedText(),
              "node Trim=!Disable: !Enable > !Disable -QX626\n"
              "node Body=!Enable: !Enable > !Enable +\n");
    set->clear();
    set->addNodeVariant("Body", "!Disable");
    set->addNodeVariant("Trim", "!Enable");
    EXPECT_EQ(explainedText(),
              "node Body=!Disable: !Enable > !Disable -QX626\n"
              "node Trim=!Enable: !Enable > !Enable +\n");
    qxVariants::_recurse = false;
}

TEST_F(ExplainTest, ForeseeingChangesNothing)
{
    set->addNodeVariant("Wheels", "Alloy");
    set->addLightVariant("Sun", "!Disable");
    notifications.clear();
    const qxExplanation explanation(*set);
    EXPECT_TRUE(notifications.entries().empty());
    EXPECT_EQ(TestNode(qxScenegraph::findNode("Wheels")).choice(), -1);
    EXPECT_FALSE(explanation.entries()[0].isDone);
}

TEST_F(ExplainTest, WhatIsForeseenComesTrueForEveryStateOfEveryKind)
{
    const QStringList states{"!Enable",
                             "!Disable",
                             "!Toggle",
                             "!Next",
                             "!Next (Loop)",
                             "!Previous",
                             "!Previous (Loop)",
                             "!All",
                             "!None",
                             "Steel",
                             "Alloy",
                             "Red",
                             "Open",
                             "Go",
                             "Transform 1"};
    // Twins and clones: names that lead to several nodes, and cores that several nodes share.
    scene.addSwitch("Wheels", {"Alloy", "Wood", "Steel"}).choose(-2);
    scene.addClone(qxScenegraph::findNode("Wheels"));
    scene.add("Chair");
    scene.addClone(qxScenegraph::findNode("Chair"));
    scene.addPoses("Door", {"Open"});
    scene.addClone(qxScenegraph::findNode("Sun"));
    scene.addOverlaySwitch("Signs", {"Go"}).choose(0);
    scene.addSwitchMaterial("Paint", {"Blue", "Red", "Red", "Green", "Green"});
    qxVariants::createNodeVariant("Rims", false)->nodeName = "Wheels";
    for (const char *name : {"Body", "Trim"})
        qxVariants::createNodeVariant(name, false)->nodeName = name;
    scene.addSwitch("Rims", {"Steel"}, qxScenegraph::findNode("Trim"));
    qxVariants::createNodeVariant("Inner", false)->nodeName = "Rims";

    std::mt19937 random(7);
    const auto any = [&] { return states[int(random() % unsigned(states.size()))]; };
    int done = 0;
    for (int round = 0; round < 500; ++round) {
        set->clear();
        for (const char *name : {"Wheels", "Chair", "Lamp", "Rims", "Trim", "Body", "Inner"})
            set->addNodeVariant(name, any());
        qxVariants::_recurse = round % 2;
        set->addMaterialVariant("Paint", any());
        set->addTransformVariant("Door", any());
        set->addLightVariant("Sun", any());
        set->addOverlayVariant("Signs", any());
        qxExplanation explanation(*set);
        set->select(true, false);
        explanation.compare({});
        for (const qxExplainedEntry &entry : explanation.entries()) {
            EXPECT_NE(entry.code, qxCode::NotShown) << round << ": " << textOf(entry);
            done += entry.isDone;
        }
    }
    qxVariants::_recurse = false;
    EXPECT_GT(done, 500);
    for (const std::string &line : takeErrors())
        EXPECT_NE(line.find("does not have a child called"), std::string::npos);
}

TEST_F(ExplainTest, EveryCodeOfASkipIsTriedHere)
{
    std::string tried = "QX622 QX627";
    for (const Case &each : cases)
        tried += each.text;
    for (const qxCodeRow &row : qxCheckCodes::all()) {
        if (row.code >= qxCode::SkippedNoVariant) {
            EXPECT_NE(tried.find(row.id), std::string::npos) << row.id;
        }
    }
}
