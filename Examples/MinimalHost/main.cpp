// Shows on the console what the module does with the scene of this host.
#include "qxLightVariant.h"
#include "qxMaterialVariant.h"
#include "qxNodeVariant.h"
#include "qxOverlayVariant.h"
#include "qxTransformVariant.h"
#include "qxVariantKinds.h"
#include "qxVariantReader.h"
#include "qxVariantSet.h"
#include "qxVariantWriter.h"
#include "qxVariants.h"

#include "Services/services.h"
#include "qxAnimManager.h"
#include "qxController.h"
#include "qxLights.h"
#include "qxMessage.h"
#include "qxNames.h"
#include "qxScript.h"
#include "qxStateRules.h"
#include "scene.h"

#include <OpenSG/OSGBaseFunctions.h>

#include <QImage>

#include <algorithm>
#include <iostream>

namespace {

const char *const Usage = "Usage: minimal-host [--help]\n"
                          "Builds a sailing boat and shows what the variants module does with it.\n"
                          "Exit code 1 when a check fails, 2 for a wrong use.\n";

int failures = 0;

void check(bool isTrue, const std::string &what)
{
    std::cout << (isTrue ? "  Yes: " : "  NO: ") << what << ".\n";
    failures += !isTrue;
}

/// What the scene shows: the states of all variants, and what else sets change.
std::map<std::string, std::string> look()
{
    std::map<std::string, std::string> seen;
    qxVariantKinds::visit([&seen](const qxVariantKind &kind, qxVariant &variant) {
        seen[kind.title + (": " + variant.name.toStdString())] =
            variant.shown().visibleState().toStdString();
    });
    seen["Camera"] = std::to_string(int(Scene::the().camera.height)) + " m of the boat";
    seen["Clipping plane"] = qxScript::executeNUSR("getClippingPlanePosition()");
    return seen;
}
typedef decltype(look()) State;

/// Selects the set, prints what it changed, and returns what the scene shows then.
State select(const char *name)
{
    std::cout << "Set \"" << name << "\":\n";
    const State before = look();
    qxVariants::selectVariantSet(name, false);
    const State after = look();
    for (const auto &[what, now] : after) {
        if (before.at(what) != now)
            std::cout << "  " << what << ": " << before.at(what) << " -> " << now << '\n';
    }
    return after;
}

/// Whether what was seen once is there; the capture brought variants that were not then.
bool shows(const State &now, const State &once)
{
    return std::includes(now.begin(), now.end(), once.begin(), once.end());
}

/// Prints the texts of a notification.
void print(qxMessage &message)
{
    std::cout << "  Heard:";
    for (const auto &[key, value] : message.entries()) {
        const std::string *text = boost::any_cast<std::string>(&value);
        if (text && !text->empty())
            std::cout << ' ' << key << "=\"" << *text << '"';
    }
    std::cout << '\n';
}

/// "activateOverlays": what the module's rule for overlays decides, is done.
void activateOverlays(qxMessage &message)
{
    struct : qxEffectTarget {
        void take(const qxEffect &effect) override
        {
            if (effect.isChange())
                qxStateRules::setValue(effect.object, effect.aspect, effect.value);
        }
    } target;
    qxStateRequest request(qxText::fromUtf8(*message.get<std::string>("variantState")));
    const QString name = qxText::fromUtf8(*message.get<std::string>("name"));
    for (const qxSceneObject &overlay : qxStateRules::overlay.objects(name))
        qxStateRules::overlay.decide(overlay, request, target);
}

void createSets()
{
    qxVariantGroup *group = qxVariants::createVariantGroup("At Sea", true, true);
    qxVariantSet *race = qxVariants::createVariantSet("Race", true, group);
    race->add(qxVariants::createNodeVariant(qxNames::findNode("Sail"), true), "Spinnaker");
    race->add(qxVariants::createNodeVariant(qxNames::findNode("Flag"), true), variantDisable);
    race->add(qxVariants::createNodeVariant(qxNames::findNode("Boom"), true), "Transform 1");
    race->add(qxVariants::createMaterialVariant(qxNames::findMaterial("Hull Paint"), true), "Navy");
    race->add(qxVariants::createLightVariant(qxNames::findNode("Lantern"), true), variantDisable);
    race->add(qxVariants::createOverlayVariant(qxNames::findOverlay("Caption"), true), "Sold");
    race->add(qxVariants::createTransformVariant(qxNames::findNode("Rudder"), true), "Port");
    race->addViewpoint("Stern");
    race->addAnimation("Waves");
    race->setClippingState(qxAnalyzerVariant::SetPlane);
    race->setClippingPlanePositionX(1.5);
    race->script = "print('  The script of the set runs.')";

    qxVariantSet *harbour = qxVariants::createVariantSet("Harbour", true, group);
    harbour->addNodeVariant("Sail", variantNone);
    harbour->addNodeVariant("Flag", variantToggle);
    harbour->addNodeVariant("Boom", "Transform 0");
    harbour->addMaterialVariant("Hull Paint", variantPrevious);
    harbour->addLightVariant("Lantern", variantToggle);
    harbour->addOverlayVariant("Caption", "For Sale");
    harbour->addTransformVariant("Rudder", "Ahead");
    harbour->addViewpoint("Whole Boat");
}

/// Changes the scene without the module, and captures it.
State capture()
{
    qxLights::setOn(qxNames::findNode("Lantern"), false);
    qxScript::run("findNodePath('Sail/Main Sail').setActive(False)");
    qxVariants::createAndCaptureVariantSet("As Moored", "Captured");
    qxVariantSet *set = qxVariants::findVariantSet("As Moored");
    qxVariants::renderVariantSetPreview(set, false, false, false);
    const QImage preview = QImage::fromData(set->getPreview());
    check(preview.pixelColor(132, 128) != QColor(Qt::white), "its preview shows the boat");
    State captured = look();
    captured.erase("Overlays: Caption"); // overlays are no part of the scene
    captured.erase("Nodes: Boom"); // captures record of a transform switch only that it is shown
    return captured;
}

void tell()
{
    std::cout << "Two sets are created and selected.\n";
    createSets();
    for (const char *name : {"variantsNodesChanged", "variantsMaterialChanged", "activateOverlays"})
        qxController::addCB(name, print);
    std::vector<std::pair<const char *, State>> shown;
    shown.emplace_back("Race", select("Race"));
    const State race = {{"Nodes: Sail", "Spinnaker"},    {"Nodes: Flag", "!Disable"},
                        {"Nodes: Boom", "Transform 1"},  {"Materials: Hull Paint", "Navy"},
                        {"Lights: Lantern", "!Disable"}, {"Overlays: Caption", "Sold"},
                        {"Transforms: Rudder", "Port"},  {"Camera", "5 m of the boat"},
                        {"Clipping plane", "1.5, 0, 0"}};
    check(shown.back().second == race, "that is what the set says");
    const float turned = qxNames::findNode("Boom")->getToWorld()[0][1];
    check(turned > 0.479f && turned < 0.48f, "the boom has swung out by half a radian");
    shown.emplace_back("Harbour", select("Harbour"));
    for (const char *name : {"variantsNodesChanged", "variantsMaterialChanged", "activateOverlays"})
        qxController::subCB(name, print);

    std::cout << "\nThe lantern goes out, and the scene is captured.\n";
    shown.push_back(shown.front()); // far from what is captured
    shown.emplace_back("As Moored", capture());

    std::cout << "\nThe variants document is written, and all is forgotten.\n";
    const QByteArray document = qxVariantWriter().write();
    std::cout << "  It has " << document.count('\n') << " lines.\n";
    qxController::call("clearAllVariants", 1);
    check(qxVariants::_variantSets.empty() && qxVariantKinds::count() == 0, "nothing is left");

    std::cout << "\nIt is read again.\n";
    qxVariantReader().read(document.constData());
    check(qxVariantWriter().writeToCompare() == document, "it would be written as it was");
    for (const auto &[name, state] : shown)
        check(shows(select(name), state), "the scene shows what it showed before");

    std::cout << "\nA set selects itself.\n";
    qxScript::run("depth = 0");
    qxVariants::findVariantSet("Race")->script = "depth += 1; selectVariantSet('Race')";
    qxVariants::findVariantSet("Race")->removeAnimation("Waves");
    select("Race");
    check(qxScript::executeNUSR("depth") == "32", "it ran 32 times, and other scripts run on");
}

} // namespace

int main(int argc, char **argv)
{
    if (argc > 1) {
        const bool isHelp = argc == 2 && std::string(argv[1]) == "--help";
        (isHelp ? std::cout : std::cerr) << Usage;
        return isHelp ? 0 : 2;
    }
    std::cout << std::unitbuf; // scripts write there, too
    osg::osgInit(0, nullptr);
    registerServices();
    qxController::addCB("activateOverlays", activateOverlays);
    qxAnimManager::the()->setClips({"Waves"});
    Scene::the().build();
    startScripts();
    tell();
    Scene::the().close();
    endScripts();
    osg::osgExit();
    return failures > 0;
}
