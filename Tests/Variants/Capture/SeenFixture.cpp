#include "SeenFixture.h"

#include "qxVariantCaptureChecker.h"
#include "qxVariantSet.h"

#include "Cameras/qxMainView.h"
#include "qxLights.h"
#include "qxMaterials.h"
#include "qxScenegraph.h"

#include <OpenSG/OSGMaterialGroup.h>
#include <OpenSG/OSGSwitch.h>
#include <OpenSG/OSGSwitchMaterial.h>
#include <OpenSG/OSGTransform.h>

#include <sstream>

namespace {

std::string text(const osg::Matrix &matrix)
{
    std::ostringstream out;
    for (osg::UInt32 column = 0; column < 4; ++column) {
        for (osg::UInt32 row = 0; row < 4; ++row)
            out << matrix[column][row] << ' ';
    }
    return out.str();
}

/// The name of the plain material that is seen in the end.
std::string shownName(osg::MaterialPtr material)
{
    for (auto choices = osg::SwitchMaterialPtr::dcast(material); choices != osg::NullFC;
         choices = osg::SwitchMaterialPtr::dcast(material)) {
        if (choices->getChoice() >= choices->getMaterials().size())
            return "(nothing)";
        material = choices->getMaterials(choices->getChoice());
    }
    return qxMaterials::getName(material);
}

void addFacts(const std::string &way, const osg::NodePtr &node,
              std::map<std::string, std::string> &facts)
{
    facts[way] = qxNodeUtils::getName(node);
    const auto choices = osg::SwitchPtr::dcast(node->getCore());
    if (choices != osg::NullFC && choices->getChoice() < osg::Int32(node->getNChildren()))
        facts[way + " choice"] = choices->getChoice() < 0
            ? "(none)" // clones below a switch share their name and look the same
            : qxNodeUtils::getName(node->getChild(osg::UInt32(choices->getChoice())));
    const auto place = osg::TransformPtr::dcast(node->getCore());
    if (place != osg::NullFC)
        facts[way + " place"] = text(place->getMatrix());
    if (qxLights::isLight(node))
        facts[way + " light"] = qxLights::getOn(node) ? "on" : "off";
    if (qxNodeUtils::getMaterial(node) != osg::NullFC)
        facts[way + " material"] = shownName(qxNodeUtils::getMaterial(node));
    if (osg::MaterialGroupPtr::dcast(node->getCore()) != osg::NullFC)
        facts[way + " ignored"] = qxMaterials::getIgnoreMaterialGroup(node) ? "yes" : "no";
}

} // namespace

std::vector<std::pair<std::string, osg::NodePtr>> activeNodes()
{
    std::vector<std::pair<std::string, osg::NodePtr>> found;
    std::vector<std::pair<std::string, osg::NodePtr>> open{
        {"environment", qxScenegraph::environmentGeometrySwitch()},
        {"root", qxScenegraph::getRoot()}};
    while (!open.empty()) {
        const auto each = open.back();
        open.pop_back();
        if (each.second == osg::NullFC || !each.second->getActive())
            continue;
        found.push_back(each);
        for (osg::UInt32 i = 0; i < each.second->getNChildren(); ++i)
            open.emplace_back(each.first + '/' + std::to_string(i), each.second->getChild(i));
    }
    return found;
}

void SeenFixture::TearDown()
{
    for (const std::string &line : takeErrors())
        EXPECT_NE(line.find(" does not have a child called !Disable"), std::string::npos) << line;
    CaptureFixture::TearDown();
}

void SeenFixture::settleNames()
{
    qxVariantCaptureChecker checker;
    checker.findAmbiguousNodes();
    for (const osg::NodePtr &node : checker.getAmbiguousNodes())
        qxNodeUtils::setName(node, qxNodeUtils::getName(node), true, scene.root());
    EXPECT_TRUE(qxVariants::verifyNodeNames());
}

SeenFixture::Facts SeenFixture::capture(const QString &name)
{
    SCOPED_TRACE("while " + name.toStdString() + " was captured");
    const Facts facts = seen();
    qxVariantSet *const set = qxVariants::createVariantSet(name, false, nullptr);
    qxVariants::captureVariantsFromRootNodes(set, {qxScenegraph::getRootNode()}, true, true, true,
                                             true, true, true, true, true);
    expectSeen(facts);
    return facts;
}

SeenFixture::Facts SeenFixture::seen()
{
    const qxUberCamera &camera = qxMainView::the().camera;
    Facts facts{{"camera", text(camera.toWorld) + std::to_string(camera.fieldOfView)}};
    for (const auto &each : activeNodes())
        addFacts(each.first, each.second, facts);
    return facts;
}

void SeenFixture::expectSeen(const Facts &expected)
{
    const Facts now = seen();
    for (const auto &fact : expected) {
        const auto found = now.find(fact.first);
        EXPECT_EQ(found == now.end() ? "(not seen)" : found->second, fact.second) << fact.first;
    }
    for (const auto &fact : now) {
        const bool isOfANode = fact.first.find(' ') == std::string::npos;
        EXPECT_TRUE(!isOfANode || expected.count(fact.first)) << fact.first << " was hidden";
    }
}
