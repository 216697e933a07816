#include "qxNodeVariant.h"
#include "qxVariantKinds.h"
#include "qxVariantReader.h"
#include "qxVariantSet.h"
#include "qxVariants.h"

#include "CheckScene.h"
#include "OSGSwitchComponentTransform.h"
#include "Scene/qxTransformStates.h"
#include "qxController.h"
#include "qxExplanation.h"
#include "qxLights.h"
#include "qxOverlays.h"
#include "qxScenegraph.h"

#include <OpenSG/OSGSwitch.h>

#include <functional>
#include <random>
#include <set>

class ExplainTest : public CheckScene {
protected:
    ExplainTest()
    {
        qxVariantReader().read(cleanDocument());
        set = qxVariants::createVariantSet("Tried", false, nullptr);
    }
    ~ExplainTest() override { qxVariants::_recurse = false; }
    /// Explains the set, selects it, and compares. The camera and the clips do as they are told.
    std::vector<qxExplainedEntry> explained()
    {
        notifications.clear();
        qxForecast forecast;
        qxExplanation explanation(*set, forecast);
        qxVariants::selectVariantSet(set->name.toUtf8(), false);
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
    static void addBodyVariants()
    {
        for (const char *name : {"Body", "Trim"})
            qxVariants::createNodeVariant(name, false)->nodeName = name;
    }
    /// Names that lead to several nodes, and cores that several nodes share.
    void addNamesakes()
    {
        scene.addSwitch("Wheels", {"Alloy", "Wood", "Steel"}).choose(-2);
        scene.addClone(qxScenegraph::findNode("Wheels"));
        scene.add("Chair");
        scene.addClone(qxScenegraph::findNode("Chair"));
        scene.addPoses("Door", {"Open"});
        scene.addClone(qxScenegraph::findNode("Sun"));
        scene.addOverlaySwitch("Signs", {"Go"}).choose(0);
        scene.addSwitchMaterial("Paint", {"Blue", "Red", "Red", "Green", "Green"});
        qxVariants::createNodeVariant("Rims", false)->nodeName = "Wheels";
        addBodyVariants();
        scene.addSwitch("Rims", {"Steel"}, qxScenegraph::findNode("Trim"));
        qxVariants::createNodeVariant("Inner", false)->nodeName = "Rims";
    }
    std::string explainedText()
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

/// Variants whose objects are missing or of another sort.
const char misfits[] =
    "<Variants><NodeVariant name='Gone' base='Lamps'/><MaterialVariant name='Plain' base='Red'/>"
    "<MaterialVariant name='Empty' base='Empty'/><LightVariant name='Dark' base='Lamp'/>"
    "<TransformVariant name='Fixed' base='Lamp'/></Variants>";

// A list, not a procedure.
const Case cases[] = {
    {[](auto &s) { s.addNodeVariant("Rims", "Steel"); }, "node Rims=Steel -QX601"},
    {[](auto &s) { s.addNodeVariant("Gone", "!Enable"); }, "node Gone=!Enable -QX602"},
    {[](auto &s) { s.addMaterialVariant("Plain", "Red"); }, "material Plain=Red -QX603"},
    {[](auto &s) { s.addMaterialVariant("Empty", "Red"); }, "material Empty=Red -QX604"},
    {[](auto &s) { s.addMaterialVariant("Paint", "!None"); }, "material Paint=!None -QX605"},
    {[](auto &s) { s.addLightVariant("Dark", "!Enable"); }, "light Dark=!Enable -QX606"},
    {[](auto &s) { s.addLightVariant("Sun", "!Next"); }, "light Sun=!Next -QX607"},
    {[](auto &s) { s.addTransformVariant("Fixed", "Open"); }, "transform Fixed=Open -QX608"},
    {[](auto &s) { s.addTransformVariant("Door", "!Toggle"); }, "transform Door=!Toggle -QX609"},
    {[](auto &s) { s.addNodeVariant("Lamp", "!Next"); }, "node Lamp=!Next -QX610"},
    {[](auto &s) { s.addNodeVariant("Wheels", "Wood"); }, "node Wheels=Wood -QX611"},
    {[](auto &s) { s.addNodeVariant("Chair", "Corner"); }, "node Chair=Corner -QX612"},
    {[](auto &s) { s.addNodeVariant("Chair", "Transform 2"); }, "node Chair=Transform 2 -QX613"},
    {[](auto &s) { s.addOverlayVariant("Signs", "Wait"); }, "overlay Signs=Wait -QX614"},
    {[](auto &s) { s.addViewpoint("Above"); }, "viewpoint Above -QX615"},
    {[](auto &s) { s.addViewpoint("Front"), s.addViewpoint("Back"); },
     "viewpoint Front +\nviewpoint Back -QX616"},
    {[](auto &s) { s.defaultViewpoint = "Above"; }, "default viewpoint Above -QX617"},
    {[](auto &s) { s.addAnimation("Jump"); }, "animation Jump -QX618"},
    {[](auto &s) {
         for (const char *name : {"Spin", "Turn", "Roll"})
             s.addAnimation(name);
         s.sequentialAnimation = true;
         s.animationIndex = 1;
     },
     "animation Spin -QX619\nanimation Turn +\nanimation Roll -QX619"},
    {[](auto &s) { s.script = "pass"; }, "script  -QX620"},
    {[](auto &s) { s.setClippingState(2); }, "clipping 2 +"},
    {[](auto &s) { s.setClippingState(4); }, "clipping 4 -QX621"},
    {[](auto &s) { s.addTargetNodeName("Body"); }, "target Body -QX623"},
    {[](auto &s) { s.addGeometry("Body"); }, "geometry Body -QX624"},
    {[](auto &s) { s.addMaterialSnapshot("Body", "Red"); }, "snapshot Body -QX625"},
    {[](auto &s) { s.addViewpoint("Front"), s.defaultViewpoint = "Back"; },
     "viewpoint Front -QX626\ndefault viewpoint Back +"},
};

TEST_F(ExplainTest, EverySilentSkipHasItsCode)
{
    qxVariantReader().read(misfits);
    scene.addSwitchMaterial("Empty", {});
    scene.setClips({"Spin", "Turn", "Roll"});
    expectError("Nodevariant Wheels does not have a child called Wood");
    QByteArray tried = "QX622 QX627";
    for (const Case &each : cases) {
        set = qxVariants::createVariantSet(each.text, false, nullptr);
        each.fill(*set);
        EXPECT_EQ(explainedText(), std::string(each.text) + "\n");
        tried += each.text;
    }
    for (const qxCodeRow &row : qxCheckCodes::all())
        EXPECT_TRUE(row.code < qxCode::SkippedNoVariant || tried.contains(row.id)) << row.id;
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
}

TEST_F(ExplainTest, WhatSomebodyElseChangesIsNoticed)
{
    set->addNodeVariant("Wheels", "Alloy");
    set->addLightVariant("Sun", "!Disable");
    const TestNode wheels(qxScenegraph::findNode("Wheels"));
    notifications.clear();
    qxForecast forecast;
    EXPECT_FALSE(qxExplanation(*set, forecast).entries()[0].isDone);
    EXPECT_TRUE(notifications.entries().empty()) << "foreseeing changes nothing";
    EXPECT_EQ(wheels.choice(), -1);
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
    EXPECT_EQ(explainedText(),
              "target Trim: !Disable > !Enable +\n"
              "target Gone -QX622\n"
              "target Lamp -QX622\n"
              "node Body=!Toggle: !Enable > !Disable +\n"); // The target had shown it before.
    EXPECT_TRUE(trim.shown());
    EXPECT_FALSE(body.shown());
}

TEST_F(ExplainTest, ARecursingVariantChangesWhatIsBelowAgain)
{
    addBodyVariants();
    qxVariants::_recurse = true;
    set->addNodeVariant("Trim", "!Disable");
    set->addNodeVariant("Body", "!Enable");
    EXPECT_EQ(explainedText(),
              "node Trim=!Disable: !Enable > !Disable -QX626\n"
              "node Body=!Enable: !Enable > !Enable +\n");
}

/// A variant that is put into every state from every place of one aspect.
struct Driven {
    const qxVariantKind *kind;
    const char *variant;
    qxAspect aspect;
};

// A list, not a procedure.
const Driven drivenVariants[] = {
    {&qxVariantKinds::node, "Wheels", qxAspect::Choice},
    {&qxVariantKinds::node, "Wheels", qxAspect::Visibility},
    {&qxVariantKinds::node, "Chair", qxAspect::Choice},
    {&qxVariantKinds::node, "Body", qxAspect::Visibility},
    {&qxVariantKinds::node, "Inner", qxAspect::Choice},
    {&qxVariantKinds::material, "Paint", qxAspect::Choice},
    {&qxVariantKinds::light, "Sun", qxAspect::Light},
    {&qxVariantKinds::overlay, "Signs", qxAspect::Choice},
    {&qxVariantKinds::overlay, "Signs", qxAspect::Visibility},
    {&qxVariantKinds::transform, "Door", qxAspect::Pose},
};

/// Whether the object has the aspect.
bool has(const qxSceneObject &object, qxAspect aspect)
{
    if (object.node == osg::NullFC)
        return aspect == qxAspect::Choice && object.switchMaterial != osg::NullFC;
    const osg::NodeCorePtr core = object.node->getCore();
    switch (aspect) {
    case qxAspect::Visibility:
        return true;
    case qxAspect::Light:
        return qxLights::isLight(object.node);
    case qxAspect::Pose:
        return qxNodeUtils::hasTransformVariants(object.node);
    case qxAspect::Choice:
        break;
    }
    return osg::SwitchPtr::dcast(core) != osg::NullFC
        || osg::SwitchComponentTransformPtr::dcast(core) != osg::NullFC;
}

void put(const qxSceneObject &object, qxAspect aspect, int place)
{
    if (!has(object, aspect))
        return;
    if (aspect != qxAspect::Pose)
        return qxStateRules::setValue(object, aspect, place);
    // The host's service takes no place out of range.
    const osg::TransformStatesPtr states = qxTransformStates::of(object.node);
    const osg::CPEditor edit(states);
    states->setSelected(place);
}

/// All that a selection can change.
std::vector<qxSceneObject> allObjects()
{
    std::vector<qxSceneObject> objects;
    for (const qxNodePtr &each : qxNodeUtils::getSceneNodes())
        objects.push_back(qxSceneObject(each));
    for (const qxNodePtr &each : qxNodeUtils::getSubTreeNodes(qxOverlays::getPoolRoot()))
        objects.push_back(qxSceneObject(each));
    for (const qxSceneObject &each : qxStateRules::material.objects("Paint"))
        objects.push_back(each);
    return objects;
}

/// The values of all aspects of all objects, as the scene or a forecast has them.
std::vector<osg::Int64>
allValues(const std::function<osg::Int64(const qxSceneObject &, qxAspect)> &of)
{
    std::vector<osg::Int64> values;
    for (const qxSceneObject &object : allObjects()) {
        for (int aspect = 0; aspect < 4; ++aspect) {
            if (has(object, qxAspect(aspect)))
                values.push_back(of(object, qxAspect(aspect)));
        }
    }
    return values;
}

const QStringList states =
    QString("!Enable;!Disable;!Toggle;!Next;!Next (Loop);!Previous;!Previous (Loop);!All;!None;"
            "Steel;Alloy;Red;Open;Go;Transform 1;Transform 7")
        .split(';');

TEST_F(ExplainTest, AForecastEqualsTheSelectionForEveryStateFromEveryPlace)
{
    addNamesakes();
    std::set<std::string> differing;
    const auto tryOut = [&](const Driven &driven, const QString &state, int place) {
        const QString base = driven.kind->find(driven.variant)->*driven.kind->sceneName;
        for (const qxSceneObject &object : driven.kind->rule.objects(base))
            put(object, driven.aspect, place);
        set->clear();
        (set->*driven.kind->states).add(driven.variant, state);
        qxForecast forecast;
        const qxExplanation explanation(*set, forecast);
        const auto foreseen = allValues(
            [&](const auto &object, qxAspect aspect) { return forecast.value(object, aspect); });
        qxVariants::selectVariantSet(set->name.toUtf8(), false);
        if (foreseen != allValues(qxStateRules::valueOf))
            differing.insert(driven.variant + ("=" + state.toStdString()) + " from "
                             + std::to_string(place));
    };
    for (const Driven &driven : drivenVariants) {
        for (const QString &state : states) {
            for (int place = -3; place < 14; ++place) {
                qxVariants::_recurse = place > 5;
                tryOut(driven, state, place > 5 ? place - 9 : place);
            }
        }
    }
    EXPECT_EQ(differing, std::set<std::string>());
    takeErrors(); // Of children that are missing.
}

TEST_F(ExplainTest, WhatIsForeseenComesTrueForEveryStateOfEveryKind)
{
    addNamesakes();
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
        for (const qxExplainedEntry &entry : explained()) {
            EXPECT_NE(entry.code, qxCode::NotShown) << round << ": " << textOf(entry);
            done += entry.isDone;
        }
    }
    EXPECT_GT(done, 500);
    for (const std::string &line : takeErrors())
        EXPECT_NE(line.find("does not have a child called"), std::string::npos);
}
