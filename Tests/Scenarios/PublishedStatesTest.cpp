#include "qxVariant.h"
#include "qxVariantGroup.h"
#include "qxVariantKinds.h"
#include "qxVariantSet.h"
#include "qxVariants.h"

#include "Publish/qxLossReport.h"
#include "Publish/qxPublishedStates.h"
#include "PublishedPage.h"
#include "RandomScene.h"
#include "Report/qxChangeReport.h"
#include "Script/qxScriptRunner.h"
#include "Session/qxSceneRecord.h"
#include "Session/qxSession.h"
#include "ShownScene.h"
#include "TestFiles.h"
#include "qxAnimManager.h"
#include "qxController.h"
#include "qxLights.h"
#include "qxMaterialParts.h"
#include "qxMaterials.h"
#include "qxNodeUtils.h"
#include "qxNodeWalk.h"
#include "qxOverlays.h"
#include "qxTestPaths.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>

namespace {

/// All materials; nodes may wear some that nothing finds by name.
std::set<osg::MaterialPtr> allMaterials()
{
    std::vector<osg::MaterialPtr> open = qxMaterialParts::all();
    for (const osg::NodePtr &top : {qxScenegraph::getRoot(), qxOverlays::getPoolRoot(),
                                    qxScenegraph::environmentGeometrySwitch()})
        qxWalkNodes(top, [&open](const osg::NodePtr &node) {
            open.push_back(qxNodeUtils::getMaterial(node));
        });
    std::set<osg::MaterialPtr> materials;
    while (!open.empty()) {
        const osg::MaterialPtr material = open.back();
        open.pop_back();
        if (material == osg::NullFC || !materials.insert(material).second)
            continue;
        for (const osg::MaterialPtr &part : qxMaterialParts::of(material))
            open.push_back(part);
    }
    return materials;
}

/// Everything whose states meddle with those of others: a transform switch with poses and a clone
/// that has its own, switches in switches and with parts, namesakes, materials in materials, a
/// light that is off, hidden nodes and parts, overlays in overlays, environments, clips of one
/// name.
const char *const meddlers = R"({"asset": {"version": "2.0"}, "buffers": [{"byteLength": 36, "uri":
"data:application/octet-stream;base64,AAAAAAAAAAAAAAAAAACAPwAAAAAAAAAAAAAAAAAAgD8AAAAA"}],
"bufferViews": [{"buffer": 0, "byteLength": 36}], "accessors":
[{"bufferView": 0, "componentType": 5126, "count": 3, "type": "VEC3"}],
"materials": [{"name": "Red"}, {"name": "Blue"}, {"name": "Green"}],
"meshes": [{"primitives": [
    {"attributes": {"POSITION": 0}, "material": 0, "extras": {"qxSwitchMaterial": 1}},
    {"attributes": {"POSITION": 0}, "material": 1, "extras": {"qxSwitchMaterial": 0}},
    {"attributes": {"POSITION": 0}, "material": 2}]}],
"cameras": [{"type": "perspective", "perspective": {"yfov": 0.5, "znear": 0.1}}],
"animations": [{"name": "Turn", "channels": [], "samplers": []},
    {"name": "Fold", "channels": [], "samplers": []},
    {"name": "Turn", "channels": [], "samplers": []}],
"extensions": {"KHR_lights_punctual": {"lights": [{"type": "point"}]}},
"extras": {"qxSwitchMaterials": [{"name": "Inner", "materials": [0, 1, -1], "choice": 0},
    {"name": "Outer", "materials": [{"qxSwitchMaterial": 0}, 2], "choice": 0}]},
"scenes": [{"nodes": [0, 6, 11, 14, 17, 18]}],
"nodes": [{"name": "Car", "translation": [1, 2, 3], "children": [1, 2, 3, 19]},
    {"name": "Lid", "mesh": 0, "translation": [7, 7, 7], "extras": {"qxTransformChoice": 1,
        "qxTransformStates": [0,0,0, 0,0,0,1, 1,1,1, 0,0.5,0, 0.6,0,0,0.8, 1,1,1],
        "qxPoseNames": "Shut;Open", "qxPose": 1, "qxInPose": true,
        "qxPoses": [0,0,0, 0,0,0,1, 1,1,1, 0,0.25,0, 0.8,0,0,0.6, 1,2,1]}},
    {"name": "Lid 2", "mesh": 0, "extras": {"qxSharesCoreOf": "Lid", "qxPoseNames": "Shut;Ajar",
        "qxPoses": [0,0,0, 0,0,0,1, 1,1,1, 0,0.75,0, 0,0,0,1, 1,1,1]}},
    {"name": "Wheels", "translation": [1, 0, 0], "extras": {"qxSwitch": 0}, "children": [4, 5]},
    {"name": "Wide", "extras": {"qxSwitch": 7}, "children": [7, 8]}, {"name": "Slim", "mesh": 0},
    {"name": "Rear", "extras": {"qxSharesCoreOf": "Wheels"}, "children": [9, 10], "mesh": 0},
    {"name": "Cap"}, {"name": "Cap"}, {"name": "Wide", "mesh": 0}, {"name": "Slim"},
    {"name": "Sheet", "extras": {"qxOverlay": true, "qxSwitch": 0}, "children": [12, 13],
        "extensions": {"KHR_node_visibility": {"visible": false}}},
    {"name": "One", "mesh": 0}, {"name": "Two", "extras": {"qxOverlay": true, "qxOverlayLayer": 2}},
    {"name": "World", "scale": [2, 2, 2], "children": [15, 16],
        "extras": {"qxEnvironment": true, "qxSwitch": 1}},
    {"name": "Sea", "mesh": 0}, {"name": "Hall", "mesh": 0, "extras": {"qxPoseNames": "Up",
        "qxPoses": [0,9,0, 0,0,0,1, 1,1,1]}},
    {"name": "Front", "camera": 0, "translation": [0, 0, 9]},
    {"name": "Side", "camera": 0, "translation": [9, 0, 0], "children": [20]},
    {"name": "Lamp", "translation": [0, 3, 0], "extras": {"qxLightOn": false},
        "extensions": {"KHR_lights_punctual": {"light": 0}}},
    {"name": "Hidden", "mesh": 0, "children": [21], "extras": {"qxHiddenParts": [0, 2]},
        "extensions": {"KHR_node_visibility": {"visible": false}}},
    {"name": "Cap", "mesh": 0, "extras": {"qxSwitch": -2}}]})";

/// The names of materials by their places in the file; a choice out of range has no name.
QMap<int, QStringList> materialNames(const qxSceneFile &file)
{
    QMap<int, QStringList> names{{-1, {QString()}}};
    for (const osg::MaterialPtr &material : allMaterials()) {
        const std::optional<int> place = file.materialOf(material);
        if (place)
            names[*place] += QString::fromStdString(qxMaterials::getName(material));
    }
    return names;
}

} // namespace

/// A page beside the program: both go through the same sets and states.
class PublishedStatesTest : public testing::Test, protected TestFolder {
protected:
    ~PublishedStatesTest() override { qxController::removeListener(listener); }

    /// Opens the file, makes variants and sets if wanted, and publishes what there is.
    void publish(const QString &path, bool hasMore);
    /// Goes through that many random sets and states.
    void follow(int steps);
    void compare();
    void expectClips();

    void makeVariants();
    void makeSets();
    void selectAny();
    QString anyState(const QString &of);

    RandomChoices random{1};
    qxSession session;
    qxLossReport losses;
    QJsonObject published;
    std::unique_ptr<PublishedPage> page;
    QStringList clips;
    int listener = qxChangeReport::listenForClips(clips);
};

/// For everything that a variant can drive.
void PublishedStatesTest::makeVariants()
{
    for (const qxNodePtr &node : qxNodeUtils::getSceneNodes()) {
        qxVariants::createNodeVariant(node, false);
        if (qxLights::isLight(node))
            qxVariants::createLightVariant(node, false);
        if (qxNodeUtils::hasTransformVariants(node))
            qxVariants::createTransformVariant(node, false);
    }
    for (const qxNodePtr &node : qxNodeUtils::getSubTreeNodes(qxOverlays::getPoolRoot()))
        qxVariants::createOverlayVariant(node, false);
    for (const osg::MaterialPtr &material : qxMaterialParts::all()) {
        if (osg::SwitchMaterialPtr::dcast(material) != osg::NullFC)
            qxVariants::createMaterialVariant(material, false);
    }
}

QString PublishedStatesTest::anyState(const QString &of)
{
    static const QStringList states{
        "!Enable",      "!Disable",  "!Toggle",          "!All",        "!None",      "!Next",
        "!Next (Loop)", "!Previous", "!Previous (Loop)", "Transform 1", "Transform 7"};
    const int place = int(random.below(unsigned(states.size()) + 3));
    return place < states.size() ? states[place] : of;
}

void PublishedStatesTest::makeSets()
{
    for (int i = 0; i < 6; ++i) {
        qxVariantSet *const set =
            qxVariants::createVariantSet(QString("Made %1").arg(i), false, nullptr);
        qxVariantKinds::visit([&](const qxVariantKind &kind, const qxVariant &variant) {
            if (random.percent(70) || variant.options.empty())
                return;
            const auto any = random.below(unsigned(variant.options.size()));
            (set->*kind.states).add(variant.name, anyState(variant.options[any].name));
        });
        set->setClippingState(int(random.below(5)));
        set->setClippingPlanePositionX(double(random.below(3)));
        set->setClippingHideScene(random.percent(50));
        set->inclNodes = random.percent(40);
        const std::vector<qxNodePtr> nodes = qxNodeUtils::getSceneNodes();
        for (int target = 0; target < 2; ++target)
            set->addTargetNodeName(QString::fromStdString(
                qxNodeUtils::getName(nodes[random.below(unsigned(nodes.size()))])));
        set->addAnimation("Turn");
        set->addAnimation("Fold");
        set->addAnimation("Nothing");
        set->sequentialAnimation = random.percent(50);
        for (const char *viewpoint : {"Nowhere", "Front", "Side"}) {
            if (random.percent(40))
                set->addViewpoint(viewpoint);
        }
        set->defaultViewpoint = random.of({"", "", "Nowhere", "Side"});
    }
}

void PublishedStatesTest::publish(const QString &path, bool hasMore)
{
    ASSERT_TRUE(session.open(path)) << session.failure().toStdString();
    if (hasMore) {
        makeVariants();
        makeSets();
    }
    const std::string shown = shownScene();
    const QJsonObject record = qxSceneRecord::take(session.file());
    published = qxPublishedStates(session.file(), qxPublishWishes(), losses).json();
    EXPECT_EQ(shownScene(), shown) << "publishing changes nothing";
    EXPECT_EQ(qxSceneRecord::take(session.file()), record);
    page = std::make_unique<PublishedPage>(qxJson::parse(bytesOf(path).toStdString()), published,
                                           materialNames(session.file()));
    compare();
}

void PublishedStatesTest::compare()
{
    ASSERT_EQ(page->difference(qxSceneRecord::take(session.file())), QString());
    qxVariantKinds::visit([this](const qxVariantKind &kind, const qxVariant &variant) {
        if (kind.find(variant.name) != &variant)
            return; // Another one of the name is found.
        const qxShownState shown = variant.shown();
        for (const qxVariantOption &option : variant.options) {
            const auto now = page->isShown(kind.word, variant.name, option.name);
            ASSERT_TRUE(!now || *now == shown.is(option.name))
                << std::string(kind.word.latin1()) << ' ' << variant.name.toStdString() << ' '
                << option.name.toStdString();
        }
    });
}

/// Of the same clips as in the program. All of one name start at once, but for those in turn.
void PublishedStatesTest::expectClips()
{
    std::set<std::string> known;
    qxAnimManager::the()->getBlockAndClipNames(known);
    QStringList started;
    for (const QString &clip : clips) {
        if (known.count(clip.toStdString()) > 0)
            started += clip;
    }
    QStringList shown = page->clips();
    shown.removeDuplicates();
    EXPECT_EQ(shown, started);
}

void PublishedStatesTest::selectAny()
{
    clips.clear();
    std::vector<std::pair<const qxVariantKind *, qxVariant *>> all;
    qxVariantKinds::visit([&](const qxVariantKind &kind, qxVariant &variant) {
        if (!variant.options.empty() && kind.find(variant.name) == &variant)
            all.push_back({&kind, &variant});
    });
    if (!all.empty() && (qxVariants::_variantSets.empty() || random.percent(50))) {
        const auto [kind, variant] = all[random.below(unsigned(all.size()))];
        const QString state =
            variant->options[random.below(unsigned(variant->options.size()))].name;
        SCOPED_TRACE(QString("%1 %2 = %3").arg(kind->word, variant->name, state).toStdString());
        if (state.isEmpty())
            return; // Nobody can choose it.
        variant->onSelect(state);
        page->select(kind->word, variant->name, state);
        compare();
    } else if (!qxVariants::_variantSets.empty()) {
        const QString name =
            qxVariants::_variantSets[random.below(unsigned(qxVariants::_variantSets.size()))]->name;
        SCOPED_TRACE(name.toStdString());
        qxVariants::selectVariantSet(name.toUtf8(), false);
        page->select(name);
        compare();
        expectClips();
        EXPECT_TRUE(page->isShown(name).value_or(true));
    }
}

void PublishedStatesTest::follow(int steps)
{
    for (int step = 0; step < steps && !HasFatalFailure(); ++step) {
        SCOPED_TRACE("step " + std::to_string(step));
        selectAny();
    }
}

TEST_F(PublishedStatesTest, APageShowsWhatTheProgramShowsOfTheDemo)
{
    qxScriptRunner::setAllowed(qxScriptRunner::Nothing);
    publish(QX_DEMO_SCENE, false);
    follow(200);
}

TEST_F(PublishedStatesTest, APageShowsWhatTheProgramShowsOfStatesThatMeddleWithEachOther)
{
    const QString path = write("meddlers.gltf", meddlers);
    for (unsigned seed = 1; seed <= 12 && !HasFailure(); ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        random = RandomChoices(seed);
        publish(path, true);
        ASSERT_EQ(session.file().warnings().size(), 1); // The environment is scaled.
        follow(60);
    }
}

TEST_F(PublishedStatesTest, APageShowsWhatTheProgramShowsOfAnyScene)
{
    const QStringList range = qEnvironmentVariable("QX_SEEDS", "1:150").split(':');
    const unsigned begin = range.first().toUInt();
    for (unsigned seed = begin; seed < begin + range.last().toUInt() && !HasFailure(); ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        random = RandomChoices(seed);
        const QByteArray text = QByteArray::fromStdString(randomScene(random, false).dump());
        SCOPED_TRACE("made: " + text.toStdString());
        publish(write("a.gltf", text), random.percent(80));
        follow(25);
    }
}

TEST_F(PublishedStatesTest, APageOffersWhatIsWishedForInItsLanguage)
{
    ASSERT_TRUE(session.open(write("desk.gltf", sceneWith("desk"))));
    const auto offered = [this](const qxPublishWishes &wishes) {
        const qxPublishedStates states(session.file(), wishes, losses);
        QStringList lines = states.sets();
        for (const QJsonValue &group : states.json()["groups"].toArray())
            lines += group["name"].toString() + " has "
                + QJsonDocument(group["sets"].toArray()).toJson(QJsonDocument::Compact);
        for (const QJsonValue &variant : states.json()["variants"].toArray()) {
            for (const QJsonValue &option : variant["options"].toArray())
                lines += QStringList{variant["kind"].toString(), variant["name"].toString(),
                                     option["label"].toString(), option["key"].toString(),
                                     option["action"].toBool() ? "action" : "state"}
                             .join(' ');
        }
        return lines;
    };
    EXPECT_EQ(
        offered({{}, true, "de"}),
        (QStringList{"Morning", "Evening", "Leer geräumt", "Work has [0,1]", " has [2]",
                     "node Desk Oak  state", "node Desk Glass  state", "node Desk alle  state",
                     "node Desk keiner  state", "node Desk nächster (im Kreis) D action",
                     "node Lamp eingeblendet  state", "node Lamp ausgeblendet  state",
                     "node Chair Platz 1 von 3  state", "node Chair Platz 2 von 3  state",
                     "node Chair Platz 3 von 3  state", "light Lamp an  state",
                     "light Lamp aus  state"}));
    EXPECT_EQ(offered({{"Attic"}, true, "en"}).mid(0, 4),
              (QStringList{"Attic has []", "node Desk Oak  state", "node Desk Glass  state",
                           "node Desk all  state"}));
    EXPECT_EQ(offered({{"Work"}, false, "en"}),
              (QStringList{"Morning", "Evening", "Work has [0,1]"}));
}

TEST_F(PublishedStatesTest, WhatIsLostIsToldEntryByEntry)
{
    ASSERT_TRUE(session.open(write("desk.gltf", sceneWith("desk"))));
    qxVariantSet &evening = *qxVariants::findVariantSet("Evening");
    evening.setClippingState(7);
    evening.addGeometry("Desk");
    evening.addTargetNodeName("Desk");
    evening.addTransformVariant("Nobody", "Up");
    const qxPublishedStates states(session.file(), {{"Work"}, true, "en"}, losses);
    QStringList lines;
    for (const qxLoss &loss : losses.losses())
        lines += QStringList{QString::number(loss.outcome),
                             loss.set,
                             loss.kind,
                             loss.name,
                             loss.state,
                             loss.text}
                     .join('|');
    EXPECT_EQ(lines,
              (QStringList{"0|Morning|node|Desk|Glass|", "0|Morning|node|Lamp|!Disable|",
                           "0|Morning|viewpoint|Front||", "0|Evening|node|Desk|Oak|",
                           "2|Evening|node|Shelf|Red|the variant does not exist",
                           "0|Evening|node|Lamp|!Enable|", "0|Evening|node|Chair|Transform 2|",
                           "2|Evening|transform|Nobody|Up|the variant does not exist",
                           "0|Evening|viewpoint|Front||",
                           "2|Evening|script|||scripts do not run in a browser",
                           "2|Evening|clipping|7||the clipping state has no meaning",
                           "2|Evening|animation|Sunset||the animation does not exist",
                           "0|Evening|default viewpoint|Über dem Tisch||"}));
}
